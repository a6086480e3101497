#include "controls/CEProcess.h"

#include "controls/ControlsTest.h"
#include "controls/InputHost.h"
#include "support/MessagePump.h"

#include <limits>

using vant::detail::TimeLeft;
using vant::detail::TimeLeftText;

namespace
{

using ProcessTest = ControlsTest;

constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();

/** Seconds left after going at a rate for some time, looked at ten times a second; -1 for none. */
double After(TimeLeft& left, double& t, double& share, double rate, double seconds, bool runs = true)
{
    for (int i = 0; i < seconds * 10; ++i) {
        t += 0.1;
        share += rate / 10;
        left.Look(t, share, runs);
    }
    return left.Seconds().value_or(-1);
}

} // namespace

TEST(TimeLeftTest, GoesByTheRateThatItSaw)
{
    TimeLeft left;
    double t = 100;
    double share = 0.2;
    left.Look(t, share, true);
    EXPECT_FALSE(left.Seconds());
    EXPECT_EQ(After(left, t, share, 0.01, 0.5), -1) << "too early to tell";
    EXPECT_NEAR(After(left, t, share, 0.01, 9.5), 70, 0.1);
    EXPECT_NEAR(After(left, t, share, 0, 30, false), 70, 0.1) << "a pause does not count";
    const double stalled = After(left, t, share, 0, 10);
    EXPECT_GT(stalled, 90) << "a stall does";
    const double faster = After(left, t, share, 0.05, 6);
    EXPECT_LT(faster, 15);
    EXPECT_GT(faster, 8);

    left.Look(t, share - 0.1, true);
    EXPECT_FALSE(left.Seconds()) << "begun anew";
}

TEST(TimeLeftTest, SurvivesClocksAndSharesThatAreNone)
{
    TimeLeft left;
    double t = 0;
    double share = 0;
    left.Look(noNumber, 0, true);
    left.Look(t, noNumber, true);
    EXPECT_NEAR(After(left, t, share, 0.02, 10), 40, 0.1);
    left.Look(-1e9, share, true);
    left.Look(std::numeric_limits<double>::infinity(), share, true);
    left.Look(t = -1e9, noNumber, true);
    EXPECT_NEAR(left.Seconds().value_or(-1), 40, 0.1);
    left.Look(t + 0.1, 7, true);
    EXPECT_EQ(left.Seconds(), 0);
}

TEST(TimeLeftTest, IsWrittenLikeAClock)
{
    EXPECT_EQ(TimeLeftText(0), L"0:00");
    EXPECT_EQ(TimeLeftText(6.2), L"0:07");
    EXPECT_EQ(TimeLeftText(59.5), L"1:00");
    EXPECT_EQ(TimeLeftText(3599), L"59:59");
    EXPECT_EQ(TimeLeftText(3750), L"1:02:30");
    EXPECT_EQ(TimeLeftText(359999), L"99:59:59");
    for (const double none : {360000.0, -5.0, noNumber, std::numeric_limits<double>::infinity()})
        EXPECT_EQ(TimeLeftText(none), L"");
}

TEST_F(ProcessTest, ShowsTheShareOfTheRange)
{
    unsigned int sent = 57;
    CEProcess bar;
    EXPECT_EQ(bar.ctrlType, 0);
    bar.Init(sent);
    bar.SetRange(0, 100);
    EXPECT_EQ(Text(bar.Figures()), L"57 %");
    sent = 250;
    EXPECT_EQ(bar.Share(), 1);
    EXPECT_EQ(bar.ShownStatus(), CEProcess::done);
    EXPECT_EQ(Text(bar.Figures()), L"100 %");
    bar.SetRange(1000, 0);
    EXPECT_EQ(bar.Share(), 0.75) << "counting down";
    bar.status = CEProcess::failed;
    EXPECT_EQ(bar.ShownStatus(), CEProcess::failed);
    bar.showPercent = 0;
    EXPECT_TRUE(bar.Figures().IsEmpty());

    double share = 0.9999;
    bar.status = CEProcess::running;
    bar.showPercent = 1;
    bar.Init(share);
    bar.SetRange(0, 1);
    EXPECT_EQ(Text(bar.Figures()), L"99 %") << "not 100 before it is";
    share = -32768.0;
    EXPECT_TRUE(std::isnan(bar.Share()));
    EXPECT_TRUE(bar.Figures().IsEmpty());
    share = 0;
    bar.SetRange(3, 3);
    EXPECT_TRUE(std::isnan(bar.Share()));
}

TEST_F(ProcessTest, FillsTheBarAsFarAsItHasCome)
{
    double share = 0.5;
    CEProcess bar;
    bar.Init(share);
    bar.rc = CRect(0, 0, 200, 20);
    bar.showPercent = 0;
    Open(bar);
    Canvas canvas(200, 20);
    const auto at = [&](int x) {
        DrawTo(bar, canvas);
        return canvas.At(x, 12);
    };
    const std::uint32_t full = at(60);
    const std::uint32_t empty = at(140);
    EXPECT_NE(full, empty);
    EXPECT_EQ(at(99), full);
    EXPECT_EQ(at(101), empty);
    bar.status = CEProcess::paused;
    EXPECT_NE(at(60), full);
    share = 0;
    EXPECT_EQ(at(5), empty);
    bar.state = CECtrl::stShown;
    share = 1;
    EXPECT_EQ(at(60), empty);
}

TEST_F(ProcessTest, FollowsTheVariableByItself)
{
    ShowParent();
    int sent = 10;
    CEProcess bar;
    bar.Init(sent);
    bar.SetRange(0, 100);
    bar.rc = CRect(0, 0, 200, 20);
    Open(bar);
    bar.UpdateWindow();
    bar.AutoUpdate(0);
    EXPECT_FALSE(bar.GetUpdateRect(nullptr)) << "nothing has changed";
    const COLORREF empty = PixelOf(bar, 80, 15);
    sent = 60;
    const ULONGLONG end = ::GetTickCount64() + 5000;
    while (PixelOf(bar, 80, 15) == empty && ::GetTickCount64() < end)
        vant::test::PumpPending();
    EXPECT_LT(::GetTickCount64(), end);
}
