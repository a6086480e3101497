#pragma once

/** @file
 *  Windows with content such as an application's, for the documentation's pictures. */

#include "VantCore.h"

#include <cmath>
#include <vector>

namespace shown
{

/** A form as an application has them: sections, an anchored block, every control. */
class CForm : public CVantWnd
{
public:
    CForm() { name = L"Form"; }

    void SetupCtrls() override
    {
        CCtrlCat& depth = *GetCat(L"Depth limits", kindStacked, 1, 0);
        const auto field = [](CCtrlCat& cat, const wchar_t* caption, double& value) -> CECtrl& {
            cat.InsText(130, caption);
            CECtrl& edit = *cat.InsCtrl(70, CECtrl::typeEdit, value);
            edit.decimals = 1;
            edit.tip = L"Metres below the surface; between 0 and 200";
            edit.SetRange(0, 200);
            cat.NewLn();
            return edit;
        };
        first = &field(depth, L"Shallow water below", m_shallow);
        invalid = &field(depth, L"No bottom beyond", m_deep);
        CECtrl& unused = field(depth, L"Not in use", m_unused);
        unused.enIf = 1; // enabled while m_no is 1
        unused.pEnVar = &m_no;
        unused.enVal = 1;

        CCtrlCat& display = *GetCat(L"Display", kindStacked, 1, 0);
        const auto check = [&display](const wchar_t* caption, int& value) -> CECtrl& {
            CECtrl& box = *display.InsCtrl(180, CECtrl::typeCheck, value);
            box.text = caption;
            display.NewLn();
            return box;
        };
        check(L"Heading up", m_yes);
        check(L"US customary units", m_no);
        check(L"Not available here", m_no).state &= ~CECtrl::stEnabled;

        CCtrlCat& sensor = *GetCat(L"Sensor", kindStacked, 1, 0);
        sensor.InsText(70, L"Address");
        sensor.InsCtrl(190, new CEAddr, 1000)->Init(m_address);
        sensor.NewLn();
        const int left = sensor.curX;
        sensor.ctrlH = dialSize;
        sensor.InsCtrl(dialSize, CECtrl::typeRadius, m_bearing);
        sensor.ctrlH = CCtrlCat().ctrlH;
        sensor.ShiftX(20);
        sensor.InsText(60, L"Bearing");
        CECtrl& bearing = *sensor.InsCtrl(70, CECtrl::typeText, m_bearing);
        bearing.units = angle;
        bearing.scale = ML::r2d;
        bearing.decimals = 0;
        sensor.ShiftY(dialSize, left);

        GetCat(L"Closed section", kindStacked, 1, 0)->expanded = 0;

        CCtrlCat& block = *GetCat(L"Buttons", anchorBottomRight, 0, 0);
        block.InsBtn(80, L"Apply", 1, nullptr, nullptr);
        block.InsBtn(80, L"Close", 2, nullptr, nullptr);
        block.NewLn();
    }

    CECtrl* first = nullptr;
    CECtrl* invalid = nullptr;

private:
    static constexpr int dialSize = 100;
    static constexpr int angle = 6; // unit kind

    double m_shallow = 14.0;
    double m_deep = 120.0;
    double m_unused = 2.5;
    int m_yes = 1;
    int m_no = 0;
    unsigned long m_address = 192 | 168 << 8 | 0 << 16 | 40 << 24;
    double m_bearing = std::atan(1.0);
};

/** A form with lists, one of which is open. */
class CLists : public CVantWnd
{
public:
    CLists() { name = L"Lists"; }

    void SetupCtrls() override
    {
        CCtrlCat& sonar = *GetCat(L"Sonar", kindStacked, 1, 0);
        const auto box = [&sonar](const wchar_t* caption, int& value) -> CECb& {
            sonar.InsText(90, caption);
            auto& cb = static_cast<CECb&>(*sonar.InsCtrl(150, CECtrl::typeCb, value));
            sonar.NewLn();
            return cb;
        };
        CECb& mode = box(L"Mode", m_mode);
        for (const wchar_t* const text : {L"Equiangular", L"Equidistant", L"High density"})
            mode.Add(text);
        open = &box(L"Frequency", m_frequency);
        for (int frequency = 150; frequency <= 700; frequency += 25) {
            CString text;
            text.Format(L"%d kHz", frequency);
            open->Add(text, frequency);
        }
        open->maxRows = 8;
        CECb& disabled = box(L"Pulse", m_pulse);
        disabled.Add(L"Continuous wave");
        disabled.state &= ~CECtrl::stEnabled;

        CCtrlCat& lines = *GetCat(L"Lines", kindStacked, 1, 0);
        const int left = lines.curX;
        lines.ctrlH = listH;
        auto& list = static_cast<CEList&>(*lines.InsCtrl(200, CECtrl::typeList, m_line));
        for (int line = 1; line <= 42; ++line) {
            CString text;
            text.Format(L"Line %02d  %.2f km", line, 3.1 + line % 7 * 0.21);
            list.Add(text, line);
        }
        lines.ShiftX(16);
        for (const int layout : {CECb::layoutRight, CECb::layoutLeft}) {
            auto& strip = static_cast<CECb&>(*lines.InsCtrl(26, CECtrl::typeCb, m_mode));
            strip.layout = layout;
            for (const wchar_t* const text : {L"Depth", L"Backscatter", L"Slope"})
                strip.Add(text);
            lines.ShiftX(8);
        }
        lines.ctrlH = CCtrlCat().ctrlH;
        lines.ShiftY(listH, left);
    }

