#include "controls/CRcMgr.h"

#include "controls/CEBtn.h"
#include "controls/CRcKeys.h"
#include "controls/Listener.h"
#include "controls/RecordingWnd.h"
#include "controls/WndTest.h"
#include "settings/CESet.h"
#include "support/MessagePump.h"

using namespace testing;
using vant::detail::RcNearest;
using vant::detail::RcStep;
using vant::detail::RcWithout;

namespace
{

/** Two sections of controls on the screen. */
class SonarWnd : public RecordingWnd
{
public:
    SonarWnd()
    {
        CCtrlCat& own = *GetCat(L"Sonar", kindStacked, 1, 0);
        for (CECtrl*& ctrl : fields) {
            ctrl = own.InsCtrl(80, CECtrl::typeEdit, depth);
            own.NewLn();
        }
        CCtrlCat& more = *GetCat(L"Display", kindStacked, 1, 0);
        for (int i = 0; i < 2; ++i) {
            options.push_back(more.InsCtrl(80, CECtrl::typeBtn, L"x"));
            options.back()->SetCallback(&listener, Listener::Member());
            more.NewLn();
        }
        CreateWnd(L"", WS_POPUP, CRect(20, 20, 320, 320));
        ShowWindow(SW_SHOWNOACTIVATE);
        UpdCtrls();
        vant::test::PumpPending();
    }
    ~SonarWnd() override { DestroyWindow(); }

    double depth = 5;
    CECtrl* fields[3];
    std::vector<CECtrl*> options;
    Listener listener;
};

class CRcMgrTest : public WndTest
{
protected:
    CRcMgrTest()
    {
        for (CECtrl* const field : wnd.fields)
            depths.Add(field, 2);
        display.AddCat(*wnd.GetCat(L"Display", 0, 0, 0));
        watcher.name = L"watcher";
        mgr.AttachWnd(&watcher);
    }
    ~CRcMgrTest() override { CECtrl::UpdateAuCtrls(0); }

    static void Order(int info) { CVantWnd::InfoMsg(info, nullptr); }
    static void Order(int info, int count) { CVantWnd::InfoMsg(info, &count); }
    static void Disable(CECtrl* ctrl, bool disable = true)
    {
        ctrl->state = disable ? 2 : 3;
        ctrl->Update(0);
    }

    SonarWnd wnd;
    RecordingWnd watcher;
    CRcMgr mgr;
    CRcSet& depths = *mgr.GetGrp(L"Sensors")->GetSet(L"Depths");
    CRcSet& empty = *mgr.GetGrp(L"Sensors")->GetSet(L"None yet");
    CRcSet& display = *mgr.GetGrp(L"Sensors")->GetSet(L"All of it");
    CRcSet& others = *mgr.GetGrp(L"Empty")->GetSet(L"");
    CRcSet& second = *mgr.GetGrp(L"Second one")->GetSet(L"Fields");
};

} // namespace

TEST(RcWalkTest, StepsCountWhatCanBeUsedAndEndOrGoAround)
{
    const std::vector<bool> row = {false, true, true, false, true, false};
    EXPECT_EQ(RcStep(row, {1, true}, 1, false), 2);
    EXPECT_EQ(RcStep(row, {1, true}, 2, false), 4);
    EXPECT_EQ(RcStep(row, {2, true}, 5, false), 4);
    EXPECT_EQ(RcStep(row, {2, true}, 5, true), 1);
    EXPECT_EQ(RcStep(row, {1, true}, -1, true), 4);
    EXPECT_EQ(RcStep(row, {1, true}, -1, false), 1);
    for (const bool on : {true, false}) {
        EXPECT_EQ(RcStep(row, {3, on}, 1, false), 4) << "from what cannot be used, or the gap before it";
        EXPECT_EQ(RcStep(row, {3, on}, -1, false), 2);
    }
    EXPECT_EQ(RcStep(row, {2, false}, 1, false), 2);
    EXPECT_EQ(RcStep(row, {2, false}, -1, false), 1);
    EXPECT_EQ(RcStep(row, {4, true}, std::numeric_limits<int>::max(), true), 1);
    EXPECT_EQ(RcStep(row, {4, true}, std::numeric_limits<int>::min(), false), 1);
    EXPECT_EQ(RcStep({false, false}, {0, true}, 1, true), -1);
    EXPECT_EQ(RcNearest(row, {2, true}), 2);
    EXPECT_EQ(RcNearest(row, {5, true}), 1) << "around";
    EXPECT_EQ(RcNearest({}, {}), -1);

    EXPECT_EQ(RcWithout({3, true}, 1).at, 2);
    EXPECT_TRUE(RcWithout({3, true}, 1).on);
    EXPECT_EQ(RcWithout({3, true}, 3).at, 3);
    EXPECT_FALSE(RcWithout({3, true}, 3).on);
}

