#include "windows/MsgTest.h"

namespace
{

class Tipped : public CECtrl
{
public:
    explicit Tipped(const wchar_t* tipText) { tip = tipText; }
    void Draw(CDC* dc) override { DrawBack(dc); }
};

/** Two controls, the second without a tip, in a window, and the mouse on the desktop beside it. */
class CEToolTipTest : public MsgTest
{
protected:
    CEToolTipTest()
    {
        Vant::hoverTime = rest;
        ::SetCursorPos(700, 700);
        m_wnd.CreateEx(0, Vant::wndClass, L"", WS_POPUP, CRect(100, 100, 400, 300), nullptr, 0);
        first.Create(WS_VISIBLE, CRect(0, 0, 100, 50), &m_wnd, 1);
        second.Create(WS_VISIBLE, CRect(0, 100, 100, 150), &m_wnd, 2);
        m_wnd.ShowWindow(SW_SHOWNOACTIVATE);
        m_wnd.SetWindowPos(&CWnd::wndTopMost, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
        vant::test::PumpPending();
    }
    ~CEToolTipTest() override
    {
        Vant::hoverTime = 0.3;
        Tip().text = L"test"; // as at first
    }

    static CEToolTip& Tip() { return Vant::toolTip; }
    static bool IsShown() { return Tip().IsWindowVisible() != FALSE; }

    static void MoveTo(CECtrl& ctrl, CPoint at)
    {
        CPoint screen = at;
        ctrl.ClientToScreen(&screen);
        ::SetCursorPos(screen.x, screen.y);
        ctrl.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(at.x, at.y));
    }
    static bool Comes()
    {
        return vant::test::PumpUntil([] { return IsShown(); }, 3000);
    }
    static bool Goes()
    {
        return vant::test::PumpUntil([] { return !IsShown(); }, 3000);
    }
    /** Whether none comes for several times the rest. */
    static bool StaysAway()
    {
        return !vant::test::PumpUntil([] { return IsShown(); }, 400);
    }

    static constexpr double rest = 0.1; // seconds

    const ScreenLock m_screen;
    CWnd m_wnd;
    Tipped first{L"depth below the keel"};
    Tipped second{L""};
};

} // namespace

TEST_F(CEToolTipTest, ComesAfterTheMouseHasRested)
{
    EXPECT_EQ(Text(Tip().text), L"test");
    EXPECT_EQ(Text(Tip().name), L"ToolTip");
    EXPECT_FALSE(IsShown());
    const HWND focus = ::GetFocus();
    const HWND active = ::GetActiveWindow();
    const ULONGLONG start = ::GetTickCount64();
    MoveTo(first, CPoint(20, 20));
    EXPECT_FALSE(IsShown());
    ASSERT_TRUE(Comes());
    EXPECT_GE(::GetTickCount64() - start, 90u);
    EXPECT_EQ(Text(Tip().text), L"depth below the keel");
    EXPECT_EQ(::GetFocus(), focus);
    EXPECT_EQ(::GetActiveWindow(), active);
    EXPECT_FALSE(PlaceOf(Tip().m_hWnd).PtInRect(CPoint(120, 120)));
    EXPECT_TRUE(Tip().GetExStyle() & WS_EX_TOPMOST);

    MoveTo(first, CPoint(60, 20));
    EXPECT_TRUE(IsShown()) << "it stays while the mouse moves inside";
    first.tip = L"depth below the transducer";
    EXPECT_TRUE(
        vant::test::PumpUntil([] { return Text(Tip().text) == L"depth below the transducer"; }, 3000));

    MoveTo(second, CPoint(20, 20));
    EXPECT_FALSE(IsShown());
    EXPECT_TRUE(StaysAway()) << "a control without a tip";
}

TEST_F(CEToolTipTest, GoesWithTheMouseTheControlAndEveryInput)
{
    MoveTo(first, CPoint(20, 20));
    ASSERT_TRUE(Comes());
    first.SendMessage(WM_MOUSELEAVE);
    EXPECT_FALSE(IsShown());

    for (const UINT message : {UINT{WM_KEYDOWN}, UINT{WM_RBUTTONDOWN}, UINT{WM_MOUSEWHEEL}}) {
        MoveTo(first, CPoint(20, 20));
        ASSERT_TRUE(Comes()) << message;
        first.PostMessage(message, VK_SHIFT);
        EXPECT_TRUE(Goes()) << message;
        MoveTo(first, CPoint(25, 20));
        EXPECT_TRUE(StaysAway()) << message << ": not before the mouse has been elsewhere";
        first.SendMessage(WM_MOUSELEAVE);
    }

    MoveTo(first, CPoint(20, 20));
    ASSERT_TRUE(Comes());
    first.ShowWindow(SW_HIDE);
    EXPECT_FALSE(IsShown());
    first.ShowWindow(SW_SHOWNA);

    MoveTo(first, CPoint(30, 20));
    ASSERT_TRUE(Comes());
    m_wnd.ShowWindow(SW_HIDE);
    EXPECT_TRUE(Goes()) << "the window around it was hidden";
    m_wnd.ShowWindow(SW_SHOWNOACTIVATE);

    MoveTo(first, CPoint(20, 20));
    Vant::Exit();
    EXPECT_EQ(Tip().m_hWnd, nullptr);
    MoveTo(first, CPoint(30, 20));
    vant::test::PumpPending();
}

TEST_F(CEToolTipTest, FitsItsText)
{
    const auto sizeOf = [](const wchar_t* text) {
        Tip().SetText(text);
        return PlaceOf(Tip().m_hWnd).Size();
    };
    const CSize one = sizeOf(L"one");
    const CSize longer = sizeOf(L"one and two");
    EXPECT_GT(longer.cx, one.cx);
    EXPECT_EQ(longer.cy, one.cy);
    const CSize two = sizeOf(L"one\nand two");
    EXPECT_LT(two.cx, longer.cx);
    EXPECT_EQ(two.cy, one.cy + 16);
    const CSize wide =
        sizeOf(L"a text that is so long that one line of the tool tip cannot hold it, so that it has "
               L"to be wrapped");
    EXPECT_LE(wide.cx, CEToolTip::maxWidth + 13);
    EXPECT_GE(wide.cy, one.cy + 16);

    CDpi(192).Set(Tip().m_hWnd);
    const CSize twice = sizeOf(L"one");
    EXPECT_EQ(twice.cy, 2 * one.cy);
    EXPECT_NEAR(twice.cx, 2 * one.cx, 4);
}

TEST_F(CEToolTipTest, IsShownInsideTheScreenBesideTheMouse)
{
    const CRect area = PrimaryWorkArea();
    Tip().SetText(L"a text of some length\non two lines");
    const CPoint points[] = {
        {area.left, area.top},        {area.right - 1, area.top},
        {area.left, area.bottom - 1}, {area.right - 1, area.bottom - 1},
        area.CenterPoint(),
    };
    for (const CPoint& at : points) {
        Tip().ShowAt(at);
        EXPECT_TRUE(IsShown());
        const CRect place = PlaceOf(Tip().m_hWnd);
        EXPECT_TRUE(IsInside(place, area)) << testing::PrintToString(place);
        EXPECT_FALSE(place.PtInRect(at)) << testing::PrintToString(place);
    }
    // The mouse's messages go to what is under it.
    const CRect place = PlaceOf(Tip().m_hWnd);
    EXPECT_EQ(Tip().SendMessage(WM_NCHITTEST, 0, MAKELPARAM(place.left + 1, place.top + 1)), HTTRANSPARENT);
    Tip().Hide();
    EXPECT_FALSE(IsShown());
}
