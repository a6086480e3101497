#include "colour/CColTblCb.h"
#include "colour/CPal.h"
#include "colour/CPalBar.h"
#include "colour/CPalCb.h"
#include "colour/ColourTest.h"
#include "controls/CEText.h"
#include "controls/ControlsTest.h"
#include "controls/WndTest.h"

#include <filesystem>
#include <fstream>

namespace
{

std::uint32_t Pixel(const CRgb& c)
{
    return static_cast<std::uint32_t>(c.red << 16 | c.green << 8 | c.blue);
}

/** A table of so many entries, light to dark. */
std::vector<CRgb> Ramp(int size)
{
    std::vector<CRgb> entries;
    for (int i = 0; i < size; ++i)
        entries.emplace_back(static_cast<unsigned char>(i * 255 / size), static_cast<unsigned char>(90),
                             static_cast<unsigned char>(255 - i * 255 / size));
    return entries;
}

class PalWndTest : public ControlsTest
{
protected:
    PalWndTest()
    {
        two = AddTable(L"Two", {red, green});
        ramp = AddTable(L"Ramp", Ramp(256));
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
    const struct {
        const wchar_t* text;
        CRect place;
    } texts[] = {{L"Select the palette range and colour table", CRect(10, 10, 325, 24)},
                 {L"Start", CRect(10, 26, 70, 46)},
                 {L"Colour Table", CRect(72, 26, 264, 46)},
                 {L"End", CRect(266, 26, 326, 46)}};
    ASSERT_EQ(pal.ctrls.GetCount(), 7);
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(Text(CtrlAt<CEText>(i).text), texts[i].text);
        EXPECT_EQ(CtrlAt<CEText>(i).rc, texts[i].place);
    }
    EXPECT_EQ(CtrlAt<CECtrl>(4).pVal, &pal.start);
    EXPECT_EQ(CtrlAt<CECtrl>(4).rc, CRect(10, 50, 70, 70));
    EXPECT_EQ(CtrlAt<CColTblCb>(5).pTbl, &pal.master);
    EXPECT_EQ(CtrlAt<CColTblCb>(5).rc, CRect(72, 50, 264, 70));
    EXPECT_EQ(CtrlAt<CECtrl>(6).pVal, &pal.end);
    // The bar follows the window.
    const CRect before = pal.barRc;
    EXPECT_EQ(before.left, 10);
    EXPECT_EQ(before.right, 336);
    pal.SetWindowPos(nullptr, 0, 0, 400, 180, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(pal.barRc.right, 390);
}

TEST_F(PalWndTest, AFieldThatIsLeftChangesTheRange)
{
    ShowParent();
    OpenPal();
    CECtrl& end = CtrlAt<CECtrl>(6);
    end.SetFocus();
    end.SetWindowText(L"50");
    pal.SetFocus();
    EXPECT_EQ(pal.end, 50.0);
    EXPECT_EQ(listener.events.size(), 1u);
}

TEST_F(PalWndTest, AChosenTableIsCopiedBeforeTheWindowsAreTold)
{
    OpenPal();
    CColTblCb& tables = CtrlAt<CColTblCb>(5);
    EXPECT_EQ(Text(tables.GetSel()->text), L"<Black>");
    KeyDown(tables, VK_DOWN);
    EXPECT_EQ(pal.master.source, two);
    EXPECT_EQ(Entries(pal.working), (std::vector<CRgb>{red, green}));
    EXPECT_EQ(listener.events.size(), 1u);
    KeyDown(tables, VK_DOWN);
    EXPECT_EQ(Text(pal.master.name), L"Ramp");
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
    tables.SetTbl(nullptr);
    tables.Execute();
    EXPECT_EQ(heard.calls, 3);
    CColTblCb none;
    none.Execute();
}

TEST_F(PalWndTest, TheListOfTablesEndsInTheOneThatFits)
{
    CColTbl copy, foreign;
    const auto fill = [](CColTbl* tbl, CEList& list) {
        CColTblCb tables(tbl);
        CELEnt* const ent = tables.FillCombo(list, nullptr);
        return ent ? Text(ent->text) : L"none";
    };
    CEList list;
    EXPECT_EQ(fill(&copy, list), L"<Black>");
    ASSERT_EQ(list.GetCount(), 3);
    EXPECT_EQ(list.GetAt(0)->item, nullptr);
    EXPECT_EQ(Text(list.GetAt(2)->text), L"Ramp");
    EXPECT_EQ(list.GetAt(2)->item, ramp);
    copy = *ramp;
    CEList again, lost, unbound;
    EXPECT_EQ(fill(&copy, again), L"Ramp");
    copy = foreign;
    EXPECT_EQ(fill(&copy, lost), L"none");
    EXPECT_EQ(fill(nullptr, unbound), L"<Black>");
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
    EXPECT_EQ(canvas.At(11, 10), 0u);
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
    CELEnt black(L"<Black>", nullptr);
    canvas.Fill(0);
    canvas.Dc().SetTextColor(RGB(255, 255, 255));
    tables.DrawEntry(&canvas.Dc(), place, &black, 0);
    EXPECT_FALSE(canvas.Bounds(RGB(255, 255, 255)).IsRectEmpty());
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
    EXPECT_NEAR(pal.offset, 192, 1);

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

/** Answers the dialog that Browse() shows, as its user would. */
class DialogUser
{
public:
    DialogUser(const std::wstring& file, int button)
    {
        s_file = file;
        s_button = button;
        s_seen = false;
        m_timer = ::SetTimer(nullptr, 0, 50, Look);
    }
    ~DialogUser() { ::KillTimer(nullptr, m_timer); }
    DialogUser(const DialogUser&) = delete;
    DialogUser& operator=(const DialogUser&) = delete;
    bool Saw() const { return s_seen; }

private:
    static void CALLBACK Look(HWND, UINT, UINT_PTR, DWORD)
    {
        constexpr int nameField = 0x47C; // cmb13
        const HWND dialog = ::FindWindowW(L"#32770", L"Select palette to load");
        HWND const field = dialog ? ::GetDlgItem(dialog, nameField) : nullptr;
        if (!field)
            return;
        s_seen = true;
        ::SetWindowTextW(field, s_file.c_str());
        ::PostMessageW(dialog, WM_COMMAND, static_cast<WPARAM>(s_button), 0);
    }

    static inline std::wstring s_file;
    static inline int s_button = 0;
    static inline bool s_seen = false;
    UINT_PTR m_timer;
};

TEST_F(PalWndTest, BrowsingLoadsTheChosenFile)
{
    ShowParent();
    OpenPal();
    pal.SetOption(L"Load", L"Two");
    pal.Scroll(1);
    listener.events.clear();
    const auto file = std::filesystem::temp_directory_path() / L"vant-browse.clt";
    std::ofstream(file) << "COLOURTABLE 2 \"Browsed\"\n0 0 160\n255 255 255\n";
    {
        const DialogUser user(file.wstring(), IDCANCEL);
        pal.Browse();
        EXPECT_TRUE(user.Saw());
        EXPECT_EQ(Text(pal.master.name), L"Two");
        EXPECT_TRUE(listener.events.empty());
    }
    {
        const DialogUser user(file.wstring(), IDOK);
        pal.Browse();
    }
    EXPECT_EQ(Text(pal.master.name), L"Browsed");
    EXPECT_EQ(pal.master.source, nullptr);
    EXPECT_EQ(Entries(pal.working), (std::vector<CRgb>{white, blue}));
    EXPECT_EQ(listener.events.size(), 1u);
    std::filesystem::remove(file);
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

TEST_F(PalWndTest, ABarReadsItsVariables)
{
    CPalBar bar;
    EXPECT_EQ(bar.start, 0.0);
    EXPECT_EQ(bar.end, 1.0);
    double start = 3, end = 4;
    bar.Init(*two, start, end);
    EXPECT_EQ(bar.start, 3.0);
    EXPECT_EQ(bar.end, 4.0);
    start = 1;
    EXPECT_EQ(bar.start, 3.0);
    bar.rc = CRect(0, 0, 200, 50);
    Open(bar);
    bar.Update(1);
    EXPECT_EQ(bar.start, 1.0);
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
    CPalBar unbound;
    unbound.rc = CRect(0, 0, 50, 20);
    Open(unbound);
    Canvas canvas(50, 20);
    DrawTo(unbound, canvas);
}

} // namespace
