#include "controls/CEMenu.h"
#include "controls/CVantWnd.h"
#include "controls/InputHost.h"
#include "controls/RecordingWnd.h"
#include "controls/detail/Accel.h"
#include "controls/detail/MenuRows.h"
#include "support/MessagePump.h"

#include <deque>
#include <functional>
#include <utility>

using namespace vant::test;
using testing::ElementsAre;
using vant::detail::Accel;
using vant::detail::MenuRows;
using vant::detail::ParseAccel;

namespace
{

constexpr UINT runStep = WM_APP + 1;
constexpr UINT_PTR giveUp = 77;

/** A window that does things while a menu is open over it, and has callbacks. */
class MenuHost : public InputHost
{
public:
    using InputHost::InputHost;

    void OnNone() { heard.push_back(-1); }
    void OnPtr(void* data) { heard.push_back(*static_cast<int*>(data)); }
    void OnClear(void* menu) { static_cast<CEMenu*>(menu)->Clear(); }

    std::vector<int> heard;
    std::vector<UINT> seen;
    std::deque<std::function<void()>> steps;
    CEMenu* watched = nullptr;

protected:
    LRESULT WindowProc(UINT message, WPARAM w, LPARAM l) override
    {
        if (message == runStep) {
            const auto step = std::move(steps.front());
            steps.pop_front();
            step();
        } else if (message == WM_TIMER && w == giveUp) {
            ADD_FAILURE() << "the menu stays open";
            watched->Cancel();
        } else if (message == WM_LBUTTONDOWN || message == WM_KEYDOWN || message == WM_MOUSEMOVE) {
            seen.push_back(message);
        }
        return InputHost::WindowProc(message, w, l);
    }
};

/** A menu of six rows over a window, with its info messages recorded. */
class CEMenuTest : public WndTest
{
protected:
    CEMenuTest()
    {
        receiver.name = L"Receiver";
        receiver.CreatePopup(10, 10);
        CVantWnd::s_infoRx.AddTail(&receiver);
        host.watched = &menu;
        host.SetTimer(giveUp, 20000, nullptr);
        menu.Add(L"&Centre here", &host, static_cast<CEVal::CbNone>(&MenuHost::OnNone));
        menu.Add(L"&Grid\tCtrl+G", 7100, &grid)->Check(grid, 2);
        menu.AddSep();
        menu.Add(L"&Not now", 7200)->Enable(0);
        CEMenu* const range = menu.AddSub(L"&Range");
        for (int i = 0; i < 3; ++i)
            range->Add(i == 0 ? L"50 m" : i == 1 ? L"100 m\tF6" : L"200 m")->Choice(metres, 50 << i);
        menu.Add(L"Goto", &host, static_cast<CEVal::CbPtr>(&MenuHost::OnPtr), &number);
    }
    ~CEMenuTest() override { CVantWnd::s_infoRx.RemoveAt(CVantWnd::s_infoRx.Find(&receiver)); }

    void Key(UINT key) { ::PostMessageW(host, WM_KEYDOWN, key, 1); }
    void Keys(const std::vector<UINT>& keys)
    {
        for (const UINT key : keys)
            Key(key);
    }
    void Do(std::function<void()> step)
    {
        host.steps.push_back(std::move(step));
        ::PostMessageW(host, runStep, 0, 0);
    }
    /** Moves the mouse, by message, to a place of a menu's window. */
    static void Mouse(CEMenu& at, UINT message, int x, int y)
    {
        ::PostMessageW(at.m_hWnd, message, 0, MAKELPARAM(x, y));
    }
    CEMEnt* Track() { return menu.TrackPopup(CPoint(100, 100), &host); }
    CString Chosen()
    {
        const CEMEnt* const ent = Track();
        EXPECT_FALSE(menu.IsOpen());
        return ent ? ent->Label() : CString(L"-");
    }
    CEMenu& Sub() { return *menu.GetAt(4)->sub; }

    MenuHost host;
    RecordingWnd receiver;
    int grid = 1;
    int metres = 100;
    int number = 42;
    CEMenu menu;
};

} // namespace

