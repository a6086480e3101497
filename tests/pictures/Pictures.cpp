// Opens every window of the library with content such as an application's, and saves a picture of each for
// the documentation.
//
//   VantPictures FOLDER
#include "VantCore.h"

#include <atlimage.h>

#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

namespace
{

constexpr DWORD settleTime = 300; // milliseconds, until the screen shows what was drawn

CBaseApp theApp;

void HandleMessages(DWORD milliseconds)
{
    const ULONGLONG end = ::GetTickCount64() + milliseconds;
    do {
        MSG message;
        while (::PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE) && AfxGetThread()->PumpMessage()) {
        }
        ::Sleep(5);
    } while (::GetTickCount64() < end);
}

class CPictures
{
public:
    explicit CPictures(const CString& folder)
        : m_folder(folder)
    {
    }

    bool Failed() const { return m_failed; }

    /** Saves a rectangle of the screen, so that what stands over a window is in its picture. */
    void SaveScreen(const CRect& place, const wchar_t* file)
    {
        HandleMessages(settleTime);
        constexpr int bitsPerPixel = 24;
        CImage image;
        if (!image.Create(place.Width(), place.Height(), bitsPerPixel)) {
            m_failed = true;
            return;
        }
        const HDC screen = ::GetDC(nullptr);
        ::BitBlt(image.GetDC(), 0, 0, place.Width(), place.Height(), screen, place.left, place.top, SRCCOPY);
        image.ReleaseDC();
        ::ReleaseDC(nullptr, screen);
        const CString path = m_folder + L"\\" + file;
        const bool saved = SUCCEEDED(image.Save(path));
        std::printf("%ls%s\n", static_cast<LPCWSTR>(path), saved ? "" : ": could not be written");
        m_failed |= !saved;
    }

    void Save(const CWnd& wnd, const wchar_t* file)
    {
        CRect place;
        wnd.GetWindowRect(&place);
        SaveScreen(place, file);
    }

private:
    CString m_folder;
    bool m_failed = false;
};

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

void TakePanel(CPictures& pictures)
{
    CPanel panel;
    panel.CreateWnd(L"Panel", WS_OVERLAPPEDWINDOW, CRect(40, 40, 380, 520));
    panel.ShowWindow(SW_SHOW);
    panel.connect->Begin();
    for (double t = 0; t < 3.3; t += 0.1) {
        CECtrl::UpdateAuCtrls(t);
        panel.Advance();
        HandleMessages(100);
    }
    pictures.Save(panel, L"panel.png");
}

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

void FillConsoles()
{
    constexpr int lines = 40;
    Vant::csl.maxEntries = lines;
    for (int i = 1; i < lines; ++i) {
        const int level = i % 7 == 3 ? 1500 : i % 11 == 5 ? 5200 : i % 13 == 6 ? 9100 : 0;
        Vant::Console(level, L"Line %d: %d soundings stored, mean depth %d.%d m", i, 812 + i * 13, 14 + i % 6,
                      i % 10);
    }
    Vant::Comms(0, L"$GPGGA,104512.00,5432.1187,N,01008.2251,E,4,12,0.8,3.1,M,44.2,M,1.0,0120*5B");
    Vant::Comms(0, L"$GPVTG,184.2,T,,M,4.1,N,7.6,K,D*2F");
    Vant::Comms(0, L"$SDDPT,13.20,0.50,100.0*4E");
    Vant::Status(4000, 0, L"Clock: 1 PPS locked, offset 0.3 ms");
    Vant::Status(4001, 0, L"Position: RTK fixed, 12 satellites");
    Vant::Status(4003, 5100, L"Disk: 6.1 GB left");
    Vant::Status(4004, 9200, L"Motion sensor: no data for 12 s");
    Vant::Alarm(3001, 1, L"Shallow water: 13.2 m, limit 14.0 m");
    Vant::Alarm(3002, 1, L"No position for 7 s");
    Vant::Alarm(3002, 0, L"Position back after 9.0 s");
    Vant::Alarm(3003, 1, L"Motion sensor does not answer");
    Vant::alarm.CheckEntry(3003, 1);
}

