#include "controls/CEBtn.h"
#include "controls/CECheck.h"
#include "controls/CEEdit.h"
#include "controls/CELabel.h"
#include "controls/ControlsTest.h"

#include <afxmt.h>
#include <cstddef>
#include <functional>
#include <memory>

namespace
{

using ClicksTest = ControlsTest;

/** A button in a window, 80 x 20, and who it calls. */
struct Button {
    Button()
    {
        btn.Init(L"Go");
        btn.rc = CRect(10, 10, 90, 30);
        btn.SetCallback(&listener, Listener::Member());
    }
    bool IsPressed() const { return (btn.look & CECtrl::lookPressed) != 0; }
    /** The clicks since the last question. */
    int Clicks() { return std::exchange(listener.calls, 0); }

    Listener listener;
    CEBtn btn;
};

/** Counts how often it is really taken and given back. */
class CountingMutex : public CMutex
{
public:
    BOOL Lock(DWORD timeout = INFINITE) override
    {
        if (refuse)
            return FALSE;
        taken += depth++ == 0 ? 1 : 0;
        return CMutex::Lock(timeout);
    }
    BOOL Unlock() override
    {
        --depth;
        return CMutex::Unlock();
    }
    int taken = 0;
    int depth = 0;
    bool refuse = false;
};

/** Writes down the commands it gets. */
class CommandWnd : public CWnd
{
public:
    std::vector<UINT> commands;

protected:
    BOOL OnCommand(WPARAM w, LPARAM l) override
    {
        commands.push_back(static_cast<UINT>(w));
        return CWnd::OnCommand(w, l);
    }
};

bool NeedsPaint(CWnd& wnd)
{
    const bool dirty = wnd.GetUpdateRect(nullptr) != FALSE;
    wnd.UpdateWindow();
    return dirty;
}

} // namespace

TEST_F(ClicksTest, AClickIsPressAndReleaseInside)
{
    Button b;
    Open(b.btn);
    Press(b.btn, 5, 5);
    EXPECT_TRUE(b.IsPressed());
    EXPECT_EQ(::GetCapture(), b.btn.m_hWnd);
    EXPECT_EQ(b.Clicks(), 0) << "not before the release";
    Release(b.btn, 79, 19);
    EXPECT_FALSE(b.IsPressed());
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_EQ(b.Clicks(), 1);

    Press(b.btn, 5, 5);
    Send(b.btn, WM_MOUSEMOVE, MK_LBUTTON, 80, 5);
    EXPECT_FALSE(b.IsPressed());
    Send(b.btn, WM_MOUSEMOVE, MK_LBUTTON, 79, 5);
    EXPECT_TRUE(b.IsPressed());
    Release(b.btn, 80, 5);
    EXPECT_EQ(b.Clicks(), 0) << "released outside";

    Release(b.btn, 5, 5);
    EXPECT_EQ(b.Clicks(), 0) << "never pressed";
}

TEST_F(ClicksTest, LosingTheMouseOrTheRightToItCancels)
{
    Button b;
    Open(b.btn);
    Press(b.btn, 5, 5);
    ::ReleaseCapture();
    EXPECT_FALSE(b.IsPressed());
    Release(b.btn, 5, 5);
    EXPECT_EQ(b.Clicks(), 0);

    Press(b.btn, 5, 5);
    b.btn.state = CECtrl::stShown;
    b.btn.Update(0);
    EXPECT_FALSE(b.IsPressed());
    EXPECT_EQ(::GetCapture(), nullptr);
    Release(b.btn, 5, 5);
    EXPECT_EQ(b.Clicks(), 0);
    b.btn.state = 3;
    b.btn.Update(0);

    Press(b.btn, 5, 5);
    b.btn.ShowWindow(SW_HIDE);
    Release(b.btn, 5, 5);
    EXPECT_EQ(b.Clicks(), 0) << "hidden under the mouse";
    b.btn.Update(0);

    Press(b.btn, 5, 5);
    KeyDown(b.btn, VK_ESCAPE);
    EXPECT_FALSE(b.IsPressed());
    Release(b.btn, 5, 5);
    EXPECT_EQ(b.Clicks(), 0);
}

