#include "controls/CEText.h"
#include "controls/RecordingWnd.h"
#include "controls/WndTest.h"
#include "support/MessagePump.h"

#include <map>

namespace
{

using testing::ElementsAre;

constexpr int btn = CECtrl::typeBtn;

class CVantWndInput : public WndTest
{
protected:
    ~CVantWndInput() override { ::DestroyWindow(m_popup); }

    static void MoveMouseOver(CWnd& wnd) { wnd.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(3, 3)); }

    /** A window of the system beside the platform's. */
    HWND Other(DWORD style)
    {
        const HWND wnd = ::CreateWindowExW(0, L"STATIC", L"", WS_CHILD | style, 0, 0, 10, 10, m_popup,
                                           nullptr, nullptr, nullptr);
        ::SetFocus(wnd);
        return wnd;
    }

    const HWND m_popup = ::CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50, nullptr,
                                           nullptr, nullptr, nullptr);
};

/** A window as tall as twenty lines of one button each. */
class TallWnd : public RecordingWnd
{
public:
    TallWnd()
    {
        CCtrlCat& cat = *GetCat(L"Lines", kindStacked, 1, 0);
        for (int i = 0; i < 20; ++i) {
            lines.push_back(cat.InsCtrl(60, btn, L"x"));
            cat.NewLn();
        }
        corner = GetCat(L"Corner", anchorTopRight, 0, 0)->InsCtrl(60, btn, L"y");
    }
    bool HasBar() const
    {
        CRect whole;
        GetWindowRect(&whole);
        return ClientRc().Width() < Dpi().ToUnits(whole).Width();
    }
    std::vector<CECtrl*> lines;
    CECtrl* corner;
    // 24 above the section and 24 for its header; 10 to the first of twenty lines of 24.
    static constexpr int content = 24 + 24 + 10 + 20 * 24;
    // The last button, 20 high and 18 below the section's top, ends before that.
    static constexpr int lastBottom = 24 + 18 + 10 + 19 * 24 + 20;
};

} // namespace

TEST_F(CVantWndInput, MouseBringsTheFocusUnlessItIsKept)
{
    RecordingWnd wnd;
    wnd.CreatePopup();
    wnd.ShowWindow(SW_SHOW);
    vant::test::PumpPending();

    ::SetFocus(nullptr);
    MoveMouseOver(wnd);
    EXPECT_EQ(::GetFocus(), wnd.m_hWnd) << "no window has it";

    Other(0);
    MoveMouseOver(wnd);
    EXPECT_EQ(::GetFocus(), wnd.m_hWnd) << "another one has it";

    const HWND keeper = Other(0x80);
    MoveMouseOver(wnd);
    EXPECT_EQ(::GetFocus(), keeper) << "one that keeps it";

    ::SetFocus(m_popup);
    MoveMouseOver(wnd);
    EXPECT_EQ(::GetFocus(), m_popup) << "a pop-up has it";

    const HWND plain = Other(0);
    CVantWnd::s_inhibitFocus = 1;
    MoveMouseOver(wnd);
    EXPECT_EQ(::GetFocus(), plain) << "inhibited";
    CVantWnd::s_inhibitFocus = 0;
    MoveMouseOver(wnd);
    EXPECT_EQ(::GetFocus(), wnd.m_hWnd);
}

TEST_F(CVantWndInput, FocusComesBackWithTheActivation)
{
    RecordingWnd wnd;
    CECtrl* const first = wnd.InsCtrl(20, btn, L"a");
    CECtrl* const second = wnd.InsCtrl(20, btn, L"b");
    wnd.CreatePopup();
    RecordingWnd other;
    other.CreatePopup(50, 50);
    wnd.ShowWindow(SW_SHOW);
    other.ShowWindow(SW_SHOW);
    wnd.SetActiveWindow();
    second->SetFocus();
    other.SetActiveWindow();
    ASSERT_NE(::GetFocus(), second->m_hWnd);
    wnd.SetActiveWindow();
    EXPECT_EQ(::GetFocus(), second->m_hWnd);
    other.SetActiveWindow();
    second->state = CECtrl::stShown;
    second->Update(0);
    wnd.SetActiveWindow();
    EXPECT_NE(::GetFocus(), second->m_hWnd) << "it is disabled now";
    EXPECT_NE(::GetFocus(), first->m_hWnd);
}