void TakeForm(CPictures& pictures)
{
    CForm form;
    form.CreateWnd(L"Form", WS_OVERLAPPEDWINDOW, CRect(40, 40, 460, 560));
    form.ShowWindow(SW_SHOW);
    HandleMessages(settleTime);
    form.invalid->SetFocus();
    form.invalid->SetWindowText(L"300");
    HandleMessages(settleTime);
    pictures.Save(form, L"form.png");

    // The tool tip comes after the mouse has rested.
    CRect place;
    form.first->GetWindowRect(&place);
    ::SetCursorPos(place.left + 20, place.top + 8);
    HandleMessages(static_cast<DWORD>(Vant::hoverTime * 1000) + 3 * settleTime);
    CRect around(place);
    around.InflateRect(180, 40, 260, 60);
    pictures.SaveScreen(around, L"tooltip.png");
    ::SetCursorPos(0, 0);
}

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

/** A palette with the tables that come with the library, which stand beside the program. */
void TakePalettes(CPictures& pictures)
{
    wchar_t program[MAX_PATH] = {};
    ::GetModuleFileNameW(nullptr, program, MAX_PATH);
    CString dir = program;
    CColTbl::EnumColTbls(dir.Left(dir.ReverseFind(L'\\') + 1) + L"clt");
    {
        CPal pal;
        pal.name = L"Sonar";
        pal.CreateWnd(L"Sonar palette", WS_OVERLAPPEDWINDOW, CRect(40, 40, 400, 432));
        pal.SetOption(L"Load", L"Depths");
        pal.end = 120;
        pal.UpdatePal();
        CPaletteUser user(pal);
        user.CreateWnd(L"", WS_CHILD | WS_VISIBLE, CRect(0, 160, 350, 360), &pal, 1);
        pal.ShowWindow(SW_SHOW);
        pictures.Save(pal, L"palette.png");
        user.DestroyWindow();
        pal.DestroyWindow();
    }
    CColTbl::s_colTbls.RemoveAll();
}

void TakeLists(CPictures& pictures)
{
    CLists lists;
    lists.CreateWnd(L"Lists", WS_OVERLAPPEDWINDOW, CRect(40, 40, 420, 420));
    lists.ShowWindow(SW_SHOW);
    HandleMessages(settleTime);
    lists.open->Open();
    pictures.Save(lists, L"lists.png");
}

void TakeChart(CPictures& pictures)
{
    CChart wnd;
    wnd.CreateWnd(L"Chart", WS_OVERLAPPEDWINDOW, CRect(40, 40, 100 + CChart::width, 120 + CChart::height));
    wnd.ShowWindow(SW_SHOW);
    CRect place;
    wnd.chart->GetWindowRect(&place);
    ::SetCursorPos(place.left + place.Width() * 2 / 3, place.top + place.Height() / 3);
    HandleMessages(settleTime);
    pictures.Save(*wnd.chart, L"strip-chart.png");
    ::SetCursorPos(0, 0);
}

void TakeTable(CPictures& pictures)
{
    CTable table;
    table.CreateWnd(L"Soundings", WS_OVERLAPPEDWINDOW, CRect(40, 40, 472, 380));
    table.ShowWindow(SW_SHOW);
    HandleMessages(settleTime);
    CEGrid& grid = *table.grid;
    grid.Sel(grid.RowAt(3), 1);
    grid.SetFocus();
    const CRect to = grid.Dpi().ToPx(grid.CellRc(grid.RowAt(6), 2));
    const LPARAM at = MAKELPARAM(to.left + 4, to.top + 4);
    grid.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON | MK_SHIFT, at);
    grid.SendMessage(WM_LBUTTONUP, 0, at);
    HandleMessages(settleTime);
    pictures.Save(table, L"grid.png");
    grid.Sel(grid.RowAt(4), 1);
    grid.BeginEdit();
    pictures.Save(table, L"grid-edit.png");
}

/** A menu, open with a sub-menu. It belongs to the user until it is closed: a timer does that, and takes the
 * picture before. */
