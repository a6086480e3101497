#include "controls/CERadio.h"

#include "controls/CEBtn.h"
#include "controls/Listener.h"
#include "controls/RecordingWnd.h"
#include "controls/WndTest.h"

namespace
{

class RadioTest : public WndTest
{
protected:
    RadioTest() { wnd.CreatePopup(400, 200, WS_VISIBLE); }
    ~RadioTest() override
    {
        if (wnd.m_hWnd)
            wnd.DestroyWindow();
    }

    template <class T>
    CERadio& Add(T& variable, int value)
    {
        auto* const button = dynamic_cast<CERadio*>(wnd.InsCtrl(60, CECtrl::typeRadio, variable));
        button->aux0 = value;
        button->SetCallback(&listener, Listener::Member());
        return *button;
    }
    void Create()
    {
        wnd.CreateCtrls();
        wnd.LayoutWnd(1);
    }
    bool HasFocus(const CWnd& ctrl) const { return ::GetFocus() == ctrl.m_hWnd; }

    RecordingWnd wnd;
    Listener listener;
};

} // namespace

TEST_F(RadioTest, ButtonsOfOneVariableExcludeEachOther)
{
    short mode = 7;
    CERadio& first = Add(mode, 1);
    CERadio& second = Add(mode, -2);
    Create();
    EXPECT_FALSE(first.IsChosen() || second.IsChosen()) << "no button has the value";
    Click(second);
    EXPECT_EQ(mode, -2);
    EXPECT_TRUE(second.IsChosen());
    EXPECT_TRUE(HasFocus(second));
    EXPECT_EQ(listener.calls, 1);
    Click(second);
    EXPECT_EQ(listener.calls, 1) << "it is chosen already";

    first.UpdateWindow();
    second.UpdateWindow();
    Click(first);
    EXPECT_EQ(mode, 1);
    EXPECT_FALSE(second.IsChosen());
    EXPECT_TRUE(second.GetUpdateRect(nullptr)) << "the other one has to show it";
    second.UpdateWindow();
    mode = -2;
    CECtrl::UpdateAuCtrls(0);
    EXPECT_TRUE(second.GetUpdateRect(nullptr)) << "the application has changed it";
}

TEST_F(RadioTest, AValueIsWhatTheVariableHolds)
{
    char narrow = 0;
    unsigned int wide = 0;
    __int64 widest = 0;
    double number = 1;
    CERadio& a = Add(narrow, 200);
    CERadio& b = Add(wide, -1);
    CERadio& c = Add(widest, -1);
    CERadio& d = Add(number, 1);
    Create();
    for (CERadio* const button : {&a, &b, &c})
        Click(*button);
    EXPECT_EQ(narrow, static_cast<char>(200));
    EXPECT_EQ(wide, 0xFFFFFFFFu);
    EXPECT_EQ(widest, -1);
    EXPECT_TRUE(a.IsChosen() && b.IsChosen() && c.IsChosen());
    EXPECT_FALSE(d.IsChosen()) << "no integer";
}

TEST_F(RadioTest, ArrowsMoveInTheGroupAndTabLeavesIt)
{
    int view = 2;
    int units = 0;
    std::vector<CERadio*> views;
    CEBtn& before = *wnd.InsBtn(40, L"a", 1, nullptr, nullptr);
    for (int i = 0; i < 4; ++i)
        views.push_back(&Add(view, i));
    CERadio& metric = Add(units, 5);
    CEBtn& after = *wnd.InsBtn(40, L"b", 2, nullptr, nullptr);
    views[3]->state = CECtrl::stShown;
    Create();

    before.SetFocus();
    PressKey(VK_TAB);
    EXPECT_TRUE(HasFocus(*views[2])) << "the chosen one";
    PressKey(VK_TAB);
    EXPECT_TRUE(HasFocus(metric)) << "a group of its own, of which none is chosen";
    EXPECT_EQ(units, 0) << "Tab chooses nothing";
    PressKey(VK_TAB);
    EXPECT_TRUE(HasFocus(after));

    views[2]->SetFocus();
    PressKey(VK_RIGHT);
    EXPECT_EQ(view, 0) << "past the disabled one, and around";
    EXPECT_TRUE(HasFocus(*views[0]));
    PressKey(VK_LEFT);
    EXPECT_EQ(view, 2);
    PressKey(VK_UP);
    EXPECT_EQ(view, 1);
    EXPECT_EQ(listener.calls, 3);
    PressKey(VK_TAB);
    EXPECT_TRUE(HasFocus(metric));

    view = 2;
    views[2]->ShowWindow(SW_HIDE);
    before.SetFocus();
    PressKey(VK_TAB);
    EXPECT_TRUE(HasFocus(*views[0])) << "the chosen one is not to be seen";
    PressKey(VK_SPACE);
    EXPECT_EQ(view, 0);
}

TEST_F(RadioTest, OtherWindowsAreOtherGroups)
{
    int mode = 0;
    RecordingWnd other(L"Other");
    other.CreatePopup();
    auto* const there = dynamic_cast<CERadio*>(other.InsCtrl(60, CECtrl::typeRadio, mode));
    there->aux0 = 3;
    other.CreateCtrls();
    CERadio& here = Add(mode, 4);
    Create();
    here.SetFocus();
    PressKey(VK_DOWN);
    EXPECT_EQ(mode, 0) << "alone";
    EXPECT_TRUE(there->IsTabStop());
    EXPECT_TRUE(here.IsTabStop());
    other.DestroyWindow();
}
