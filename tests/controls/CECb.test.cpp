#include "controls/CECb.h"
#include "controls/InputHost.h"
#include "controls/RecordingWnd.h"
#include "support/MessagePump.h"

#include <functional>
#include <utility>

using namespace vant::test;
using testing::ElementsAre;

namespace
{

/** A combo box that sets its callbacks itself, as derived ones do. */
class PortCb : public CECb
{
public:
    PortCb()
    {
        SetFill(this, static_cast<FillFn>(&PortCb::FillCombo));
        SetDraw(this, static_cast<DrawFn>(&PortCb::DrawEntry));
    }
    CELEnt* FillCombo(CEList& list, void*)
    {
        ++fills;
        list.Add(L"<None>", nullptr);
        for (int& port : ports)
            list.Add(L"Port", &port);
        return nullptr;
    }
    void DrawEntry(CDC* dc, const CRect& r, CELEnt* ent, int selected)
    {
        dc->FillSolidRect(r, ent->item ? colour : RGB(1, 2, 3));
        if (ent == GetSel() && !IsOpen())
            box = {r, selected};
    }

    static constexpr COLORREF colour = RGB(200, 100, 50);
    int ports[3] = {};
    int fills = 0;
    std::pair<CRect, int> box;
};

class Listener : public CObject
{
public:
    void OnChange(int value)
    {
        heard.push_back(value);
        if (also)
            std::exchange(also, nullptr)();
    }
    std::vector<int> heard;
    std::function<void()> also;
};

/** A combo box of 30 numbers, 120 x 20, at (60, 50) of the screen. */
class CECbTest : public WndTest
{
protected:
    CECbTest()
    {
        for (int i = 0; i < 30; ++i) {
            CString text;
            text.Format(L"%d Hz", 10 * i);
            cb.Add(text, 10 * i);
        }
        cb.Init(rate);
        cb.SetCallback(&listener, static_cast<CEVal::CbInt>(&Listener::OnChange));
        Create(cb);
    }
    void Create(CECb& box, const CRect& place = CRect(20, 10, 140, 30))
    {
        ASSERT_EQ(box.Create(box.WndStyle(), place, &host, 3), 1);
        box.SetFocus();
        PumpPending();
    }
    /** A click with a mouse, which is at that place of the screen afterwards. */
    static void ClickScreen(CPoint at)
    {
        ::SetCursorPos(at.x, at.y);
        PumpPending();
        ::mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
        PumpPending();
        ::mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
        PumpPending();
    }
    void Alt(UINT key, CWnd& wnd) const
    {
        wnd.SendMessage(WM_SYSKEYDOWN, VK_MENU, 1 << 29);
        if (key)
            wnd.SendMessage(WM_SYSKEYDOWN, key, 1 << 29);
        wnd.SendMessage(WM_SYSKEYUP, VK_MENU, static_cast<LPARAM>(0xC0000001));
    }
    std::vector<int> Heard() { return std::exchange(listener.heard, {}); }

    InputHost host;
    Listener listener;
    int rate = 50;
    CECb cb;
};

} // namespace

TEST_F(CECbTest, KeysChooseAtOnceWhileItIsClosed)
{
    EXPECT_EQ(cb.GetSel()->text, L"50 Hz") << "from the start";
    PressKey(cb, VK_DOWN);
    PressKey(cb, VK_END);
    EXPECT_THAT(Heard(), ElementsAre(60, 290));
    PressKey(cb, VK_PRIOR);
    EXPECT_THAT(Heard(), ElementsAre(180)) << "as far as a page of the open list";
    Type(cb, L"22");
    EXPECT_THAT(Heard(), ElementsAre(200, 220));
    cb.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-60)), 0);
    EXPECT_THAT(Heard(), ElementsAre());
    cb.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-60)), 0);
    EXPECT_THAT(Heard(), ElementsAre(230));
    PressKey(cb, VK_RETURN);
    PressKey(cb, VK_ESCAPE);
    EXPECT_FALSE(cb.IsOpen());
    rate = 70;
    cb.Update(1);
    EXPECT_EQ(cb.GetSel()->text, L"70 Hz");
}