TEST_F(CVantWndInput, TabGoesThroughAllControlsAndWindows)
{
    RecordingWnd wnd;
    CCtrlCat& cat = *wnd.GetCat(L"Section", CCtrlCat::kindStacked, 1, 0);
    std::map<HWND, std::wstring> names;
    const auto insert = [](CCtrlCat& into, const wchar_t* label) { return into.InsCtrl(20, btn, label); };
    std::vector<CECtrl*> ctrls = {insert(cat, L"in section")};
    ctrls.push_back(insert(wnd, L"own"));
    CECtrl* const off = insert(wnd, L"disabled");
    off->state = CECtrl::stShown;
    CECtrl* const hidden = insert(wnd, L"hidden");
    hidden->state = CECtrl::stEnabled;
    wnd.InsText(20, L"text");
    ctrls.push_back(insert(wnd, L"own 2"));
    wnd.CreatePopup();
    RecordingWnd child;
    ctrls.push_back(insert(child, L"in child"));
    child.CreateChild(wnd, {200, 0, 300, 100});
    RecordingWnd sibling;
    ctrls.push_back(insert(sibling, L"in sibling"));
    sibling.CreateChild(wnd, {300, 0, 400, 100});
    RecordingWnd unseen;
    insert(unseen, L"in unseen");
    unseen.CreateChild(wnd, {300, 100, 400, 200});
    unseen.ShowWindow(SW_HIDE);
    wnd.ShowWindow(SW_SHOW);
    vant::test::PumpPending();
    for (const CECtrl* ctrl : ctrls)
        names[ctrl->m_hWnd] = ctrl->text;
    const auto walk = [&](bool back) {
        std::wstring order;
        wnd.SetFocus();
        for (int i = 0; i < 7; ++i) {
            if (back)
                PressKey(::GetFocus(), VK_TAB, {VK_SHIFT});
            else
                PressKey(VK_TAB);
            const HWND focus = ::GetFocus();
            order += (names.contains(focus) ? names[focus] : std::wstring(L"box")) + L", ";
        }
        return order;
    };
    EXPECT_EQ(walk(false), L"own, own 2, box, in section, in child, in sibling, own, ");
    EXPECT_EQ(walk(true), L"in sibling, in child, in section, box, own 2, own, in sibling, ");

    cat.expanded = 0;
    wnd.LayoutWnd();
    EXPECT_EQ(walk(false), L"own, own 2, box, in child, in sibling, own, own 2, ");

    // Without the keyboard; within one window only.
    EXPECT_EQ(child.NextCtrl(ctrls[3], false), static_cast<CWnd*>(ctrls[3]));
    EXPECT_EQ(wnd.NextCtrl(ctrls[3], false), static_cast<CWnd*>(ctrls[4]));
    EXPECT_EQ(wnd.NextCtrl(nullptr, true), static_cast<CWnd*>(ctrls[4]));
    RecordingWnd empty;
    EXPECT_EQ(empty.NextCtrl(nullptr, false), nullptr);
    empty.CreatePopup();
    EXPECT_EQ(empty.NextCtrl(nullptr, false), nullptr);
}