TEST_F(ClicksTest, WhatTheFocusCallsOnItsWayMayCancelTheClick)
{
    Button b;
    Open(b.btn);
    struct Storing : CObject {
        void OnStored() { act(); }
        std::function<void()> act;
    } storing;
    int gain = 5;
    CEEdit edit;
    edit.Init(gain);
    edit.rc = CRect(10, 40, 90, 60);
    edit.SetCallback(&storing, static_cast<CEVal::CbNone>(&Storing::OnStored));
    Open(edit);
    const auto pressedWhen = [&](std::function<void()> act) {
        storing.act = std::move(act);
        edit.SetFocus();
        Press(b.btn, 5, 5);
        return b.IsPressed() || ::GetCapture() != nullptr;
    };
    EXPECT_FALSE(pressedWhen([&] {
        b.btn.state = CECtrl::stShown;
        b.btn.Update(0);
    })) << "disabled by a stored value";
    Release(b.btn, 5, 5);
    EXPECT_EQ(b.Clicks(), 0);
    b.btn.state = 3;
    b.btn.Update(0);

    EXPECT_FALSE(pressedWhen([this] {
        parent.SetCapture(); // as a message box does
        ::ReleaseCapture();
    }));
    EXPECT_FALSE(pressedWhen([&] { b.btn.DestroyWindow(); }));
    EXPECT_EQ(b.Clicks(), 0);
}

TEST_F(ClicksTest, KeysDoWhatTheMouseDoes)
{
    Button b;
    Open(b.btn);
    KeyDown(b.btn, VK_SPACE);
    EXPECT_TRUE(b.IsPressed());
    KeyDown(b.btn, VK_SPACE, true);
    EXPECT_EQ(b.Clicks(), 0) << "not before the key is up";
    KeyUp(b.btn, VK_SPACE);
    EXPECT_FALSE(b.IsPressed());
    EXPECT_EQ(b.Clicks(), 1);
    KeyUp(b.btn, VK_SPACE);
    EXPECT_EQ(b.Clicks(), 0) << "pressed in another window";

    KeyDown(b.btn, VK_RETURN);
    EXPECT_EQ(b.Clicks(), 1);
    KeyDown(b.btn, VK_RETURN, true);
    EXPECT_EQ(b.Clicks(), 0) << "holding Enter down is one click";
    KeyDown(b.btn, 'A');
    EXPECT_EQ(b.Clicks(), 0);

    KeyDown(b.btn, VK_SPACE);
    KeyDown(b.btn, VK_ESCAPE);
    KeyUp(b.btn, VK_SPACE);
    EXPECT_EQ(b.Clicks(), 0);
    b.btn.SetFocus();
    KeyDown(b.btn, VK_SPACE);
    parent.SetFocus();
    EXPECT_FALSE(b.IsPressed());
    KeyUp(b.btn, VK_SPACE);
    EXPECT_EQ(b.Clicks(), 0) << "the focus went on";
}

TEST_F(ClicksTest, ClickingTakesTheFocusAndEnterInDialogs)
{
    Button b;
    Open(b.btn);
    EXPECT_EQ(b.btn.GetStyle() & (WS_TABSTOP | CECtrl::keepFocus), WS_TABSTOP | CECtrl::keepFocus);
    Press(b.btn, 5, 5);
    EXPECT_EQ(::GetFocus(), b.btn.m_hWnd);
    Release(b.btn, 90, 5);
    MSG enter{b.btn, WM_KEYDOWN, VK_RETURN, 1, 0, {}};
    MSG tab{b.btn, WM_KEYDOWN, VK_TAB, 1, 0, {}};
    EXPECT_TRUE(b.btn.SendMessage(WM_GETDLGCODE, VK_RETURN, reinterpret_cast<LPARAM>(&enter)) &
                DLGC_WANTMESSAGE);
    EXPECT_FALSE(b.btn.SendMessage(WM_GETDLGCODE, VK_TAB, reinterpret_cast<LPARAM>(&tab)) & DLGC_WANTMESSAGE);
    EXPECT_EQ(b.btn.SendMessage(WM_GETDLGCODE), DLGC_BUTTON);
}

TEST_F(ClicksTest, AButtonWithAnIdTellsItsParent)
{
    CommandWnd owner;
    ASSERT_TRUE(owner.CreateEx(0, Vant::wndClass, L"", WS_POPUP, CRect(0, 0, 99, 99), nullptr, 0));
    Button with;
    Button without;
    ASSERT_EQ(with.btn.Create(WS_VISIBLE, with.btn.rc, &owner, IDCANCEL), 1);
    ASSERT_EQ(without.btn.Create(WS_VISIBLE, without.btn.rc, &owner, 0), 1);
    KeyDown(with.btn, VK_RETURN);
    KeyDown(without.btn, VK_RETURN);
    EXPECT_THAT(owner.commands, testing::ElementsAre(MAKEWPARAM(IDCANCEL, BN_CLICKED)));
    EXPECT_EQ(with.Clicks() + without.Clicks(), 2);
    owner.DestroyWindow();
}