TEST_F(CRcMgrTest, StepsThroughControlsSetsAndGroups)
{
    Order(CRcMgr::infoInc);
    EXPECT_EQ(wnd.depth, 5) << "nothing is current yet";
    Order(CRcMgr::infoNextCtrl, 2);
    EXPECT_EQ(mgr.CurCtrl(), wnd.fields[0]) << "the first step only wakes";
    Order(CRcMgr::infoNextCtrl, 2);
    EXPECT_EQ(mgr.CurCtrl(), wnd.fields[2]);
    EXPECT_EQ(watcher.events.size(), 2u);
    EXPECT_EQ(watcher.lastData, wnd.fields[2]);
    Order(CRcMgr::infoNextCtrl);
    EXPECT_EQ(mgr.CurCtrl(), wnd.fields[0]) << "around";
    mgr.wrap = 0;
    Order(CRcMgr::infoPrevCtrl);
    EXPECT_EQ(mgr.CurCtrl(), wnd.fields[0]);
    Order(CRcMgr::infoNextCtrl);

    Order(CRcMgr::infoNextSet);
    EXPECT_EQ(mgr.CurSet(), &display) << "an empty set is passed over";
    EXPECT_EQ(display.GetCount(), 2);
    EXPECT_EQ(mgr.CurCtrl(), wnd.options[0]);
    Order(CRcMgr::infoNextGrp);
    EXPECT_EQ(mgr.CurSet(), &display) << "no other group has a control";
    second.AddWnd(wnd);
    EXPECT_EQ(second.GetCount(), 5);
    Order(CRcMgr::infoNextGrp);
    EXPECT_EQ(mgr.CurGrp()->Name(), L"Second one");
    EXPECT_EQ(mgr.CurCtrl(), wnd.fields[0]);
    Order(CRcMgr::infoPrevGrp);
    Order(CRcMgr::infoPrevSet);
    EXPECT_EQ(mgr.CurCtrl(), wnd.fields[1]) << "a set is entered where it was left";
    EXPECT_EQ(mgr.Select(wnd.options[1]), 1);
    EXPECT_EQ(mgr.CurSet(), &display);

    mgr.infoShift = 100;
    Order(CRcMgr::infoPrevCtrl);
    EXPECT_EQ(mgr.CurCtrl(), wnd.options[1]) << "an order for another manager";
    Order(CRcMgr::infoPrevCtrl + 100);
    EXPECT_EQ(mgr.CurCtrl(), wnd.options[0]);
}

