#include "colour/CColTblCb.h"
#include "colour/CPal.h"
#include "colour/CPalBar.h"
#include "colour/CPalCb.h"
#include "colour/ColourTest.h"
#include "controls/ControlsTest.h"
#include "controls/RecordingWnd.h"
#include "support/TempDir.h"

#include <filesystem>
#include <fstream>

namespace
{

using testing::ElementsAre;

std::vector<CRgb> Ramp()
{
    std::vector<CRgb> entries;
    for (int i = 0; i < 256; ++i)
        entries.push_back(CRgb(static_cast<unsigned char>(i), 90, 0));
    return entries;
}

class PalWndTest : public ControlsTest
{
protected:
    PalWndTest()
    {
        two = AddTable(L"Two", {red, green});
        ramp = AddTable(L"Ramp", Ramp());
    }
    ~PalWndTest() override
    {
        if (pal.m_hWnd)
            pal.DestroyWindow();
        pal.DestroyCtrls();
        CColTbl::s_colTbls.RemoveAll();
    }

    void OpenPal(int dpi = 96, int width = 346, int height = 180)
    {
        CDpi(dpi).Set(parent);
        ASSERT_TRUE(pal.CreateWnd(L"Palette", WS_CHILD | WS_VISIBLE, CRect(0, 0, width, height), &parent, 1));
        pal.AttachWnd(&listener);
        listener.events.clear();
    }
    template <class Ctrl>
    Ctrl& CtrlAt(int index)
    {
        return dynamic_cast<Ctrl&>(*pal.ctrls.GetAt(pal.ctrls.FindIndex(index)));
    }
    static void DrawWnd(CVantWnd& wnd, Canvas& canvas)
    {
        const int saved = canvas.Dc().SaveDC();
        wnd.Dpi().Apply(canvas.Dc());
        wnd.Draw(&canvas.Dc());
        canvas.Dc().RestoreDC(saved);
    }