TEST(MenuKeys, AreReadAsTheyAreShown)
{
    EXPECT_EQ(ParseAccel(L"Ctrl+S"), (Accel{'S', true, false, false}));
    EXPECT_EQ(ParseAccel(L" ctrl + shift + s "), (Accel{'S', true, true, false}));
    EXPECT_EQ(ParseAccel(L"Shift+F12"), (Accel{VK_F12, false, true, false}));
    EXPECT_EQ(ParseAccel(L"Alt+Enter"), (Accel{VK_RETURN, false, false, true}));
    EXPECT_EQ(ParseAccel(L"Del"), (Accel{VK_DELETE, false, false, false}));
    EXPECT_EQ(ParseAccel(L"PgUp"), (Accel{VK_PRIOR, false, false, false}));
    EXPECT_EQ(ParseAccel(L"Ctrl++"), (Accel{VK_OEM_PLUS, true, false, false}));
    EXPECT_EQ(ParseAccel(L"Ctrl+Num -"), (Accel{VK_SUBTRACT, true, false, false}));
    EXPECT_EQ(ParseAccel(L"F24"), (Accel{VK_F24, false, false, false}));
    for (const wchar_t* const none : {L"", L"+", L"S", L"Shift+S", L"Space", L"Num +", L"F25", L"F0", L"F1x",
                                      L"Ctrl+", L"Win+S", L"Ctrl+Shift", L"Click", L"Ctrl S", L"Ctrl+\x00DF"})
        EXPECT_FALSE(ParseAccel(none)) << Text(none);
    EXPECT_EQ(vant::detail::MnemonicOf(L"Save && e&xit"), L'X');
    EXPECT_EQ(vant::detail::MnemonicOf(L"Save &"), L'\0');
}

TEST(MenuRowsTest, ScrollWhatDoesNotFit)
{
    MenuRows rows;
    rows.Set({24, 8, 24, 24, 8, 24});
    EXPECT_FALSE(rows.IsScrolled());
    EXPECT_EQ(rows.Total(), 112);
    EXPECT_EQ(rows.RowAt(31), 1);
    EXPECT_EQ(rows.RowAt(32), 2);
    EXPECT_EQ(rows.RowAt(-1), -1);
    EXPECT_EQ(rows.RowAt(112), -1);

    rows.SetRoom(100); // 52 between the arrows
    EXPECT_TRUE(rows.IsScrolled());
    EXPECT_EQ(rows.ArrowAt(23), -1);
    EXPECT_EQ(rows.ArrowAt(24), 0);
    EXPECT_EQ(rows.ArrowAt(76), 1);
    EXPECT_EQ(rows.RowAt(24), 0);
    EXPECT_EQ(rows.RowAt(23), -1);
    EXPECT_FALSE(rows.IsInView(2));
    EXPECT_EQ(rows.RowAt(60), -1) << "not a part of a row";
    EXPECT_TRUE(rows.Show(5));
    EXPECT_TRUE(rows.IsInView(5) && rows.AtEnd());
    EXPECT_EQ(rows.First(), 4);
    EXPECT_FALSE(rows.ScrollTo(99));
    EXPECT_TRUE(rows.Show(0));
    EXPECT_EQ(rows.First(), 0);
    rows.SetRoom(10); // no room at all
    rows.Show(3);
    EXPECT_EQ(rows.RowAt(5), -1);
}

TEST_F(CEMenuTest, KeysGoThroughTheEntriesAndChoose)
{
    Keys({VK_DOWN, VK_RETURN});
    EXPECT_EQ(Chosen(), L"&Centre here");
    EXPECT_THAT(host.heard, ElementsAre(-1));

    Keys({VK_UP, VK_RETURN});
    EXPECT_EQ(Chosen(), L"Goto") << "the last one";
    EXPECT_THAT(host.heard, ElementsAre(-1, 42));

    // Over the line to the greyed one, which does nothing, and on.
    Keys({VK_DOWN, VK_DOWN, VK_DOWN, VK_RETURN, VK_UP, VK_RETURN});
    EXPECT_EQ(Chosen(), L"&Grid");
    EXPECT_EQ(grid, 3) << "before the message";
    EXPECT_THAT(receiver.events, ElementsAre(RecordingWnd::Event{L"info", 7100, 0}));
    EXPECT_EQ(receiver.lastData, &grid);

    Keys({VK_DOWN, VK_ESCAPE});
    EXPECT_EQ(Chosen(), L"-");
    ::PostMessageW(host, WM_SYSKEYDOWN, VK_MENU, 1 << 29);
    EXPECT_EQ(Chosen(), L"-");
    EXPECT_THAT(host.seen, ElementsAre()) << "the window gets none of it";
    EXPECT_EQ(::GetFocus(), host.m_hWnd);
}

