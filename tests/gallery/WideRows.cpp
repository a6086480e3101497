// What needs room: rows of buttons, sliders, addresses, progress, lists, grids, charts.
#include "Rows.h"

#include <cmath>

namespace
{

constexpr double noData = -32768.0;

/** A row of buttons of which one is chosen; none while the variable has another value. */
CECtrl* ButtonList(CCtrlCat& cat, int width, State state)
{
    constexpr int none = 9;
    static PerState<int> modes(1, none);
    auto* const list = static_cast<CEBtnList*>(cat.InsCtrl(width, CECtrl::typeBtnList, modes[state]));
    list->AddBtns(L"Off|Survey|Search");
    list->SetCallback(&counter, CCounter::Member());
    return list;
}

/** A slider with its numbers; one without data has no thumb. */
CECtrl* Slider(CCtrlCat& cat, int width, State state)
{
    static PerState<double> gains(24, noData);
    auto* const slider = static_cast<CESlider*>(cat.InsCtrl(width, CECtrl::typeSlider, gains[state]));
    slider->SetRange(0, 60);
    slider->decimals = 0;
    slider->ticks = CESlider::ticksNumbers;
    slider->readout = 72;
    slider->SetCallback(&counter, CCounter::Member());
    return slider;
}

/** An address of four numbers, inserted as an object: it has no code. */
CECtrl* Address(CCtrlCat& cat, int width, State state)
{
    constexpr unsigned long sonar = 192 | 168 << 8 | 0 << 16 | 40 << 24;
    static PerState<unsigned long> addresses(sonar, sonar);
    auto* const address = new CEAddr;
    address->Init(addresses[state]);
    address->SetCallback(&counter, CCounter::Member());
    return cat.InsCtrl(width, address, 0);
}

void SpoilAddress(CECtrl& ctrl)
{
    static_cast<CEAddr&>(ctrl).edits[1].SetWindowText(L"999");
}

/** Progress; stripes run while it is not known how long it takes. */
CECtrl* Process(CCtrlCat& cat, int width, State state)
{
    static PerState<double> shares(0.62, noData);
    auto* const process = new CEProcess;
    process->Init(shares[state]);
    process->text = L"Sending";
    return cat.InsCtrl(width, process, 0);
}

/** A list of entries; none is selected while the variable names none. */
CECtrl* List(CCtrlCat& cat, int width, State state)
{
    constexpr int noLine = -1;
    static PerState<int> lines(2, noLine);
    auto* const list = static_cast<CEList*>(cat.InsCtrl(width, CECtrl::typeList, lines[state]));
    for (int line = 1; line <= 12; ++line) {
        CString text;
        text.Format(L"Line %02d   %.2f km", line, 3.1 + line % 7 * 0.21);
        list->Add(text, line);
    }
    list->SetCallback(&counter, CCounter::Member());
    return list;
}

/** A grid whose columns are members of records, to be sorted and edited. */
CECtrl* Grid(CCtrlCat& cat, int width, State state)
{
    struct Sounding {
        int line;
        double depth;
    };
    using Log = std::array<Sounding, 5>;
    constexpr Log good = {{{1, 12.4}, {2, 13.1}, {3, 12.8}, {4, 15.9}, {5, 14.2}}};
    constexpr Log bad = {{{1, noData}, {2, noData}, {3, noData}, {4, noData}, {5, noData}}};
    static PerState<Log> logs(good, bad);
    Log& log = logs[state];
    CEGrid* const grid = cat.InsGrid(width, L"", 0, cat.ctrlH);
    CEGridCol* const line = grid->AddCol(L"Line", 60);
    line->InitRows(&log[0].line, sizeof log[0]);
    line->readOnly = 1;
    CEGridCol* const depth = grid->AddCol(L"Depth", 130);
    depth->InitRows(&log[0].depth, sizeof log[0]);
    depth->units = 0;
    depth->decimals = 1;
    depth->SetRange(0, 200);
    grid->SetRows(static_cast<int>(log.size()));
    grid->Sel(1, 1);
    return grid;
}

/** A strip chart. What is missing interrupts the line. */
CECtrl* Chart(CCtrlCat& cat, int width, State state)
{
    auto* const chart = new CEChart;
    CEStrip* const depth = chart->AddStrip(L"", 0);
    depth->reversed = 1;
    const int sonar = chart->AddTrace(L"Depth", depth)->Index();
    depth->decimals = 1;
    constexpr int seconds = 60;
    for (int t = 0; t <= seconds; ++t) {
        const bool isMissing = state == stInvalid && t > seconds / 3 && t < seconds * 2 / 3;
        chart->Add(sonar, t, isMissing ? noData : 14 + 3 * std::sin(t / 7.0) + std::sin(t / 1.7));
    }
    return cat.InsCtrl(width, chart, 0);
}

} // namespace

Section WideRows()
{
    constexpr int columns = 3;
    constexpr int lineH = 20;
    constexpr int buttonH = 24;
    constexpr int sliderH = 34;
    constexpr int listH = 84; // four entries and the frame
    constexpr int gridH = 108;
    constexpr int chartH = 130;
    return {L"Wide controls",
            columns,
            {{L"CEBtnList", CECtrl::typeBtnList, buttonH, pressable | Has(stInvalid), ButtonList},
             {L"CESlider", CECtrl::typeSlider, sliderH, pressable | Has(stInvalid), Slider},
             {L"CEAddr", 0, lineH, operated | Has(stInvalid), Address, SpoilAddress},
             {L"CEProcess", 0, lineH, shownOnly | Has(stInvalid), Process},
             {L"CEList", CECtrl::typeList, listH, operated | Has(stInvalid), List},
             {L"CEGrid", CECtrl::typeGrid, gridH, operated | Has(stInvalid), Grid},
             {L"CEChart", CECtrl::typeChart, chartH, shownOnly | Has(stFocused) | Has(stInvalid), Chart}}};
}