TEST_F(CVantWndInput, TallContentScrolls)
{
    TallWnd wnd;
    wnd.CreatePopup(400, 1000);
    EXPECT_FALSE(wnd.HasBar());
    wnd.MoveWindow(0, 0, 400, 200);
    ASSERT_TRUE(wnd.HasBar());
    CRect client;
    wnd.GetClientRect(&client);
    EXPECT_EQ(client.right, 388);
    EXPECT_FALSE(wnd.GetStyle() & WS_VSCROLL);
    EXPECT_EQ(PlaceOf(*wnd.corner).right, client.right - 5 - 72 + 70) << "beside the bar";
    constexpr int last = TallWnd::content - 200;
    const CRect firstLine = PlaceOf(*wnd.lines[0]);
    const CRect anchored = PlaceOf(*wnd.corner);
    wnd.ScrollTo(50);
    EXPECT_EQ(PlaceOf(*wnd.lines[0]), firstLine - CPoint(0, 50));
    EXPECT_EQ(PlaceOf(*wnd.corner), anchored);
    EXPECT_EQ(wnd.ScrollPos(), 50);
    EXPECT_EQ(wnd.GetMgrY(), TallWnd::content - 50);

    const auto posAfter = [&](UINT message, WPARAM wParam) {
        wnd.SendMessage(message, wParam);
        return wnd.ScrollPos();
    };
    const struct {
        UINT message;
        WPARAM wParam;
        int pos;
    } steps[] = {
        {WM_KEYDOWN, VK_HOME, 0},
        {WM_KEYDOWN, VK_UP, 0},
        {WM_KEYDOWN, VK_DOWN, 24},
        {WM_KEYDOWN, VK_NEXT, 24 + 176},
        {WM_KEYDOWN, VK_PRIOR, 24},
        {WM_KEYDOWN, VK_END, last},
        {WM_KEYDOWN, VK_NEXT, last},
        {WM_VSCROLL, SB_LINEUP, last - 24},
        {WM_VSCROLL, SB_PAGEUP, last - 24 - 176},
        {WM_VSCROLL, MAKEWPARAM(SB_THUMBTRACK, 33), 33},
        {WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 34), 34},
        {WM_VSCROLL, SB_ENDSCROLL, 34},
        {WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-120)), 34 + 72},
        {WM_MOUSEWHEEL, MAKEWPARAM(0, 40), 34 + 48},
        {WM_MOUSEWHEEL, MAKEWPARAM(0, 5), 34 + 45},
        {WM_VSCROLL, SB_BOTTOM, last},
    };
    for (const auto& step : steps)
        EXPECT_EQ(posAfter(step.message, step.wParam), step.pos) << step.message << " " << step.wParam;

    // What becomes smaller takes the offset and the bar with it.
    wnd.MoveWindow(0, 0, 400, 300);
    EXPECT_EQ(wnd.ScrollPos(), TallWnd::content - 300);
    wnd.GetCat(L"Lines", 0, 0, 0)->expanded = 0;
    wnd.LayoutWnd();
    EXPECT_EQ(wnd.ScrollPos(), 0);
    EXPECT_FALSE(wnd.HasBar());
    EXPECT_EQ(posAfter(WM_KEYDOWN, VK_END), 0);
}

TEST_F(CVantWndInput, TheBarPagesAndDragsInEveryScale)
{
    for (const int dpi : {96, 144}) {
        SCOPED_TRACE(dpi);
        TallWnd wnd;
        wnd.CreatePopup(400, 1000, WS_VSCROLL);
        const CDpi scale(dpi);
        CRect place(30, 40, 30 + scale.ToPx(400), 40 + scale.ToPx(200));
        wnd.SendMessage(WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&place));
        ASSERT_EQ(wnd.ClientRc(), CRect(0, 0, 388, 200));
        constexpr int last = TallWnd::content - 200;
        constexpr int thumb = 200 * 200 / TallWnd::content;
        constexpr int way = 200 - thumb;

        // Points of the bar are given in units below its top.
        const auto onScreen = [&](int x, int y) {
            return MAKELPARAM(30 + scale.ToPx(x), 40 + scale.ToPx(y));
        };
        const auto press = [&](int y) { wnd.SendMessage(WM_NCLBUTTONDOWN, HTBORDER, onScreen(394, y)); };
        const auto move = [&](int y) {
            const int px = scale.ToPx(y);
            wnd.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(5, static_cast<WORD>(px)));
            return wnd.ScrollPos();
        };
        EXPECT_EQ(wnd.SendMessage(WM_NCHITTEST, 0, onScreen(394, 20)), HTBORDER);
        EXPECT_EQ(wnd.SendMessage(WM_NCHITTEST, 0, onScreen(380, 20)), HTCLIENT);
        press(thumb + 2);
        EXPECT_EQ(wnd.ScrollPos(), 176);
        EXPECT_NE(::GetCapture(), wnd.m_hWnd) << "a page is turned once";
        press(2);
        EXPECT_EQ(wnd.ScrollPos(), 0);

        press(10);
        EXPECT_EQ(::GetCapture(), wnd.m_hWnd);
        EXPECT_EQ(move(10), 0);
        EXPECT_EQ(move(10 + way / 2), (last * (way / 2) * 2 + way) / (2 * way));
        EXPECT_EQ(move(190), last);
        EXPECT_EQ(move(-50), 0);
        EXPECT_EQ(move(1000), last);
        wnd.SendMessage(WM_LBUTTONUP);
        EXPECT_NE(::GetCapture(), wnd.m_hWnd);
        EXPECT_EQ(move(0), last);

        // Who loses the mouse drags no longer, and neither does one without a bar.
        press(190);
        move(100);
        const int reached = wnd.ScrollPos();
        EXPECT_LT(reached, last);
        ::SetCapture(wnd.corner->m_hWnd);
        EXPECT_EQ(move(0), reached);
        ::ReleaseCapture();
        wnd.ScrollTo(0);
        press(10);
        wnd.GetCat(L"Lines", 0, 0, 0)->expanded = 0;
        wnd.LayoutWnd();
        EXPECT_FALSE(wnd.HasBar());
        EXPECT_NE(::GetCapture(), wnd.m_hWnd);

        // The bar goes with its window.
        wnd.GetCat(L"Lines", 0, 0, 0)->expanded = 1;
        wnd.LayoutWnd();
        press(10);
        wnd.DestroyWindow();
        wnd.CreatePopup(400, 1000);
        EXPECT_FALSE(wnd.HasBar());
        wnd.MoveWindow(0, 0, 400, 200);
        EXPECT_TRUE(wnd.HasBar());
        EXPECT_EQ(move(100), 0);
    }
}