TEST_F(CEMenuTest, SubMenusOpenAndCloseWithKeys)
{
    Keys({VK_END, VK_UP, VK_RIGHT, VK_END, VK_LEFT});
    Do([this] {
        EXPECT_TRUE(menu.IsOpen());
        EXPECT_FALSE(Sub().IsOpen());
    });
    Keys({VK_RETURN});
    Do([this] {
        EXPECT_TRUE(Sub().IsOpen());
        const CRect place = ScreenPlaceOf(Sub());
        EXPECT_EQ(place.left, ScreenPlaceOf(menu).right - 2) << "frame on frame";
        // The row of the sub-menu's first entry is as high as the one that opened it.
        EXPECT_EQ(place.top, ScreenPlaceOf(menu).top + 24 + 24 + 8 + 24);
    });
    Keys({VK_ESCAPE, VK_RIGHT, VK_END, VK_RETURN});
    EXPECT_EQ(Chosen(), L"200 m");
    EXPECT_EQ(metres, 200);
    EXPECT_EQ(Sub().GetAt(2)->ShownMark(), CEMEnt::markBullet);
    EXPECT_EQ(Sub().GetAt(1)->ShownMark(), CEMEnt::markNone);
}

TEST_F(CEMenuTest, LettersChoose)
{
    ::PostMessageW(host, WM_CHAR, L'r', 1);
    ::PostMessageW(host, WM_CHAR, L'1', 1);
    EXPECT_EQ(Chosen(), L"100 m");
    // G is the letter of one entry and the first of another: it goes round.
    for (int i = 0; i < 3; ++i)
        ::PostMessageW(host, WM_CHAR, L'g', 1);
    Key(VK_RETURN);
    EXPECT_EQ(Chosen(), L"&Grid");
    ::PostMessageW(host, WM_CHAR, L'n', 1);
    ::PostMessageW(host, WM_CHAR, L'x', 1);
    Key(VK_ESCAPE);
    EXPECT_EQ(Chosen(), L"-") << "greyed";
}