    CColTbl* two;
    CColTbl* ramp;
    CPal pal;
    RecordingWnd listener;
};

TEST_F(PalWndTest, TheControlsAreTheRangeAndTheTables)
{
    OpenPal();
    std::vector<std::wstring> texts;
    std::vector<CRect> places;
    for (CVantPtr* pos = pal.ctrls.GetHeadPos(); pos;) {
        const CECtrl& ctrl = *pal.ctrls.GetNext(pos);
        texts.push_back(Text(ctrl.text));
        places.push_back(ctrl.rc);
    }
    EXPECT_THAT(texts, ElementsAre(L"Select the palette range and colour table", L"Start", L"Colour Table",
                                   L"End", L"", L"", L""));
    EXPECT_THAT(places, ElementsAre(CRect(10, 10, 325, 24), CRect(10, 26, 70, 46), CRect(72, 26, 264, 46),
                                    CRect(266, 26, 326, 46), CRect(10, 50, 70, 70), CRect(72, 50, 264, 70),
                                    CRect(266, 50, 326, 70)));
    EXPECT_EQ(CtrlAt<CECtrl>(4).pVal, &pal.start);
    EXPECT_EQ(CtrlAt<CColTblCb>(5).pTbl, &pal.master);
    EXPECT_EQ(CtrlAt<CECtrl>(6).pVal, &pal.end);
    // The bar follows the window.
    EXPECT_EQ(pal.barRc.right, 336);
    pal.SetWindowPos(nullptr, 0, 0, 400, 180, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(pal.barRc.right, 390);
}

TEST_F(PalWndTest, EveryControlTellsTheAttachedWindows)
{
    ShowParent();
    OpenPal();
    CECtrl& end = CtrlAt<CECtrl>(6);
    end.SetFocus();
    end.SetWindowText(L"50");
    pal.SetFocus();
    EXPECT_EQ(pal.end, 50.0);
    EXPECT_EQ(listener.events.size(), 1u);

    CColTblCb& tables = CtrlAt<CColTblCb>(5);
    EXPECT_EQ(Text(tables.GetSel()->text), L"<Black>");
    KeyDown(tables, VK_DOWN);
    EXPECT_EQ(pal.master.source, two);
    EXPECT_EQ(Entries(pal.working), (std::vector<CRgb>{red, green}));
    EXPECT_EQ(listener.events.size(), 2u);
    KeyDown(tables, VK_DOWN);
    // No table leaves the colours.
    KeyDown(tables, VK_HOME);
    EXPECT_EQ(pal.master.source, nullptr);
    EXPECT_EQ(pal.working.cols.GetSize(), 256u);
    EXPECT_EQ(*pal.working.cols[255], *ramp->cols[255]);
    // An option is seen in the list, too.
    pal.SetOption(L"Load", L"Two");
    pal.UpdatePal();
    EXPECT_EQ(Text(tables.GetSel()->text), L"Two");
}

TEST_F(PalWndTest, ExecutingFetchesWhatTheMasterHasNow)
{
    CColTbl copy;
    copy = *two;
    CColTblCb tables(&copy);
    Listener heard;
    tables.SetCallback(&heard, Listener::Member());
    *two->cols[0] = blue;
    tables.Execute();
    EXPECT_EQ(*copy.cols[0], blue);
    EXPECT_EQ(heard.calls, 1);
    copy.source = nullptr;
    *two->cols[0] = white;
    tables.Execute();
    EXPECT_EQ(*copy.cols[0], blue);
    EXPECT_EQ(heard.calls, 2);
    CColTblCb().Execute();
}

TEST_F(PalWndTest, TheListOfTablesShowsTheOneThatFits)
{
    CColTbl copy, foreign;
    const auto shown = [](CColTbl* tbl) {
        CColTblCb tables(tbl);
        tables.Fill();
        EXPECT_EQ(tables.List().GetCount(), 3);
        return tables.GetSel() ? Text(tables.GetSel()->text) : L"none";
    };
    EXPECT_EQ(shown(&copy), L"<Black>");
    EXPECT_EQ(shown(nullptr), L"<Black>");
    copy = *ramp;
    EXPECT_EQ(shown(&copy), L"Ramp");
    copy = foreign;
    EXPECT_EQ(shown(&copy), L"none");
}

TEST_F(PalWndTest, EntriesAreStripsInTheDirectionOfTheCombo)
{
    CColTblCb tables;
    CELEnt ent(L"Two", two);
    const CRect place(10, 10, 110, 30);
    Canvas canvas(130, 130);
    tables.DrawEntry(&canvas.Dc(), place, &ent, 0);
    EXPECT_EQ(canvas.At(11, 20), Pixel(red));
    EXPECT_EQ(canvas.At(10, 20), 0u);
    EXPECT_EQ(canvas.Dc().GetBkColor(), COLORREF{RGB(0x33, 0x33, 0x33)});
    EXPECT_EQ(::GetCurrentObject(canvas.Dc(), OBJ_PEN), Vant::blueL.m_hObject);
    EXPECT_TRUE(canvas.Bounds(RGB(green.red, green.green, green.blue)).IsRectEmpty()) << "beyond the entry";

    tables.drawOpt = 1;
    tables.DrawEntry(&canvas.Dc(), place, &ent, 1);
    EXPECT_EQ(canvas.At(11, 20), Pixel(green));
    EXPECT_EQ(canvas.Dc().GetBkColor(), COLORREF{0});
    tables.drawOpt = 0;
    for (const int layout : {2, 3}) {
        tables.layout = layout;
        canvas.Fill(0);
        tables.DrawEntry(&canvas.Dc(), CRect(10, 10, 30, 110), &ent, 0);
        EXPECT_EQ(canvas.At(20, 11), Pixel(green)) << layout; // the last entry on top
    }
}

TEST_F(PalWndTest, DraggingInTheBarTurnsTheTable)
{
    OpenPal();
    pal.SetOption(L"Load", L"Ramp");
    listener.events.clear();
    const CPoint at = pal.barRc.CenterPoint();
    const int width = pal.barRc.Width();
    Press(pal, at.x, pal.barRc.top - 1);
    EXPECT_EQ(pal.dragging, 0);
    Press(pal, at.x, at.y);
    EXPECT_EQ(pal.dragging, 1);
    EXPECT_EQ(::GetCapture(), pal.m_hWnd);
    Send(pal, WM_MOUSEMOVE, MK_LBUTTON, at.x, at.y);
    EXPECT_TRUE(listener.events.empty());
    Send(pal, WM_MOUSEMOVE, MK_LBUTTON, at.x + width / 4, at.y);
    EXPECT_NEAR(pal.offset, 64, 1);
    EXPECT_EQ(*pal.working.cols[static_cast<unsigned>(pal.offset)], *ramp->cols[0]);
    Send(pal, WM_MOUSEMOVE, MK_LBUTTON, at.x - width / 4, at.y);
    EXPECT_NEAR(pal.offset, 192, 1);
    EXPECT_EQ(listener.events.size(), 2u);
    Release(pal, at.x - width / 4, at.y);
    EXPECT_EQ(pal.dragging, 0);
    EXPECT_NE(::GetCapture(), pal.m_hWnd);
    Send(pal, WM_MOUSEMOVE, 0, at.x, at.y);
    EXPECT_EQ(listener.events.size(), 2u);

    // The mouse may be taken away.
    Press(pal, at.x, at.y);
    parent.SetCapture();
    EXPECT_EQ(pal.dragging, 0);
    ::ReleaseCapture();

    pal.Scroll(0);
    KeyDown(pal, VK_LEFT);
    EXPECT_EQ(pal.offset, 255);
    KeyDown(pal, VK_RIGHT);
    EXPECT_EQ(pal.offset, 0);
    SetEntries(pal.master, {});
    pal.Scroll(0);
    KeyDown(pal, VK_LEFT);
    Press(pal, at.x, at.y);
    Send(pal, WM_MOUSEMOVE, MK_LBUTTON, at.x + 9, at.y);
    EXPECT_EQ(pal.offset, 0);
}

TEST_F(PalWndTest, EveryPixelOfTheBarHasTheColourOfItsValue)
{
    for (const int dpi : {96, 192}) {
        CPal wnd;
        CDpi(dpi).Set(parent);
        ASSERT_TRUE(wnd.CreateWnd(L"Palette", WS_CHILD, CRect(0, 0, 346, 180), &parent, 1));
        wnd.SetOption(L"Load", dpi == 96 ? L"Two" : L"Ramp");
        wnd.start = -3;
        wnd.end = 9;
        wnd.wrap = 1;
        CRect client;
        wnd.GetClientRect(&client);
        Canvas canvas(client.Width(), client.Height());
        DrawWnd(wnd, canvas);
        const CRect bar = wnd.Dpi().ToPx(wnd.barRc);
        for (int x = bar.left; x < bar.right; ++x) {
            CRgb colour;
            wnd.GetCol(-3 + 12 * (x - bar.left + 0.5) / bar.Width(), colour);
            ASSERT_EQ(canvas.At(x, bar.CenterPoint().y), Pixel(colour)) << x << " at " << dpi;
        }
        wnd.DestroyWindow();
    }
}

/** Browses, and answers the dialog as its user would. @return whether there was one */
bool Browse(CPal& pal, const std::wstring& file, int button)
{
    static std::wstring name;
    static int answer;
    static bool seen;
    name = file;
    answer = button;
    seen = false;
    const UINT_PTR timer = ::SetTimer(nullptr, 0, 50, [](HWND, UINT, UINT_PTR, DWORD) {
        constexpr int nameField = 0x47C; // cmb13
        const HWND dialog = ::FindWindowW(L"#32770", L"Select palette to load");
        const HWND field = dialog ? ::GetDlgItem(dialog, nameField) : nullptr;
        if (!field)
            return;
        seen = true;
        ::SetWindowTextW(field, name.c_str());
        ::PostMessageW(dialog, WM_COMMAND, static_cast<WPARAM>(answer), 0);
    });
    pal.Browse();
    ::KillTimer(nullptr, timer);
    return seen;
}

TEST_F(PalWndTest, BrowsingLoadsTheChosenFile)
{
    ShowParent();
    OpenPal();
    pal.SetOption(L"Load", L"Two");
    pal.Scroll(1);
    listener.events.clear();
    const vant::test::TempDir dir;
    const std::wstring file = dir.Path(L"browsed.clt").GetString();
    std::ofstream(std::filesystem::path(file)) << "COLOURTABLE 2 \"Browsed\"\n0 0 160\n255 255 255\n";
    EXPECT_TRUE(Browse(pal, file, IDCANCEL));
    EXPECT_EQ(Text(pal.master.name), L"Two");
    EXPECT_TRUE(listener.events.empty());
    EXPECT_TRUE(Browse(pal, file, IDOK));
    EXPECT_EQ(Text(pal.master.name), L"Browsed");
    EXPECT_EQ(pal.master.source, nullptr);
    EXPECT_EQ(Entries(pal.working), (std::vector<CRgb>{white, blue}));
    EXPECT_EQ(listener.events.size(), 1u);
}

TEST_F(PalWndTest, PalettesAreChosenByTheirWindowsNames)
{
    CPal other;
    pal.name = L"Sonar";
    other.name = L"Speed";
    CPal* chosen = &other;
    CPalCb palettes(chosen);
    ASSERT_EQ(palettes.List().GetCount(), 3);
    EXPECT_EQ(Text(palettes.List().GetAt(0)->text), L"<Select Here>");
    EXPECT_EQ(Text(palettes.List().GetAt(1)->text), L"Sonar");
    EXPECT_EQ(palettes.List().GetAt(1)->item, &pal);
    EXPECT_EQ(palettes.GetSel(), palettes.List().GetAt(2));

    palettes.rc = CRect(0, 0, 120, 20);
    Open(palettes);
    KeyDown(palettes, VK_UP);
    EXPECT_EQ(chosen, &pal);
    KeyDown(palettes, VK_HOME);
    EXPECT_EQ(chosen, nullptr);
    // Those that came since are there when it opens.
    CPal late;
    ShowParent();
    palettes.Open();
    EXPECT_EQ(palettes.List().GetCount(), 4);
    palettes.Close();
}

TEST_F(PalWndTest, ABarLiesOrStandsAsItsRoomIs)
{
    const auto draw = [&](const CRect& place, int reversed) {
        double start = 0, end = 100;
        CPalBar bar;
        CColTbl tbl(*two);
        tbl.reversed = reversed;
        bar.Init(tbl, start, end);
        bar.rc = place;
        Open(bar);
        auto canvas = std::make_unique<Canvas>(place.Width(), place.Height());
        DrawTo(bar, *canvas);
        return canvas;
    };
    const COLORREF redCol = RGB(red.red, red.green, red.blue);
    const COLORREF greenCol = RGB(green.red, green.green, green.blue);
    for (const int reversed : {0, 1}) {
        const COLORREF first = reversed ? greenCol : redCol;
        const COLORREF last = reversed ? redCol : greenCol;
        const auto lying = draw(CRect(0, 0, 200, 40), reversed);
        EXPECT_LT(lying->Bounds(first).left, lying->Bounds(last).left);
        EXPECT_LT(lying->Bounds(first).bottom, 30); // the values are below
        const auto upright = draw(CRect(0, 0, 60, 200), reversed);
        EXPECT_GT(upright->Bounds(first).bottom, upright->Bounds(last).bottom);
        EXPECT_LT(upright->Bounds(first).right, 45);
    }
    // Too low for values, too small for anything, and without a table.
    EXPECT_EQ(draw(CRect(0, 0, 200, 16), 0)->Bounds(greenCol).bottom, 13);
    draw(CRect(0, 0, 3, 2), 0);
    CPalBar bar;
    EXPECT_EQ(bar.end - bar.start, 1.0);
    bar.rc = CRect(0, 0, 50, 20);
    Open(bar);
    Canvas canvas(50, 20);
    DrawTo(bar, canvas);
    // Bound values are copied at once, and again by an update.
    double start = 3, end = 4;
    bar.Init(*two, start, end);
    start = 1;
    EXPECT_EQ(bar.start, 3.0);
    bar.Update(1);
    EXPECT_EQ(bar.start, 1.0);
}

} // namespace
