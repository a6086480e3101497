// Opens every window of the library with content such as an application's, and saves a picture of each for
// the documentation.
//
//   VantPictures FOLDER
#include "pictures/Scenes.h"
#include "pictures/ShownWindows.h"
#include "resources/Ids.h"
#include "support/MessagePump.h"

#include <atlimage.h>

#include <cstdio>
#include <string>

namespace
{

using namespace shown;
using vant::test::PumpFor;

constexpr DWORD settleTime = 300; // milliseconds, until the screen shows what was drawn

CBaseApp theApp;

class CPictures
{
public:
    explicit CPictures(const CString& folder)
        : m_folder(folder)
    {
    }

    bool Failed() const { return m_failed; }

    CString Path(const wchar_t* file) const { return m_folder + L"\\" + file; }

    /** Tells of a file that was written, or was to be. */
    void Report(const CString& path, bool isSaved)
    {
        std::printf("%ls%s\n", static_cast<LPCWSTR>(path), isSaved ? "" : ": could not be written");
        m_failed |= !isSaved;
    }

    /** Saves a rectangle of the screen, so that what stands over a window is in its picture. */
    void SaveScreen(const CRect& place, const wchar_t* file)
    {
        PumpFor(settleTime);
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
        const CString path = Path(file);
        Report(path, SUCCEEDED(image.Save(path)));
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

void TakePanel(CPictures& pictures)
{
    CPanel panel;
    panel.CreateWnd(L"Panel", WS_OVERLAPPEDWINDOW, CRect(40, 40, 380, 520));
    panel.ShowWindow(SW_SHOW);
    panel.connect->Begin();
    for (double t = 0; t < 3.3; t += 0.1) {
        CECtrl::UpdateAuCtrls(t);
        panel.Advance();
        PumpFor(100);
    }
    pictures.Save(panel, L"panel.png");
}

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
    PumpFor(settleTime);
    form.invalid->SetFocus();
    form.invalid->SetWindowText(L"300");
    PumpFor(settleTime);
    pictures.Save(form, L"form.png");

    // The tool tip comes after the mouse has rested.
    CRect place;
    form.first->GetWindowRect(&place);
    ::SetCursorPos(place.left + 20, place.top + 8);
    PumpFor(static_cast<unsigned>(Vant::hoverTime * 1000) + 3 * settleTime);
    CRect around(place);
    around.InflateRect(180, 40, 260, 60);
    pictures.SaveScreen(around, L"tooltip.png");
    ::SetCursorPos(0, 0);
}

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
    PumpFor(settleTime);
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
    PumpFor(settleTime);
    pictures.Save(*wnd.chart, L"strip-chart.png");
    ::SetCursorPos(0, 0);
}

void TakeTable(CPictures& pictures)
{
    CTable table;
    table.CreateWnd(L"Soundings", WS_OVERLAPPEDWINDOW, CRect(40, 40, 472, 380));
    table.ShowWindow(SW_SHOW);
    PumpFor(settleTime);
    CEGrid& grid = *table.grid;
    grid.Sel(grid.RowAt(3), 1);
    grid.SetFocus();
    const CRect to = grid.Dpi().ToPx(grid.CellRc(grid.RowAt(6), 2));
    const LPARAM at = MAKELPARAM(to.left + 4, to.top + 4);
    grid.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON | MK_SHIFT, at);
    grid.SendMessage(WM_LBUTTONUP, 0, at);
    PumpFor(settleTime);
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
    PumpFor(settleTime);
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
        PumpFor(settleTime);
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
        PumpFor(settleTime);
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

void TakeScenes(CPictures& pictures)
{
    const CString chart = pictures.Path(L"view-chart.png");
    const CString scene = pictures.Path(L"view-scene.png");
    const CString materials = pictures.Path(L"materials.png");
    pictures.Report(chart + L", " + scene, TakeViews(chart, scene));
    pictures.Report(materials, TakeMaterials(materials));
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
    Vant::hIcon = ::LoadIconW(::GetModuleHandleW(L"VantCore.dll"), MAKEINTRESOURCEW(VANT_IDI_APP));
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
    TakeScenes(pictures);
    Vant::Exit();
    return pictures.Failed() ? 1 : 0;
}