TEST_F(CEMenuTest, TheMouseChoosesAndOpensSubMenus)
{
    Do([this] {
        // Released where it opened: that is the click that opened it.
        Mouse(menu, WM_RBUTTONUP, 10, 10);
        Mouse(menu, WM_MOUSEMOVE, 30, 95);
        Mouse(menu, WM_LBUTTONDOWN, 30, 95);
        Mouse(menu, WM_LBUTTONUP, 30, 95);
        Do([this] {
            ASSERT_TRUE(Sub().IsOpen());
            Mouse(Sub(), WM_LBUTTONDOWN, 30, 10);
            Mouse(Sub(), WM_LBUTTONUP, 30, 10);
        });
    });
    EXPECT_EQ(Chosen(), L"50 m");

    // A click elsewhere closes the menu, and is a click there.
    Do([this] {
        Mouse(menu, WM_LBUTTONDOWN, 30, 54); // the line
        Mouse(menu, WM_LBUTTONUP, 30, 54);
        Mouse(menu, WM_LBUTTONDOWN, 30, 70); // greyed
        Mouse(menu, WM_LBUTTONUP, 30, 70);
        Do([this] { EXPECT_TRUE(menu.IsOpen()); });
        ::PostMessageW(host, WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
        ::PostMessageW(host, WM_LBUTTONDOWN, 0, MAKELPARAM(5, 5));
    });
    EXPECT_EQ(Chosen(), L"-");
    EXPECT_THAT(host.seen, ElementsAre(UINT{WM_LBUTTONDOWN}));

    // The button of a drop-down menu only closes it.
    host.seen.clear();
    Do([this] { ::PostMessageW(host, WM_LBUTTONDOWN, 0, MAKELPARAM(15, 15)); });
    const CRect button(CPoint(50, 50), CSize(200, 20));
    Do([this, button] {
        EXPECT_EQ(ScreenPlaceOf(menu).TopLeft(), CPoint(button.left, button.bottom));
        EXPECT_EQ(ScreenPlaceOf(menu).Width(), 200);
    });
    EXPECT_EQ(menu.TrackBelow(button, &host), nullptr);
    EXPECT_THAT(host.seen, ElementsAre());
}

TEST_F(CEMenuTest, OnlyOneMenuIsOpenAndItEndsWithItsOwner)
{
    CEMenu other;
    EXPECT_EQ(other.TrackPopup(CPoint(100, 100), &host), nullptr) << "empty";
    other.AddSep();
    EXPECT_TRUE(other.IsEmpty());
    other.Add(L"Other");
    other.AddSep();
    other.AddSep();
    EXPECT_EQ(other.GetCount(), 2);
    Do([&] {
        EXPECT_EQ(other.TrackPopup(CPoint(100, 100), &host), nullptr);
        menu.Clear();
    });
    EXPECT_EQ(Track(), nullptr);

    auto owner = std::make_unique<InputHost>();
    Do([&] { owner.reset(); });
    Do([] {});
    EXPECT_EQ(other.TrackPopup(CPoint(100, 100), owner.get()), nullptr);
    EXPECT_FALSE(other.IsOpen());

    auto third = std::make_unique<CEMenu>();
    third->Add(L"Gone");
    Do([&] { third.reset(); });
    EXPECT_EQ(third->TrackPopup(CPoint(100, 100), &host), nullptr);

    // What is chosen may remove its own entry.
    other.Clear();
    other.Add(L"Clear", &host, static_cast<CEVal::CbPtr>(&MenuHost::OnClear), &other);
    Keys({VK_DOWN, VK_RETURN});
    EXPECT_EQ(other.TrackPopup(CPoint(100, 100), &host), nullptr);
    EXPECT_TRUE(other.IsEmpty());
}

TEST_F(CEMenuTest, KeysOfEntriesWorkWithoutTheMenu)
{
    MSG msg{host.m_hWnd, WM_KEYDOWN, 'G', 1, 0, {}};
    EXPECT_FALSE(menu.TakeAccel(&msg)) << "without Ctrl";
    {
        const HeldKeys ctrl({VK_CONTROL});
        EXPECT_TRUE(menu.TakeAccel(&msg));
        EXPECT_EQ(grid, 3);
        menu.Find(7100)->Enable(0);
        EXPECT_FALSE(menu.TakeAccel(&msg));
        msg.message = WM_KEYUP;
        EXPECT_FALSE(menu.TakeAccel(&msg));
    }
    metres = 50;
    msg = {host.m_hWnd, WM_KEYDOWN, VK_F6, 1, 0, {}};
    EXPECT_TRUE(menu.TakeAccel(&msg)) << "of a sub-menu";
    EXPECT_EQ(metres, 100);
    menu.GetAt(4)->Enable(0);
    EXPECT_FALSE(menu.TakeAccel(&msg));
}

TEST_F(CEMenuTest, StaysInsideTheScreenAndScrolls)
{
    CRect work;
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    for (int i = 0; i < 60; ++i) {
        CString text;
        text.Format(L"Line %d", i);
        menu.Add(text, 8000 + i);
    }
    Do([&] {
        const CRect place = ScreenPlaceOf(menu);
        EXPECT_EQ(place.Height(), work.Height());
        EXPECT_EQ(place.right, work.right - 10) << "to the left of the mouse";
    });
    Key(VK_END);
    Do([&] {
        const int rowsInView = (work.Height() - 2 * 2 - 2 * MenuRows::arrowH) / 24;
        const int onLast = 2 + MenuRows::arrowH + rowsInView * 24 - 5;
        Mouse(menu, WM_LBUTTONDOWN, 30, onLast);
        Mouse(menu, WM_LBUTTONUP, 30, onLast);
    });
    const CEMEnt* const chosen = menu.TrackPopup(CPoint(work.right - 10, work.bottom - 10), &host);
    ASSERT_TRUE(chosen);
    EXPECT_EQ(chosen->info, 8059);
}