TEST_F(CECbTest, TheOpenListTakesTheKeysAndStoresTheChoice)
{
    PressKey(cb, VK_F4);
    ASSERT_TRUE(cb.IsOpen());
    EXPECT_EQ(::GetFocus(), cb.m_hWnd);
    EXPECT_FALSE(::GetActiveWindow() == cb.List().m_hWnd);
    PressKey(cb, VK_DOWN);
    PressKey(cb, VK_DOWN);
    EXPECT_THAT(Heard(), ElementsAre());
    EXPECT_EQ(rate, 50) << "not before it is chosen";
    host.keysSeen.clear();
    PressKey(cb, VK_RETURN);
    EXPECT_FALSE(cb.IsOpen());
    EXPECT_THAT(Heard(), ElementsAre(70));
    EXPECT_THAT(host.keysSeen, ElementsAre()) << "the window around it does not see Enter";

    // Escape, Alt alone and other keys with Alt leave everything as it was.
    for (const std::function<void()>& leave : std::vector<std::function<void()>>{
             [this] { PressKey(cb, VK_ESCAPE); }, [this] { Alt(0, cb); }, [this] { Alt('X', cb); },
             [this] { host.SetFocus(); }, [this] { cb.Close(); }}) {
        cb.SetFocus();
        Alt(VK_DOWN, cb);
        ASSERT_TRUE(cb.IsOpen());
        PressKey(cb, VK_END);
        leave();
        EXPECT_FALSE(cb.IsOpen());
        EXPECT_EQ(rate, 70);
        EXPECT_EQ(cb.GetSel()->text, L"70 Hz");
    }
    cb.SetFocus();
    Type(cb, L" ");
    PressKey(cb, VK_HOME);
    Alt(VK_UP, cb);
    EXPECT_THAT(Heard(), ElementsAre(0));
    PressKey(cb, VK_F4);
    PressKey(cb, VK_F4);
    EXPECT_THAT(Heard(), ElementsAre(0)) << "the same entry is a choice, too";
}

TEST_F(CECbTest, TabChoosesAndGoesOn)
{
    CVantWnd wnd;
    wnd.name = L"Form";
    int first = 50;
    auto* const box = static_cast<CECb*>(wnd.InsCtrl(100, CECtrl::typeCb, first));
    auto* const list = static_cast<CEList*>(wnd.InsCtrl(100, CECtrl::typeList, first));
    ASSERT_TRUE(box && list);
    box->Add(L"50", 50);
    box->Add(L"60", 60);
    ASSERT_TRUE(wnd.CreateWnd(wnd.name, WS_POPUP, CRect(40, 40, 340, 140)));
    wnd.ShowWindow(SW_SHOWNOACTIVATE);
    box->SetFocus();
    PumpPending();
    PressKey(*box, VK_F4);
    PressKey(*box, VK_DOWN);
    PressKey(*box, VK_TAB);
    EXPECT_FALSE(box->IsOpen());
    EXPECT_EQ(first, 60);
    EXPECT_EQ(::GetFocus(), list->m_hWnd);
    wnd.DestroyWindow();
}

TEST_F(CECbTest, TheMouseOpensChoosesAndCloses)
{
    const CRect box = ScreenPlaceOf(cb);
    ClickScreen(box.CenterPoint());
    ASSERT_TRUE(cb.IsOpen());
    const CRect drop = ScreenPlaceOf(cb.List());
    EXPECT_EQ(drop, CRect(box.left, box.bottom, box.right, box.bottom + 12 * 20 + 4));
    EXPECT_EQ(cb.List().First(), 0);
    ClickScreen(CPoint(drop.left + 20, drop.top + 2 + 3 * 20 + 5));
    EXPECT_FALSE(cb.IsOpen());
    EXPECT_THAT(Heard(), ElementsAre(30));
    EXPECT_EQ(::GetFocus(), cb.m_hWnd);

    ClickScreen(box.CenterPoint());
    ClickScreen(box.CenterPoint());
    EXPECT_FALSE(cb.IsOpen());

    // A click elsewhere closes the list and reaches what is there.
    ClickScreen(box.CenterPoint());
    ASSERT_TRUE(cb.IsOpen());
    CECb other;
    other.Create(other.WndStyle(), CRect(200, 10, 300, 30), &host, 4);
    ClickScreen(ScreenPlaceOf(other).CenterPoint());
    EXPECT_FALSE(cb.IsOpen());
    EXPECT_TRUE(other.IsOpen());
    other.Close();

    // Pressed on the box, released on an entry.
    cb.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    const CPoint at(5, 20 + 2 + 20 + 5);
    cb.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(at.x, at.y));
    cb.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(at.x, at.y));
    EXPECT_FALSE(cb.IsOpen());
    EXPECT_THAT(Heard(), ElementsAre(10));
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(CECbTest, TheListFollowsItsBox)
{
    // Nobody tells the box that a window around it was moved, hidden or disabled.
    RecordingWnd page;
    page.CreateChild(host, CRect(0, 0, 300, 150));
    CECb box;
    ASSERT_EQ(box.Create(box.WndStyle(), CRect(20, 50, 140, 70), &page, 3), 1);
    for (const std::function<void()>& change : std::vector<std::function<void()>>{
             [&] { page.MoveWindow(0, 10, 300, 150); }, [&] { page.ShowWindow(SW_HIDE); }}) {
        ASSERT_EQ(box.Open(), 1);
        change();
        EXPECT_TRUE(PumpUntil([&] { return !box.IsOpen(); }));
    }
    EXPECT_EQ(box.Open(), 0) << "hidden";
    cb.state = CECtrl::stShown;
    cb.Update(0);
    EXPECT_EQ(cb.Open(), 0) << "disabled";
    cb.state = 3;
    cb.Update(0);
    ASSERT_EQ(cb.Open(), 1);
    rate = 120;
    cb.Update(0);
    PressKey(cb, VK_ESCAPE);
    EXPECT_EQ(cb.GetSel()->text, L"120 Hz");
    ASSERT_EQ(cb.Open(), 1);
    cb.DestroyWindow();
    EXPECT_FALSE(cb.IsOpen());
}