TEST_F(CRcMgrTest, PassesOverWhatTheUserCouldNotOperate)
{
    const auto order = [&] {
        std::vector<CECtrl*> seen;
        mgr.Release();
        mgr.Select(wnd.fields[0]);
        do {
            seen.push_back(mgr.CurCtrl());
            Order(CRcMgr::infoNextCtrl);
        } while (mgr.CurCtrl() != seen.front() && seen.size() < 9);
        return seen;
    };
    CECtrl *const a = wnd.fields[0], *const b = wnd.fields[1], *const c = wnd.fields[2];
    EXPECT_THAT(order(), ElementsAre(a, b, c));
    Disable(b);
    EXPECT_THAT(order(), ElementsAre(a, c));
    Disable(b, false);
    c->state = 1;
    wnd.LayoutWnd();
    EXPECT_THAT(order(), ElementsAre(a, b));
    c->state = 3;
    wnd.LayoutWnd();
    b->level = 2;
    wnd.ShowLevel(2, 0);
    wnd.GetCat(L"Sonar", 0, 0, 0)->ShowLevel(2, 0);
    EXPECT_THAT(order(), ElementsAre(a, c)) << "of a level that is not shown";

    mgr.Select(a);
    Disable(a);
    EXPECT_EQ(mgr.CurCtrl(), nullptr);
    Order(CRcMgr::infoInc);
    EXPECT_EQ(wnd.depth, 5);
    Disable(a, false);
    EXPECT_EQ(mgr.CurCtrl(), a) << "and is current again";
    wnd.EnableWindow(FALSE); // as behind a modal message box
    EXPECT_EQ(mgr.CurCtrl(), nullptr);
    Order(CRcMgr::infoInc);
    EXPECT_EQ(wnd.depth, 5);
    wnd.EnableWindow(TRUE);
    CCtrlCat& section = *wnd.GetCat(L"Sonar", 0, 0, 0);
    section.expanded = 0;
    wnd.LayoutWnd();
    EXPECT_EQ(mgr.StepCtrl(1), 0) << "all of the set are in a closed section";
    EXPECT_EQ(mgr.StepSet(1), 1);
}

TEST_F(CRcMgrTest, DeletedControlsDropOutByThemselves)
{
    std::vector<std::unique_ptr<CEBtn>> made;
    for (int i = 0; i < 4; ++i) {
        made.push_back(std::make_unique<CEBtn>());
        made.back()->Create(WS_VISIBLE, CRect(0, 0, 20, 20), &wnd, 7u);
        others.Add(made.back().get());
    }
    mgr.Select(made[2].get());
    made[0].reset();
    EXPECT_EQ(mgr.CurCtrl(), made[2].get());
    made[2].reset();
    EXPECT_EQ(others.GetCount(), 2);
    EXPECT_EQ(mgr.CurCtrl(), nullptr) << "no press goes to one that the user has not seen glow";
    Order(CRcMgr::infoPrevCtrl);
    EXPECT_EQ(mgr.CurCtrl(), made[1].get());
    Order(CRcMgr::infoNextCtrl);
    EXPECT_EQ(mgr.CurCtrl(), made[3].get());
    made[3]->DestroyWindow();
    Order(CRcMgr::infoNextCtrl);
    EXPECT_EQ(mgr.CurCtrl(), made[1].get());

    const int glowing = made[1]->glow;
    EXPECT_GT(glowing, 0);
    mgr.DelGrp(mgr.FindGrp(L"Empty"));
    EXPECT_EQ(made[1]->glow, 0);
    EXPECT_EQ(mgr.CurCtrl(), nullptr);
    mgr.Select(wnd.options[0]);
    mgr.FindGrp(L"Sensors")->DelSet(&empty);
    EXPECT_EQ(mgr.CurCtrl(), wnd.options[0]) << "another set of the group went";
    wnd.DestroyCtrls();
    EXPECT_EQ(depths.GetCount(), 0);
    Order(CRcMgr::infoNextSet);
    EXPECT_EQ(mgr.CurCtrl(), nullptr);
}