    CECb* open = nullptr;

private:
    static constexpr int listH = 164; // eight lines and the frame

    int m_mode = 1;
    int m_pulse = 0;
    int m_frequency = 400;
    int m_line = 4;
};

/** A log of soundings in a grid. */
class CTable : public CVantWnd
{
public:
    CTable() { name = L"Table"; }

    void SetupCtrls() override
    {
        constexpr int soundings = 500;
        m_log.resize(soundings);
        for (int i = 0; i < soundings; ++i) {
            const double swell = std::sin(i * 0.7);
            m_log[static_cast<std::size_t>(i)] = {1 + i / 40, i % 17 == 5 ? -32768.0 : 24.6 + 3.1 * swell,
                                                  14.2 + 0.3 * swell,
                                                  i % 9 == 4 ? L"Wreck, two pieces" : L""};
        }
        CEFlex flex;
        flex.right = flex.bottom = 1.0;
        SetPos(8, 8);
        grid = InsGrid(gridW, L"Log", 1, gridH, &flex);
        grid->rowNumbers = 1;
        const std::size_t stride = sizeof m_log[0];
        grid->AddCol(L"Line", 54)->InitRows(&m_log[0].line, stride);
        CEGridCol& depth = *grid->AddCol(L"Depth", 84);
        depth.InitRows(&m_log[0].depth, stride);
        depth.units = 0;
        depth.decimals = 2;
        CEGridCol& temperature = *grid->AddCol(L"Temperature", 114);
        temperature.InitRows(&m_log[0].temperature, stride);
        temperature.units = 1;
        temperature.decimals = 1;
        grid->AddCol(L"Note", 96)->InitRows(&m_log[0].note, stride);
        grid->SetRows(soundings);
        grid->Sort(1, CEGrid::sortDown);
    }

    CEGrid* grid = nullptr;

private:
    static constexpr int gridW = 404;
    static constexpr int gridH = 288;

    struct Sounding {
        int line;
        double depth;
        double temperature;
        CString note;
    };
    std::vector<Sounding> m_log;
};

/** A sonar's panel: what is set by sliding and choosing, what lamps and bars show. */
class CPanel : public CVantWnd
{
public:
    CPanel() { name = L"Panel"; }

    void SetupCtrls() override
    {
        CCtrlCat& head = *GetCat(L"Sonar head", kindStacked, 1, 0);
        head.InsText(70, L"Mode");
        head.ctrlH = 24;
        Insert<CEBtnList>(head, 210, m_mode).AddBtns(L"Off|Survey|Search");
        NewLine(head, 30);
        for (int i = 0; i < 3; ++i) {
            static const wchar_t* const sectors[] = {L"Narrow", L"Wide", L"All round"};
            auto& sector = Insert<CERadio>(head, i == 0 ? 80 : 70 + 15 * i, m_sector);
            sector.text = sectors[i];
            sector.aux0 = i;
        }
        NewLine(head, 26);
        head.ctrlH = 34;
        head.InsText(70, L"Gain");
        auto& gain = Insert<CESlider>(head, 210, m_gain);
        gain.SetRange(0, 60);
        gain.step = 0.5;
        gain.decimals = 1;
        gain.ticks = CESlider::ticksNumbers;
        gain.readout = 50;
        NewLine(head, 40);
        head.InsText(70, L"Range");
        auto& range = Insert<CESlider>(head, 210, m_range);
        range.SetRange(0, 150);
        range.units = 0;
        range.decimals = 0;
        range.ticks = CESlider::ticksNumbers;
        range.readout = 50;
        NewLine(head, 44);
        head.ctrlH = 24;
        connect = &Insert<CEAttempt>(head, 140, m_connection);
        connect->text = L"Connect";
        connect->pendingText = L"Connecting";
        NewLine(head, 26);

        CCtrlCat& state = *GetCat(L"State", kindStacked, 1, 0);
        static const wchar_t* const lamps[] = {L"Position RTK", L"Motion sensor", L"Water", L"Shallow",
                                               L"Leak"};
        for (int i = 0; i < 5; ++i) {
            m_lamps[i] = i == 2 ? 9 : i > 2 ? i : i + 1;
            Insert<CELed>(state, 130, m_lamps[i]).text = lamps[i];
            if (i % 2 != 0)
                state.NewLn();
        }
        state.NewLn();
        for (int i = 0; i < 3; ++i) {
            static const wchar_t* const texts[] = {L"Sending the survey", L"Looking for sensors", L"Storing"};
            auto* const process = new CEProcess;
            process->Init(m_progress[i]);
            process->text = texts[i];
            state.InsCtrl(282, process, 0);
            state.NewLn();
        }
    }

