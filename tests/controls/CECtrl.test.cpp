#include "controls/ControlsTest.h"

#include "controls/detail/HoverHook.h"
#include "support/MessagePump.h"

#include <memory>

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

using CECtrlTest = ControlsTest;

std::vector<CECtrl*> From(CLstPtr<CECtrl*>& list, int skip)
{
    std::vector<CECtrl*> elems;
    for (CVantPtr* pos = list.FindIndex(skip); pos;)
        elems.push_back(list.GetNext(pos));
    return elems;
}

/** Counts its updates, and ends itself at the first if it is told to. */
class Updating : public PlainCtrl
{
public:
    explicit Updating(std::vector<double>& times, bool endItself = false)
        : m_times(times)
        , m_endItself(endItself)
    {
        s_auCtrls.AddTail(this);
    }
    void AutoUpdate(double t) override
    {
        m_times.push_back(t);
        if (m_endItself)
            delete this;
    }

private:
    std::vector<double>& m_times;
    const bool m_endItself;
};

bool HasStyle(const CWnd& wnd, DWORD style)
{
    return (wnd.GetStyle() & style) != 0;
}

} // namespace

TEST_F(CECtrlTest, EveryLiveControlIsInTheListInTheOrderOfConstruction)
{
    const int before = CECtrl::s_eCtrls.GetCount();
    auto first = std::make_unique<PlainCtrl>();
    PlainCtrl second;
    auto third = std::make_unique<PlainCtrl>();
    EXPECT_THAT(From(CECtrl::s_eCtrls, before), ElementsAre(first.get(), &second, third.get()));

    first.reset();
    third.reset(); // the tail: what is appended now must not be lost behind it
    PlainCtrl fourth;
    EXPECT_THAT(From(CECtrl::s_eCtrls, before), ElementsAre(&second, &fourth));
    EXPECT_EQ(CECtrl::s_eCtrls.GetTail(), &fourth);
}

TEST_F(CECtrlTest, TheListSurvivesTheRemovalOfItsOnlyMembers)
{
    std::vector<double> times;
    const int before = CECtrl::s_auCtrls.GetCount();
    std::make_unique<Updating>(times).reset();
    std::make_unique<Updating>(times).reset();
    EXPECT_EQ(CECtrl::s_auCtrls.GetCount(), before) << "a control leaves the list even if its class forgets";
    const Updating last(times);
    EXPECT_EQ(CECtrl::s_auCtrls.GetTail(), &last);
}

TEST_F(CECtrlTest, AControlMayEndItselfWhileItIsUpdated)
{
    std::vector<double> times;
    const Updating first(times);
    new Updating(times, true);
    new Updating(times, true);
    const Updating last(times);
    CECtrl::UpdateAuCtrls(1.5);
    EXPECT_THAT(times, ElementsAre(1.5, 1.5, 1.5, 1.5));
    CECtrl::UpdateAuCtrls(2.5);
    EXPECT_THAT(times, ElementsAre(1.5, 1.5, 1.5, 1.5, 2.5, 2.5));
}

TEST_F(CECtrlTest, IsAWindowAndAValueAtOnce)
{
    PlainCtrl ctrl;
    double depth = 2.0;
    ctrl.Init(depth);
    ctrl.rc = CRect(10, 20, 110, 40);
    CECtrl& base = ctrl;
    base = 12.5;
    EXPECT_EQ(depth, 12.5);
    EXPECT_EQ(ctrl.Create(WS_VISIBLE, ctrl.rc, &parent, 77), 1);
    EXPECT_EQ(::GetDlgCtrlID(ctrl), 77);
    EXPECT_EQ(ctrl.id, 77);
    EXPECT_EQ(ctrl.Create(WS_VISIBLE, ctrl.rc, nullptr, 1), 0) << "there is a window already";
    EXPECT_TRUE(ctrl.IsKindOf(RUNTIME_CLASS(CECtrl)));
}

TEST_F(CECtrlTest, NothingHappensBeforeTheWindowExists)
{
    PlainCtrl ctrl;
    int value = 5;
    ctrl.Init(value);
    ctrl.Update(0);
    ctrl.Retreive();
    EXPECT_EQ(value, 5);
    EXPECT_THAT(alarms, IsEmpty());
    EXPECT_EQ(ctrl.draws, 0);
}