TEST_F(CRcMgrTest, AdjustsByCoarseAndFineStepsAndPresses)
{
    mgr.Select(wnd.fields[0]);
    Order(CRcMgr::infoInc, 3);
    EXPECT_EQ(wnd.depth, 11);
    EXPECT_EQ(TextOf(*wnd.fields[0]), L"11");
    Order(CRcMgr::infoDecFine);
    EXPECT_DOUBLE_EQ(wnd.depth, 10.8);
    Order(CRcMgr::infoFine);
    EXPECT_EQ(watcher.events.size(), 2u) << "told of the finer steps";
    Order(CRcMgr::infoInc);
    EXPECT_DOUBLE_EQ(wnd.depth, 11);
    Order(CRcMgr::infoInc, std::numeric_limits<int>::min());
    wnd.fields[0]->SetRange(0, 20);
    Order(CRcMgr::infoInc);
    EXPECT_EQ(wnd.depth, 0) << "into the range";
    depths.Add(wnd.fields[0], 2, 0.25);
    EXPECT_EQ(depths.GetCount(), 3);
    Order(CRcMgr::infoInc);
    EXPECT_EQ(wnd.depth, 0.25);

    mgr.Select(wnd.options[1]);
    Order(CRcMgr::infoPress, 5);
    EXPECT_EQ(wnd.listener.calls, 1);
    EXPECT_NE(::GetFocus(), wnd.options[1]->m_hWnd) << "the focus is left alone";
}

TEST_F(CRcMgrTest, TheGlowPulsesFadesAndLeavesNoTrace)
{
    CECtrl &first = *wnd.options[0], &field = *wnd.fields[0];
    const auto pictures = [&] {
        std::vector<COLORREF> pixels;
        for (const CECtrl* const ctrl : {&first, &field})
            for (int y = 0; y < 20; ++y)
                for (int x = 0; x < 80; x += 3)
                    pixels.push_back(FramePixelOf(*ctrl, x, y));
        return pixels;
    };
    vant::test::PumpPending();
    const auto plain = pictures();
    mgr.Select(&first);
    const auto bright = pictures();
    EXPECT_NE(bright, plain);
    CECtrl::UpdateAuCtrls(10);
    EXPECT_EQ(pictures(), bright) << "blended once, however often it is drawn";
    CECtrl::UpdateAuCtrls(10 + mgr.pulse / 2);
    const int dim = first.glow;
    EXPECT_LT(dim, 150);
    EXPECT_NE(pictures(), bright);
    CECtrl::UpdateAuCtrls(10 + mgr.pulse);
    EXPECT_EQ(pictures(), bright);

    CECtrl::UpdateAuCtrls(19); // just now, as the pictures may have taken long
    mgr.Select(&field);
    EXPECT_EQ(field.glow, 255);
    CECtrl::UpdateAuCtrls(20);
    CECtrl::UpdateAuCtrls(20 + mgr.fade / 2);
    EXPECT_THAT(first.glow, AllOf(Gt(0), Lt(255))) << "fading";
    CECtrl::UpdateAuCtrls(20 + mgr.fade);
    EXPECT_EQ(first.glow, 0);
    EXPECT_NE(pictures(), plain) << "the field glows, frame and text";
    CECtrl::UpdateAuCtrls(29);
    mgr.Release();
    CECtrl::UpdateAuCtrls(30);
    CECtrl::UpdateAuCtrls(30 + mgr.fade);
    EXPECT_EQ(pictures(), plain);

    {
        CRcMgr other;
        other.GetGrp(L"")->GetSet(L"")->Add(&first);
        other.StepCtrl(1);
        EXPECT_EQ(first.glow, 255);
        first.state = 2;
        first.Update(0);
        CECtrl::UpdateAuCtrls(40);
        CECtrl::UpdateAuCtrls(41);
        CECtrl::UpdateAuCtrls(41 + other.fade);
        EXPECT_EQ(first.glow, 0) << "disabled while it was current";
        first.state = 3;
        first.Update(0);
        CECtrl::UpdateAuCtrls(43);
        EXPECT_EQ(first.glow, 255);
    }
    EXPECT_EQ(first.glow, 0) << "its manager is gone";
    EXPECT_EQ(pictures(), plain);
}