void TakeMenu(CPictures& pictures)
{
    static CPictures* to;
    static CEMenu* menu;
    to = &pictures;
    CVantWnd chart;
    chart.CreateWnd(L"Chart", WS_OVERLAPPEDWINDOW, CRect(40, 40, 500, 360));
    chart.ShowWindow(SW_SHOW);
    HandleMessages(settleTime);
    int layers = 5;
    int range = 100;
    CEMenu context;
    menu = &context;
    context.Add(L"&Centre here");
    context.Add(L"&Follow vessel\tF6")->Check(layers, 1);
    context.AddSep();
    context.Add(L"Show &grid\tCtrl+G")->Check(layers, 2);
    context.Add(L"Show &tracks\tCtrl+Shift+T")->Check(layers, 4);
    context.Add(L"&Delete waypoint\tDel")->Enable(0);
    context.AddSep();
    CEMenu& ranges = *context.AddSub(L"&Range");
    for (const int metres : {50, 100, 200, 500}) {
        CString text;
        text.Format(L"%d m", metres);
        ranges.Add(text)->Choice(range, metres);
    }
    context.AddSub(L"&Export")->Add(L"Chart");
    for (const UINT key : {VK_END, VK_UP, VK_RIGHT, VK_DOWN, VK_DOWN})
        ::PostMessageW(chart, WM_KEYDOWN, key, 1);
    chart.SetTimer(1, settleTime, [](HWND wnd, UINT, UINT_PTR timer, DWORD) {
        ::KillTimer(wnd, timer);
        CRect place;
        ::GetWindowRect(wnd, &place);
        to->SaveScreen(place, L"menu.png");
        menu->Cancel();
    });
    CRect place;
    chart.GetWindowRect(&place);
    context.TrackPopup(CPoint(place.left + 40, place.top + 50), &chart);
}

void TakeConsoles(CPictures& pictures)
{
    struct {
        CConsole& console;
        CSize size;
        const wchar_t* file;
    } const all[] = {{Vant::csl, CSize(640, 360), L"console.png"},
                     {Vant::comms, CSize(640, 200), L"comms.png"},
                     {Vant::status, CSize(640, 200), L"status.png"},
                     {Vant::alarm, CSize(640, 220), L"alarms.png"}};
    for (const auto& [console, size, file] : all) {
        console.CreateWnd(L"The Output Window", WS_OVERLAPPEDWINDOW, CRect(CPoint(40, 40), size));
        console.ShowWindow(SW_SHOW);
        HandleMessages(settleTime);
        if (&console == &Vant::csl) {
            console.Cats().GetHead()->expanded = 1;
            console.LayoutWnd();
        }
        pictures.Save(console, file);
        console.DestroyWindow();
    }
}

void TakeMessages(CPictures& pictures)
{
    struct {
        int type;
        const wchar_t* text;
        const wchar_t* file;
    } const all[] = {{0, L"The survey has been stored.\n42 lines, 118,204 soundings.", L"message-info.png"},
                     {Vant::msgWarnIcon, L"Shallow water!\nThe depth is 13.2 m,\nthe limit 14.0 m.",
                      L"message-warning.png"},
                     {Vant::msgStopIcon, L"The motion sensor does not answer.\nHeave is not corrected.",
                      L"message-stop.png"}};
    for (const auto& [type, text, file] : all) {
        Vant::MsgBox(type, L"%s", text);
        HandleMessages(settleTime);
        pictures.Save(Vant::msgBox, file);
    }
    Vant::msgBox.DestroyWindow();

    // A modal box handles messages itself: a timer takes its picture and answers it.
    static CPictures* taker;
    taker = &pictures;
    ::SetTimer(nullptr, 0, 3 * settleTime, [](HWND, UINT, UINT_PTR id, DWORD) {
        ::KillTimer(nullptr, id);
        const HWND box = CEMsgBoxModal::TopWnd();
        CRect place;
        ::GetWindowRect(box, &place);
        taker->SaveScreen(place, L"message-question.png");
        ::PostMessageW(box, WM_COMMAND, IDCANCEL, 0);
    });
    Vant::MsgBox(Vant::msgModal | Vant::msgYesNo | Vant::msgCancel,
                 L"The survey is still being recorded.\nStop it and close the program?");
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 2) {
        std::fputs("usage: VantPictures FOLDER\n", stderr);
        return 2;
    }
    Vant::appTitle = L"Survey";
    Vant::options |= 0x20; // no sound
    Vant::Init();
    CPictures pictures{CString(argv[1])};
    FillConsoles();
    TakeForm(pictures);
    TakeLists(pictures);
    TakePalettes(pictures);
    TakeChart(pictures);
    TakeTable(pictures);
    TakeMenu(pictures);
    TakePanel(pictures);
    TakeConsoles(pictures);
    TakeMessages(pictures);
    Vant::Exit();
    return pictures.Failed() ? 1 : 0;
}