TEST_F(CECtrlTest, EnabledFollowsFromTheStateAndTheConditionAtEveryUpdate)
{
    int mode = 2;
    PlainCtrl ctrl;
    ctrl.enIf = 1;
    ctrl.pEnVar = &mode;
    ctrl.enVal = 7;
    Open(ctrl);
    EXPECT_TRUE(HasStyle(ctrl, WS_VISIBLE));
    EXPECT_TRUE(HasStyle(ctrl, WS_DISABLED));

    mode = 7;
    EXPECT_TRUE(HasStyle(ctrl, WS_DISABLED)) << "before Update()";
    ctrl.Update(0);
    EXPECT_FALSE(HasStyle(ctrl, WS_DISABLED));
    ctrl.state = CECtrl::stShown;
    ctrl.Update(0);
    EXPECT_TRUE(HasStyle(ctrl, WS_DISABLED)) << "the condition does not outdo the state";

    ctrl.state = CECtrl::stShown | CECtrl::stEnabled;
    mode = 0;
    ctrl.enIf = 0;
    ctrl.Update(0);
    EXPECT_FALSE(HasStyle(ctrl, WS_DISABLED)) << "a condition that is not in force";
    ctrl.enIf = 1;
    ctrl.pEnVar = nullptr;
    ctrl.Update(0);
    EXPECT_FALSE(HasStyle(ctrl, WS_DISABLED)) << "without a variable the condition counts as met";
}

TEST_F(CECtrlTest, ShownFollowsFromTheStateAtEveryUpdate)
{
    for (const bool parentShown : {false, true}) {
        if (parentShown)
            ShowParent();
        PlainCtrl ctrl;
        Open(ctrl);
        ctrl.state = CECtrl::stEnabled;
        ctrl.Update(0);
        EXPECT_FALSE(HasStyle(ctrl, WS_VISIBLE)) << parentShown;
        ctrl.state = CECtrl::stShown | CECtrl::stKeepHidden;
        ctrl.Update(0);
        EXPECT_FALSE(HasStyle(ctrl, WS_VISIBLE)) << "kept hidden " << parentShown;
        ctrl.state = CECtrl::stShown;
        ctrl.Update(0);
        EXPECT_TRUE(HasStyle(ctrl, WS_VISIBLE)) << parentShown;
        // The bit that keeps hidden does not hide.
        ctrl.state = CECtrl::stShown | CECtrl::stKeepHidden;
        ctrl.Update(0);
        EXPECT_TRUE(HasStyle(ctrl, WS_VISIBLE)) << parentShown;
    }
}

TEST_F(CECtrlTest, UpdateRedrawsTheWholeControl)
{
    ShowParent();
    PlainCtrl ctrl;
    ctrl.rc = CRect(0, 0, 60, 20);
    Open(ctrl);
    ctrl.UpdateWindow();
    CRect dirty;
    ASSERT_FALSE(ctrl.GetUpdateRect(&dirty));
    ctrl.Update(0);
    EXPECT_TRUE(ctrl.GetUpdateRect(&dirty));
    EXPECT_EQ(dirty, CRect(0, 0, 60, 20));
}

TEST_F(CECtrlTest, AFocusThatItLosesGoesToTheParent)
{
    PlainCtrl ctrl;
    Open(ctrl);
    for (const int state : {int{CECtrl::stShown}, int{CECtrl::stEnabled}}) {
        ctrl.state = CECtrl::stEnabled | CECtrl::stShown;
        ctrl.Update(0);
        ctrl.SetFocus();
        ASSERT_EQ(::GetFocus(), ctrl.m_hWnd);
        ctrl.state = state;
        ctrl.Update(0);
        EXPECT_EQ(::GetFocus(), parent.m_hWnd) << state;
    }
}

TEST_F(CECtrlTest, RetrievesValidTextAndReportsTheRest)
{
    PlainCtrl ctrl;
    int value = 3;
    ctrl.Init(value);
    Open(ctrl);
    ctrl.SetWindowText(L"42");
    ctrl.Retreive();
    EXPECT_EQ(value, 42);
    EXPECT_THAT(alarms, IsEmpty());

    ctrl.SetWindowText(L"4 %s");
    ctrl.Retreive();
    EXPECT_EQ(value, 42);
    EXPECT_THAT(alarms, ElementsAre(Logged{30, 1, L"Unable to get value err=Not Valid Integer"}));
}