TEST_F(CVantWndInput, TheBarIsDrawnInTheColoursOfTheLibrary)
{
    TallWnd wnd;
    wnd.CreatePopup(400, 200);
    wnd.ShowWindow(SW_SHOWNOACTIVATE);
    vant::test::PumpPending();
    const auto pixel = [&](int x, int y) {
        CWindowDC dc(&wnd);
        return dc.GetPixel(x, y);
    };
    EXPECT_EQ(pixel(388, 10), Vant::slate);
    EXPECT_EQ(pixel(390, 10), Vant::med);
    EXPECT_EQ(pixel(394, 190), Vant::slate);
    wnd.SendMessage(WM_NCMOUSEMOVE, HTBORDER, MAKELPARAM(394, 10));
    EXPECT_EQ(pixel(390, 10), Vant::cyan) << "hovered: framed";
    EXPECT_EQ(pixel(394, 10), Vant::med);
    wnd.SendMessage(WM_NCMOUSEMOVE, HTBORDER, MAKELPARAM(394, 190));
    EXPECT_EQ(pixel(390, 10), Vant::med) << "beside the thumb";
    wnd.SendMessage(WM_NCLBUTTONDOWN, HTBORDER, MAKELPARAM(394, 10));
    EXPECT_EQ(pixel(394, 10), Vant::cyan) << "held";
    ::ReleaseCapture();
    EXPECT_EQ(pixel(394, 10), Vant::med);
    wnd.ScrollTo(1000);
    EXPECT_EQ(pixel(394, 190), Vant::med);
    EXPECT_EQ(pixel(394, 10), Vant::slate);
}

TEST_F(CVantWndInput, TabBringsTheControlIntoView)
{
    TallWnd wnd;
    wnd.CreatePopup(400, 200);
    wnd.ShowWindow(SW_SHOW);
    vant::test::PumpPending();
    const auto tabTo = [&](int line) {
        const CECtrl* const from = wnd.lines[static_cast<std::size_t>(line - 1)];
        wnd.SetFocus();
        ::SetFocus(from->m_hWnd);
        PressKey(VK_TAB);
        EXPECT_EQ(::GetFocus(), wnd.lines[static_cast<std::size_t>(line)]->m_hWnd);
        return PlaceOf(*wnd.lines[static_cast<std::size_t>(line)]);
    };
    EXPECT_EQ(tabTo(19).bottom, 200);
    EXPECT_EQ(wnd.ScrollPos(), TallWnd::lastBottom - 200);
    EXPECT_EQ(tabTo(15).top, 200 - 20 - 4 * 24) << "in view already";
    EXPECT_EQ(tabTo(2).top, 0);
}