    void Advance() { m_progress[0] += 0.0018; }

    CEAttempt* connect = nullptr;

private:
    template <class Ctrl, class T>
    static Ctrl& Insert(CCtrlCat& cat, int width, T& variable)
    {
        auto* const ctrl = new Ctrl;
        cat.InsCtrl(width, ctrl, 0);
        ctrl->Init(variable);
        return *ctrl;
    }
    static void NewLine(CCtrlCat& cat, int height) { cat.ShiftY(height, cat.leftM); }

    int m_mode = 1;
    int m_sector = 2;
    double m_gain = 24.5;
    double m_range = 75;
    int m_connection = 0;
    int m_lamps[5] = {};
    double m_progress[3] = {0.4, -32768.0, 1};
};

/** A window that a chart fills: a depth sounder, an altimeter and a speed log. */
class CChart : public CVantWnd
{
public:
    CChart() { name = L"Chart"; }

    void SetupCtrls() override
    {
        ctrlH = height;
        chart = static_cast<CEChart*>(NewCtrl(width, CECtrl::typeChart));
        CEStrip* const depth = chart->AddStrip(L"Depth", length);
        depth->reversed = 1;
        depth->share = 3;
        depth->decimals = 2;
        CETrace* const sonar = chart->AddTrace(L"Sonar", depth);
        sonar->fill = 1;
        CETrace* const altimeter = chart->AddTrace(L"Altimeter", depth);
        CEStrip* const log = chart->AddStrip(L"Speed", speed);
        log->share = 2;
        log->decimals = 1;
        CETrace* const ground = chart->AddTrace(L"Over ground", log);
        constexpr double start = 1.47e9; // in 2026
        constexpr double missing = -32768.0;
        for (int i = 0; i <= 4800; ++i) {
            const double t = i * 0.025;
            const double wild = std::sin(i * 12.9898) * 43758.5453;
            const double noise = wild - std::floor(wild) - 0.5;
            chart->Add(sonar->Index(), start + t,
                       31 + 6 * std::sin(t / 19) + 1.5 * std::sin(t / 3.1) + 0.4 * noise);
            if (i % 40 == 0)
                chart->Add(altimeter->Index(), start + t,
                           i > 3000 && i < 3400 ? missing : 40 + 3 * std::cos(t / 14) + noise);
            chart->Add(ground->Index(), start + t, 2.2 + 0.5 * std::sin(t / 9) + 0.6 * noise);
        }
        chart->timeLabels = CEChart::timeClock;
        chart->SetSpan(90);
    }

    static constexpr int width = 640;
    static constexpr int height = 360;
    CEChart* chart = nullptr;

private:
    static constexpr int length = 0; // unit kinds
    static constexpr int speed = 2;
};

/** Shows and chooses palettes, as the windows do that draw with them. */
class CPaletteUser : public CVantWnd
{
public:
    explicit CPaletteUser(CPal& pal)
        : m_pal(&pal)
    {
    }
    void SetupCtrls() override
    {
        constexpr int lyingH = 44;
        constexpr int uprightH = 150;
        InsText(60, L"Palette");
        InsCtrl(140, new CPalCb(m_pal), 0);
        NewLn();
        ctrlH = lyingH;
        InsCtrl(250, Bar(), 0);
        ctrlH = uprightH;
        InsCtrl(64, Bar(), 0);
    }

private:
    CPalBar* Bar() const
    {
        auto* const bar = new CPalBar;
        bar->Init(m_pal->working, m_pal->start, m_pal->end);
        return bar;
    }

    CPal* m_pal;
};

} // namespace shown