TEST_F(ClicksTest, ACallbackMayDestroyTheWindow)
{
    struct Closing : Listener {
        void Close() { btn->DestroyWindow(); }
        CEBtn* btn = nullptr;
    } closing;
    CEBtn btn;
    closing.btn = &btn;
    btn.rc = CRect(0, 0, 50, 20);
    btn.SetCallback(&closing, static_cast<CEVal::CbNone>(&Closing::Close));
    Open(btn);
    btn.id = 5;
    Press(btn, 5, 5);
    Release(btn, 5, 5);
    EXPECT_EQ(btn.m_hWnd, nullptr);
    EXPECT_EQ(btn.look, 0);
}

TEST_F(ClicksTest, AButtonOfAnIntegerLatches)
{
    Button b;
    short mode = 4;
    b.btn.Init(mode);
    b.btn.text = L"Hold";
    Open(b.btn);
    EXPECT_FALSE(b.btn.IsLatched());
    KeyDown(b.btn, VK_RETURN);
    EXPECT_EQ(mode, 5);
    EXPECT_TRUE(b.btn.IsLatched());
    KeyDown(b.btn, VK_RETURN);
    EXPECT_EQ(mode, 4);

    Button fixed;
    Open(fixed.btn);
    KeyDown(fixed.btn, VK_RETURN);
    EXPECT_FALSE(fixed.btn.IsLatched());
    EXPECT_EQ(Text(fixed.btn.GetText(0)), L"Go");
}

TEST_F(ClicksTest, TenBoxesShareTheBitsOfOneVariable)
{
    unsigned int mask = 0;
    std::vector<std::unique_ptr<CECheck>> boxes;
    for (int i = 0; i < 10; ++i) {
        boxes.push_back(std::make_unique<CECheck>());
        boxes.back()->Init(mask);
        boxes.back()->aux0 = 1 << i;
        boxes.back()->rc = CRect(CPoint(0, 20 * i), CSize(100, 20));
        Open(*boxes.back());
    }
    Press(*boxes[9], 3, 3);
    Release(*boxes[9], 3, 3);
    KeyDown(*boxes[0], VK_SPACE);
    KeyUp(*boxes[0], VK_SPACE);
    EXPECT_EQ(mask, 0x201u);
    for (std::size_t i = 0; i < boxes.size(); ++i)
        EXPECT_EQ(boxes[i]->IsChecked(), i == 0 || i == 9) << i;
    KeyDown(*boxes[9], VK_RETURN);
    EXPECT_EQ(mask, 1u);
}

TEST_F(ClicksTest, BoxesTakeIntegersOfEveryWidthAndNothingElse)
{
    const auto toggled = [this](auto value, int mask) {
        struct {
            decltype(value) bound;
            unsigned char behind = 0x5A;
        } at{value};
        CECheck box;
        Listener listener;
        box.SetCallback(&listener, Listener::Member());
        box.Init(at.bound);
        box.aux0 = mask;
        Open(box);
        KeyDown(box, VK_RETURN);
        EXPECT_EQ(listener.calls, 1);
        EXPECT_EQ(at.behind, 0x5A);
        return at.bound;
    };
    EXPECT_EQ(toggled(static_cast<char>(0x0F), 0x80), static_cast<char>(0x8F));
    EXPECT_EQ(toggled(static_cast<unsigned char>(0xFF), 0x80), 0x7F);
    EXPECT_EQ(toggled(static_cast<short>(-1), 0x8000), 0x7FFF);
    EXPECT_EQ(toggled(static_cast<unsigned short>(0), 0x8000), 0x8000);
    EXPECT_EQ(toggled(5, 2), 7);
    EXPECT_EQ(toggled(-1, 1), -2);
    EXPECT_EQ(toggled(0x12345678u, static_cast<int>(0x80000000)), 0x92345678u);
    EXPECT_EQ(toggled(0xFFFFFFFFul, 1), 0xFFFFFFFEul);
    EXPECT_EQ(toggled(std::int64_t{0x7000000000000001}, 1), 0x7000000000000000);
    EXPECT_EQ(toggled(std::int64_t{-1}, static_cast<int>(0x80000000)), ~std::int64_t{0x80000000});
    EXPECT_EQ(toggled(6, 3), 4) << "some of several bits: the click clears them";
    EXPECT_EQ(toggled(4, 3), 7) << "none of them: it sets them all";
    EXPECT_EQ(toggled(1.0, 1), 1.0) << "no integer";
}

