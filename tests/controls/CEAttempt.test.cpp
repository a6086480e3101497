#include "controls/CEAttempt.h"

#include "controls/ControlsTest.h"

#include <limits>
#include <thread>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

class AttemptListener : public CObject
{
public:
    void OnBegin()
    {
        ++begun;
        if (atOnce)
            btn->Succeed();
    }
    void OnEnd(int phase) { ended.push_back(phase); }

    CEAttempt* btn = nullptr;
    bool atOnce = false;
    int begun = 0;
    std::vector<int> ended;
};

class AttemptTest : public ControlsTest
{
protected:
    AttemptTest()
    {
        btn.text = L"Connect";
        btn.rc = CRect(10, 10, 130, 34);
        btn.SetCallback(&listener, static_cast<CEVal::CbNone>(&AttemptListener::OnBegin));
        btn.SetEnd(&listener, static_cast<CEVal::CbInt>(&AttemptListener::OnEnd));
        listener.btn = &btn;
        Open(btn);
    }
    static void At(double t) { CECtrl::UpdateAuCtrls(t); }

    AttemptListener listener;
    CEAttempt btn;
};

} // namespace

TEST_F(AttemptTest, IsBegunByAClickAndEndedByTheApplication)
{
    KeyDown(btn, VK_RETURN);
    EXPECT_EQ(btn.Now(), CEAttempt::pending);
    EXPECT_EQ(listener.begun, 1);
    EXPECT_EQ(btn.Number(), 1);
    EXPECT_EQ(btn.Begin(), 0) << "one at a time";
    btn.Fail(L"No route");
    EXPECT_EQ(btn.Now(), CEAttempt::failed);
    btn.tip = L"The sonar";
    CString tip;
    btn.GetTip(tip);
    EXPECT_EQ(Text(tip), L"The sonar\nNo route");
    btn.Succeed();
    EXPECT_THAT(listener.ended, ElementsAre(CEAttempt::failed)) << "it has ended already";
    At(0);
    At(1000);
    EXPECT_EQ(btn.Now(), CEAttempt::failed) << "a failure stays until the next attempt";

    listener.atOnce = true;
    EXPECT_EQ(btn.Begin(), 2);
    EXPECT_EQ(btn.Now(), CEAttempt::succeeded) << "ended by the callback that began it";
    EXPECT_TRUE(btn.Reason().IsEmpty());
    At(1001);
    At(1005.9);
    EXPECT_EQ(btn.Now(), CEAttempt::succeeded);
    At(1006);
    EXPECT_EQ(btn.Now(), CEAttempt::idle);
}

TEST_F(AttemptTest, TimesOutByTheClockOfItsUpdates)
{
    At(10000);
    btn.Begin();
    At(20000);
    EXPECT_EQ(btn.Now(), CEAttempt::pending) << "what passed before does not count";
    At(20009);
    At(std::numeric_limits<double>::quiet_NaN());
    At(500); // the clock was corrected
    EXPECT_EQ(btn.Now(), CEAttempt::pending);
    At(500.9);
    EXPECT_EQ(btn.Now(), CEAttempt::pending);
    At(501);
    EXPECT_EQ(btn.Now(), CEAttempt::timedOut);
    EXPECT_THAT(listener.ended, ElementsAre(CEAttempt::timedOut));

    btn.timeOut = 0;
    btn.Begin();
    At(0);
    At(1e9); // as when the application's time begins to count from 1980
    EXPECT_EQ(btn.Now(), CEAttempt::pending);
    Canvas before(120, 24);
    Canvas after(120, 24);
    DrawTo(btn, before);
    At(1e9 + 0.5);
    DrawTo(btn, after);
    EXPECT_FALSE(after.SameAs(before)) << "the wheel goes on turning";
}

TEST_F(AttemptTest, TakesReportsOfOtherThreadsAtItsUpdates)
{
    const auto report = [this](int attempt, bool ok) {
        std::thread([this, attempt, ok] { btn.Report(attempt, ok, L"Busy"); }).join();
    };
    const int late = btn.Begin();
    btn.Cancel();
    const int current = btn.Begin();
    report(late, true);
    At(1);
    EXPECT_EQ(btn.Now(), CEAttempt::pending) << "the answer to a cancelled attempt";
    report(late, true);
    report(current, false);
    report(late, true);
    report(current, true);
    EXPECT_EQ(btn.Now(), CEAttempt::pending) << "not before the update";
    At(2);
    EXPECT_EQ(btn.Now(), CEAttempt::failed) << "the first report on it";
    EXPECT_EQ(Text(btn.Reason()), L"Busy");
    EXPECT_THAT(listener.ended, ElementsAre(CEAttempt::cancelled, CEAttempt::failed));
}

TEST_F(AttemptTest, ABoundVariableHasThePhase)
{
    int phase = 0;
    CMutex mutex;
    btn.Init(phase);
    btn.SetMutex(&mutex);
    btn.Begin();
    EXPECT_EQ(phase, CEAttempt::pending);
    phase = CEAttempt::succeeded;
    EXPECT_THAT(listener.ended, IsEmpty());
    At(1);
    EXPECT_THAT(listener.ended, ElementsAre(CEAttempt::succeeded));
    At(7);
    EXPECT_EQ(phase, CEAttempt::idle);

    phase = CEAttempt::pending; // begun by the application itself
    At(8);
    EXPECT_EQ(btn.Number(), 2);
    EXPECT_EQ(listener.begun, 1) << "nobody need be told";
    At(18);
    EXPECT_EQ(phase, CEAttempt::timedOut);
    phase = 77;
    EXPECT_EQ(btn.Now(), CEAttempt::idle);
}

TEST_F(AttemptTest, IsCancelledByEscapeOrALaterClickOnly)
{
    const auto click = [this] {
        Press(btn, 40, 5);
        Release(btn, 40, 5);
    };
    click();
    click();
    EXPECT_EQ(btn.Now(), CEAttempt::pending) << "the second click of a double click";
    ::Sleep(::GetDoubleClickTime() + 50);
    click();
    EXPECT_EQ(btn.Now(), CEAttempt::cancelled);
    btn.Begin();
    KeyDown(btn, VK_ESCAPE);
    EXPECT_EQ(btn.Now(), CEAttempt::cancelled);
    btn.mayCancel = 0;
    btn.Begin();
    KeyDown(btn, VK_ESCAPE);
    EXPECT_EQ(btn.Now(), CEAttempt::pending);
    EXPECT_EQ(listener.begun, 3);
}