TEST_F(CECtrlTest, PlacesOfTheScreenFindControlsAndTheirTips)
{
    PlainCtrl unborn; // has no window, like the places without one
    PlainCtrl ctrl;
    ctrl.rc = CRect(100, 100, 200, 150);
    Open(ctrl);
    ShowParent();
    const CPoint on(50 + 150, 50 + 120);
    EXPECT_EQ(CECtrl::GetCtrl(on), &ctrl);
    EXPECT_EQ(CECtrl::GetCtrl(CPoint(50 + 10, 50 + 10)), nullptr);
    EXPECT_EQ(CECtrl::GetCtrl(CPoint(-30000, -30000)), nullptr);

    CString tip = L"untouched";
    EXPECT_EQ(CECtrl::GetTip(on, tip), nullptr);
    EXPECT_EQ(Text(tip), L"untouched");

    // Three controls on one window: the first that has a tip answers.
    PlainCtrl second;
    PlainCtrl third;
    second.m_hWnd = third.m_hWnd = ctrl.m_hWnd;
    second.tip = L"Second";
    third.tip = L"Third";
    EXPECT_EQ(CECtrl::GetTip(on, tip), &second);
    EXPECT_EQ(Text(tip), L"Second");
    EXPECT_EQ(CECtrl::GetCtrl(on), &ctrl);
    second.m_hWnd = third.m_hWnd = nullptr;

    ctrl.state = CECtrl::stShown;
    ctrl.Update(0);
    EXPECT_EQ(CECtrl::GetCtrl(on), nullptr) << "disabled";
}

TEST_F(CECtrlTest, ContextHelpOpensTheControlsTopic)
{
    PlainCtrl ctrl;
    ctrl.rc = CRect(100, 100, 200, 150);
    ctrl.tip = L"Tip";
    Open(ctrl);
    ShowParent();
    ::SetCursorPos(50 + 150, 50 + 120);
    Vant::SpawnHelp();
    ctrl.aux3 = L"Gain (dB)";
    Vant::SpawnHelp();
    EXPECT_THAT(PagesOfHelp(), ElementsAre(L"UsingtheSoftware.htm", L"GaindB.htm"));
}

TEST_F(CECtrlTest, HoverIsSeenAndReported)
{
    static std::vector<std::pair<CECtrl*, bool>> reports;
    reports.clear();
    vant::detail::Hover().moved = [](CECtrl& ctrl) { reports.emplace_back(&ctrl, true); };
    vant::detail::Hover().left = [](CECtrl& ctrl) { reports.emplace_back(&ctrl, false); };
    auto ctrl = std::make_unique<PlainCtrl>();
    ctrl->rc = CRect(0, 0, 100, 20);
    Open(*ctrl);
    const auto enter = [&ctrl] {
        Send(*ctrl, WM_MOUSEMOVE, 0, 50, 10);
        return (ctrl->look & CECtrl::lookHover) != 0;
    };
    const std::pair<CECtrl*, bool> in(ctrl.get(), true);
    const std::pair<CECtrl*, bool> out(ctrl.get(), false);

    EXPECT_TRUE(enter());
    EXPECT_TRUE(enter());
    Send(*ctrl, WM_MOUSELEAVE);
    EXPECT_EQ(ctrl->look, 0);
    EXPECT_THAT(reports, ElementsAre(in, in, out));

    reports.clear();
    EXPECT_TRUE(enter());
    Send(*ctrl, WM_MOUSEMOVE, 0, 50, -1); // of a control that holds the mouse
    EXPECT_EQ(ctrl->look, 0);
    EXPECT_THAT(reports, ElementsAre(in, out));

    reports.clear();
    EXPECT_TRUE(enter());
    ctrl->state = CECtrl::stShown;
    ctrl->Update(0);
    EXPECT_EQ(ctrl->look, 0) << "disabled";
    ctrl->state = CECtrl::stEnabled;
    ctrl->Update(0);
    ctrl->state = CECtrl::stEnabled | CECtrl::stShown;
    ctrl->Update(0);
    EXPECT_THAT(reports, ElementsAre(in, out));

    reports.clear();
    EXPECT_TRUE(enter());
    ctrl->DestroyWindow();
    ctrl.reset();
    EXPECT_THAT(reports, ElementsAre(in, out));

    reports.clear();
    ctrl = std::make_unique<PlainCtrl>();
    ctrl->rc = CRect(0, 0, 100, 20);
    Open(*ctrl);
    EXPECT_TRUE(enter());
    ctrl.reset();
    ASSERT_EQ(reports.size(), 2u) << "a control that is deleted leaves too";
    EXPECT_FALSE(reports[1].second);
}

TEST_F(CECtrlTest, TheRealMouseComesAndGoes)
{
    PlainCtrl ctrl;
    ctrl.rc = CRect(100, 100, 200, 150);
    Open(ctrl);
    ShowParent();
    const auto hovered = [&ctrl] { return (ctrl.look & CECtrl::lookHover) != 0; };
    const auto moveTo = [](int x, int y) { ::SetCursorPos(50 + x, 50 + y); };
    // Moved again and again, as what the screen reports may still be an earlier place.
    EXPECT_TRUE(vant::test::PumpUntil([&] { return moveTo(150, 120), hovered(); }));
    EXPECT_TRUE(vant::test::PumpUntil([&] { return moveTo(10, 10), !hovered(); }));
}