TEST_F(CECbTest, ACallbackMayDestroyTheBoxWhileItsListIsOpen)
{
    ASSERT_EQ(cb.Open(), 1);
    listener.also = [this] { cb.DestroyWindow(); };
    const LPARAM at = MAKELPARAM(20, 5);
    cb.List().SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, at);
    cb.List().SendMessage(WM_LBUTTONUP, 0, at);
    EXPECT_EQ(cb.m_hWnd, nullptr);
    EXPECT_FALSE(cb.IsOpen());
    EXPECT_EQ(rate, 0);
}

TEST_F(CECbTest, DerivedBoxesFillAndDrawThemselves)
{
    PortCb ports;
    void* chosen = &ports.ports[1];
    ports.Init(&chosen);
    Create(ports, CRect(20, 60, 140, 80));
    EXPECT_EQ(ports.fills, 1);
    EXPECT_EQ(ports.GetSel()->Index(), 2);
    EXPECT_EQ(PixelOf(ports, 30, 10), PortCb::colour);
    EXPECT_EQ(ports.box.first, CRect(2, 2, 100, 18));
    EXPECT_EQ(ports.box.second, 1) << "it has the focus";
    PressKey(ports, VK_F4);
    EXPECT_EQ(ports.fills, 2) << "anew for every opening";
    PressKey(ports, VK_HOME);
    PressKey(ports, VK_RETURN);
    EXPECT_EQ(chosen, nullptr);
    EXPECT_EQ(ports.GetSel()->text, L"<None>");
}

TEST_F(CECbTest, VerticalBoxesOpenToTheSide)
{
    PortCb ports;
    void* chosen = &ports.ports[0];
    ports.Init(&chosen);
    ports.layout = CECb::layoutRight;
    Create(ports, CRect(200, 10, 230, 150));
    EXPECT_EQ(PixelOf(ports, 15, 60), PortCb::colour);
    EXPECT_EQ(ports.box.first, CRect(2, 2, 28, 110));
    PressKey(ports, VK_F4);
    const CRect box = ScreenPlaceOf(ports);
    EXPECT_EQ(ScreenPlaceOf(ports.List()), CRect(box.right, box.top, box.right + 4 * 26 + 4, box.bottom));
    PressKey(ports, VK_RIGHT);
    PressKey(ports, VK_RETURN);
    EXPECT_EQ(chosen, &ports.ports[1]);
    ports.layout = CECb::layoutLeft;
    PressKey(ports, VK_F4);
    EXPECT_EQ(ScreenPlaceOf(ports.List()).right, box.left);
    ports.Close();
}

TEST_F(CECbTest, TheListStaysInsideTheScreen)
{
    RECT work;
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    CWnd corner;
    corner.CreateEx(WS_EX_TOOLWINDOW, Vant::wndClass, L"corner", WS_POPUP,
                    CRect(work.right - 100, work.bottom - 100, work.right, work.bottom), nullptr, 0);
    CDpi().Set(corner);
    corner.ShowWindow(SW_SHOWNOACTIVATE);
    CECb low;
    for (int i = 0; i < 30; ++i)
        low.Add(L"Entry", i);
    low.dropW = 300;
    ASSERT_EQ(low.Create(low.WndStyle(), CRect(20, 10, 140, 30), &corner, 3), 1);
    ASSERT_EQ(low.Open(), 1);
    const CRect box = ScreenPlaceOf(low);
    const CRect drop = ScreenPlaceOf(low.List());
    EXPECT_EQ(drop.bottom, box.top) << "upwards";
    EXPECT_EQ(drop.right, work.right);
    EXPECT_EQ(drop.Width(), 300);
    EXPECT_EQ((drop.Height() - 4) % 20, 0);
    EXPECT_EQ(low.List().Page(), 12);
    corner.DestroyWindow();
}