TEST_F(ClicksTest, ToggleIsOneStepUnderTheMutex)
{
    CountingMutex mutex;
    int mask = 0x10;
    CECheck box;
    box.Init(mask);
    box.SetMutex(&mutex);
    Open(box);
    mutex.taken = 0;
    KeyDown(box, VK_RETURN);
    EXPECT_EQ(mask, 0x11);
    EXPECT_EQ(mutex.taken, 1) << "read and write in one critical section";
    EXPECT_EQ(mutex.depth, 0);
    mutex.refuse = true;
    KeyDown(box, VK_RETURN);
    EXPECT_EQ(mask, 0x11);
}

TEST_F(ClicksTest, AutoUpdateRedrawsOnlyWhatChanged)
{
    ShowParent();
    int value = 0;
    int allowed = 1;
    CECheck box;
    box.Init(value);
    box.rc = CRect(0, 0, 100, 20);
    box.enIf = 1;
    box.pEnVar = &allowed;
    box.enVal = 1;
    CEBtn btn;
    CString caption = L"Start";
    btn.Init(caption);
    btn.rc = CRect(0, 30, 100, 50);
    CECtrl::UpdateAuCtrls(0.0); // before there are windows
    Open(box);
    Open(btn);
    box.UpdateWindow();
    btn.UpdateWindow();

    CECtrl::UpdateAuCtrls(1.0);
    EXPECT_FALSE(NeedsPaint(box));
    EXPECT_FALSE(NeedsPaint(btn));
    value = 2; // another bit
    CECtrl::UpdateAuCtrls(2.0);
    EXPECT_FALSE(NeedsPaint(box));
    value = 3;
    caption = L"Stop";
    CECtrl::UpdateAuCtrls(3.0);
    EXPECT_TRUE(NeedsPaint(box));
    EXPECT_TRUE(NeedsPaint(btn));
    CECtrl::UpdateAuCtrls(4.0);
    EXPECT_FALSE(NeedsPaint(box));
    EXPECT_FALSE(NeedsPaint(btn));

    allowed = 0;
    CECtrl::UpdateAuCtrls(5.0);
    EXPECT_FALSE(box.IsWindowEnabled());
    EXPECT_TRUE(NeedsPaint(box));
}

TEST_F(ClicksTest, ALabelIsClickedOnlyWhenItCallsSomebody)
{
    CELabel title;
    title.Init(L"Sonar");
    title.rc = CRect(0, 0, 100, 20);
    EXPECT_EQ(title.WndStyle(), WS_VISIBLE);
    Open(title);
    Press(title, 5, 5);
    EXPECT_EQ(title.look & CECtrl::lookPressed, 0);
    EXPECT_EQ(::GetCapture(), nullptr);

    Listener listener;
    title.SetCallback(&listener, Listener::Member());
    EXPECT_EQ(title.WndStyle(), WS_VISIBLE | WS_TABSTOP | CECtrl::keepFocus);
    Press(title, 5, 5);
    Release(title, 5, 5);
    EXPECT_EQ(listener.calls, 1);
}

TEST_F(ClicksTest, TheWindowTextIsNoValueOfThem)
{
    int value = 1;
    CECheck box;
    box.Init(value);
    box.text = L"On";
    CEBtn btn;
    btn.Init(L"Go");
    for (CECtrl* ctrl : {static_cast<CECtrl*>(&box), static_cast<CECtrl*>(&btn)}) {
        Open(*ctrl);
        ctrl->SetWindowText(L"77");
        ctrl->Retreive();
    }
    EXPECT_EQ(value, 1);
    EXPECT_EQ(Text(btn.text), L"Go");
    EXPECT_THAT(alarms, testing::IsEmpty());
}

TEST_F(ClicksTest, AClickIsHeardIfTheSoundsAreOn)
{
    Button b;
    Open(b.btn);
    KeyDown(b.btn, VK_RETURN);
    EXPECT_THAT(sounds, testing::IsEmpty());
    const unsigned options = std::exchange(Vant::options, 0u);
    KeyDown(b.btn, VK_RETURN);
    Vant::options = options;
    EXPECT_EQ(sounds.size(), 1u);
}