TEST_F(CRcMgrTest, BringsTheCurrentControlIntoView)
{
    wnd.SetWindowPos(nullptr, 0, 0, 300, 120, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    mgr.Select(wnd.options[1]);
    EXPECT_LE(PlaceOf(*wnd.options[1]).bottom, 120);
    EXPECT_GT(wnd.ScrollPos(), 0);
    mgr.Select(wnd.fields[0]);
    EXPECT_GE(PlaceOf(*wnd.fields[0]).top, 0);
    wnd.ScrollTo(1000);
    Order(CRcMgr::infoInc);
    EXPECT_GE(PlaceOf(*wnd.fields[0]).top, 0) << "nobody adjusts what is out of view";
}

TEST_F(CRcMgrTest, SettingsKeepWhereItWasLeft)
{
    CESet saved(1);
    second.AddWnd(wnd);
    mgr.Select(wnd.fields[1]);
    mgr.Select(wnd.options[1]);
    mgr.StepGrp(1);
    mgr.StepCtrl(3);
    mgr.ToggleFine();
    CVantWnd::SaveSet(saved);

    CESet loaded(0);
    static_cast<CLstMgd<CESetCol>&>(loaded) = saved;
    mgr.fine = 0;
    mgr.Select(wnd.fields[2]);
    mgr.FindGrp(L"Second one")->DelSet(&second);
    CRcSet& again = *mgr.GetGrp(L"Second one")->GetSet(L"Fields");
    again.AddWnd(wnd);
    for (CVantPtr* pos = loaded.GetHeadPos(); pos;) {
        CESetCol* const col = loaded.GetNext(pos);
        if (CESetObj* const obj = col->GetObj(L"RcMgr"))
            mgr.Settings(*obj);
    }
    EXPECT_EQ(mgr.fine, 1);
    EXPECT_EQ(mgr.CurCtrl(), nullptr) << "nothing is current until somebody uses the controller";
    mgr.StepCtrl(1);
    EXPECT_EQ(mgr.CurSet(), &again);
    EXPECT_EQ(mgr.CurCtrl(), wnd.options[0]);
    mgr.StepGrp(-1);
    EXPECT_EQ(mgr.CurCtrl(), wnd.options[1]);
    mgr.StepSet(-1);
    EXPECT_EQ(mgr.CurCtrl(), wnd.fields[1]);
}

TEST_F(CRcMgrTest, KeysGiveTheSameOrders)
{
    CRcKeys keys;
    const auto take = [&keys](UINT key, const std::vector<UINT>& held, LPARAM flags = 1) {
        const HeldKeys down(held);
        const MSG msg{nullptr, WM_KEYDOWN, key, flags, 0, {}};
        return keys.Take(&msg);
    };
    constexpr LPARAM beside = 1 << 24, repeated = 1 << 30;
    EXPECT_EQ(take(VK_NUMPAD2, {}), 0);
    EXPECT_EQ(take(VK_NUMPAD2, {VK_CONTROL}), 1);
    EXPECT_EQ(mgr.CurCtrl(), wnd.fields[0]);
    EXPECT_EQ(take(VK_DOWN, {VK_CONTROL}), 1) << "without Num Lock";
    EXPECT_EQ(mgr.CurCtrl(), wnd.fields[1]);
    EXPECT_EQ(take(VK_DOWN, {VK_CONTROL}, beside), 0) << "an arrow key";
    take(VK_ADD, {VK_CONTROL}, repeated);
    EXPECT_EQ(wnd.depth, 7);
    take(VK_ADD, {VK_CONTROL, VK_SHIFT});
    EXPECT_DOUBLE_EQ(wnd.depth, 7.2);

    keys.Map(VK_F13, 0, CRcMgr::infoPress);
    mgr.Select(wnd.options[0]);
    take(VK_F13, {});
    EXPECT_EQ(take(VK_F13, {}, repeated), 1);
    EXPECT_EQ(wnd.listener.calls, 1) << "a key that is held down is no second press";
    keys.Map(VK_F13, 0, 0);
    EXPECT_EQ(take(VK_F13, {}), 0);
}
