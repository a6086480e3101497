#include "demo/detail/Playback.h"
#include "demo/detail/DepthShares.h"

#include "Files.h"
#include "Lines.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace demo;

namespace
{

std::string Fix(int second, const char* rest = ",A,5428.2721,N,01023.5262,E,4.87,61.2,170624,,")
{
    char time[16];
    std::snprintf(time, sizeof time, "%06d", 94100 + second);
    return Line(std::string("GPRMC,") + std::string(time) + rest) + "\r\n";
}

constexpr const char* noFix = ",V,,,,,,,170624,,";

std::string SurveyLog()
{
    return Contents(DEMO_DATA_DIR "/survey.nmea");
}

} // namespace

TEST(Playback, NothingIsKnownAtFirst)
{
    const Tape tape(Fix(0));
    const Playback playback(tape);
    EXPECT_EQ(missing, playback.Value(Quantity::Latitude));
    EXPECT_LT(playback.Age(Quantity::Latitude), 0.0);
    EXPECT_EQ(Freshness::None, playback.State(Sensor::Position));
    EXPECT_EQ(0U, playback.Counts().read);
}

TEST(Playback, ReadingsGrowStaleAndAreDropped)
{
    const Tape tape(Fix(0) + Line("YXMTW,14.3,C") + "\r\n");
    Playback playback(tape);
    playback.Advance(0.5);
    EXPECT_TRUE(playback.AtEnd());
    EXPECT_EQ(Freshness::Live, playback.State(Quantity::SpeedOverGround));
    EXPECT_EQ(Freshness::None, playback.State(Quantity::Heading));
    playback.Advance(4.5);
    EXPECT_EQ(Freshness::Stale, playback.State(Quantity::SpeedOverGround));
    EXPECT_EQ(Freshness::Live, playback.State(Quantity::WaterTemperature)) << "reports less often";
    EXPECT_DOUBLE_EQ(5.0, playback.Age(Quantity::SpeedOverGround));
    EXPECT_NEAR(4.87 * knot, playback.Value(Quantity::SpeedOverGround), 1e-12);
    playback.Advance(30.0);
    EXPECT_EQ(Freshness::None, playback.State(Quantity::SpeedOverGround));
}

TEST(Playback, AnEmptyReportIsMissingAtOnce)
{
    const Tape tape(Fix(0) + Fix(1, noFix));
    Playback playback(tape);
    playback.Advance(0.9);
    EXPECT_EQ(Freshness::Live, playback.State(Sensor::Position));
    playback.Advance(0.1);
    EXPECT_EQ(Freshness::None, playback.State(Sensor::Position));
    EXPECT_EQ(missing, playback.Value(Quantity::Latitude));
    EXPECT_DOUBLE_EQ(0.0, playback.Age(Quantity::Latitude));
}

TEST(Playback, ReportsDropOutsWithTheirLength)
{
    // Positions at 0..3 s, none from 4 s to 7 s, again from 8 s.
    std::string log;
    for (int second = 0; second < 12; ++second)
        log +=
            Fix(second, second >= 4 && second < 8 ? noFix : ",A,5428.2721,N,01023.5262,E,4.87,61.2,170624,,");
    const Tape tape(log);
    Playback playback(tape);
    playback.Advance(12.0);
    const std::vector<SensorEvent> events = playback.TakeEvents();
    ASSERT_EQ(2U, events.size());
    EXPECT_EQ(Sensor::Position, events[0].sensor);
    EXPECT_TRUE(events[0].lost);
    EXPECT_DOUBLE_EQ(4.0, events[0].time);
    EXPECT_FALSE(events[1].lost);
    EXPECT_DOUBLE_EQ(8.0, events[1].time);
    EXPECT_DOUBLE_EQ(5.0, events[1].outage) << "since the last good one at 3 s";
    EXPECT_TRUE(playback.TakeEvents().empty());

    EXPECT_EQ(8U, playback.Track().Size());
    EXPECT_FALSE(playback.Track()[0].joined);
    EXPECT_TRUE(playback.Track()[3].joined);
    EXPECT_FALSE(playback.Track()[4].joined) << "no line is drawn across the drop-out";
    EXPECT_TRUE(playback.Track()[5].joined);
}

TEST(Playback, PositionsWithoutATimeMakeATrackToo)
{
    std::string log;
    for (const char* const latitude : {"5428.2721", "5428.2731", "5428.2741"})
        log += Line(std::string("GPRMC,,A,") + latitude + ",N,01023.5262,E,4.87,61.2,170624,,") + "\r\n";
    const Tape tape(log);
    Playback playback(tape);
    playback.Advance(1.0);
    EXPECT_EQ(3U, playback.Track().Size());
}

TEST(Playback, SilenceIsDatedWhenItIsNoticeable)
{
    std::string log = Fix(0) + Line("HEHDT,65.7,T") + "\r\n";
    for (int second = 1; second < 10; ++second)
        log += Fix(second);
    const Tape tape(log);
    Playback playback(tape);
    playback.Advance(9.0);
    const std::vector<SensorEvent> events = playback.TakeEvents();
    ASSERT_EQ(1U, events.size());
    EXPECT_EQ(Sensor::Heading, events[0].sensor);
    EXPECT_DOUBLE_EQ(0.5 + 1.5, events[0].time);
}

TEST(Playback, OnlyGoesForward)
{
    const Tape tape(Fix(0) + Fix(1) + Fix(2));
    Playback playback(tape);
    playback.Advance(1.0);
    playback.Advance(-5.0);
    playback.Advance(std::numeric_limits<double>::quiet_NaN());
    EXPECT_DOUBLE_EQ(1.0, playback.Time());
    EXPECT_EQ(2U, playback.Counts().read);
    playback.Rewind();
    EXPECT_EQ(0.0, playback.Time());
    EXPECT_EQ(0U, playback.Counts().read);
    EXPECT_TRUE(playback.Track().IsEmpty());
}

TEST(Playback, PlaysTheSurveyWithTheCountsItWasMadeWith)
{
    const Tape tape(SurveyLog());
    EXPECT_EQ(4600U, tape.Size());
    EXPECT_NEAR(300.0, tape.Duration(), 0.5);

    Playback playback(tape);
    playback.Advance(tape.Duration());
    EXPECT_TRUE(playback.AtEnd());
    EXPECT_EQ(4600U, playback.Counts().read);
    EXPECT_EQ(11U, playback.Counts().rejected);
    EXPECT_EQ(58U, playback.Counts().ignored);
    EXPECT_EQ(4531U, playback.Counts().accepted);
    EXPECT_NEAR(54.47 * degree, playback.Value(Quantity::Latitude), 0.01 * degree);

    std::size_t lost[sensorCount] = {};
    for (const SensorEvent& event : playback.TakeEvents())
        lost[static_cast<std::size_t>(event.sensor)] += event.lost ? 1 : 0;
    EXPECT_EQ(2U, lost[static_cast<std::size_t>(Sensor::Position)]);
    EXPECT_EQ(1U, lost[static_cast<std::size_t>(Sensor::Heading)]);
    EXPECT_EQ(1U, lost[static_cast<std::size_t>(Sensor::Depth)]);
    EXPECT_EQ(1U, lost[static_cast<std::size_t>(Sensor::Wind)]);
    EXPECT_EQ(0U, lost[static_cast<std::size_t>(Sensor::WaterSpeed)]);
    EXPECT_EQ(1U, lost[static_cast<std::size_t>(Sensor::Temperature)]);
}

TEST(Playback, DoesNotDependOnTheSteps)
{
    const Tape tape(SurveyLog());
    Playback whole(tape);
    Playback steps(tape);
    whole.Advance(200.0);
    for (int i = 0; i < 200 * 64; ++i)
        steps.Advance(1.0 / 64.0);

    EXPECT_EQ(whole.Counts().read, steps.Counts().read);
    EXPECT_EQ(whole.Track().Size(), steps.Track().Size());
    EXPECT_EQ(whole.Depths().Size(), steps.Depths().Size());
    for (std::size_t i = 0; i < quantityCount; ++i) {
        const auto quantity = static_cast<Quantity>(i);
        EXPECT_EQ(whole.Value(quantity), steps.Value(quantity)) << i;
        EXPECT_EQ(whole.State(quantity), steps.State(quantity)) << i;
    }
    const auto a = whole.TakeEvents();
    const auto b = steps.TakeEvents();
    ASSERT_EQ(a.size(), b.size());
    for (std::size_t i = 0; i < a.size(); ++i) {
        EXPECT_EQ(a[i].sensor, b[i].sensor) << i;
        EXPECT_NEAR(a[i].time, b[i].time, 1e-9) << i;
    }
}

TEST(History, ForgetsTheOldest)
{
    History<int> history(3);
    EXPECT_TRUE(history.IsEmpty());
    for (int i = 1; i <= 5; ++i)
        history.Add(i);
    ASSERT_EQ(3U, history.Size());
    EXPECT_EQ(3, history[0]);
    EXPECT_EQ(5, history[2]);
    EXPECT_EQ(5, history.Last());
    history.Clear();
    history.Add(9);
    EXPECT_EQ(9, history[0]);
}

TEST(DepthShares, CountsWhatLiesInTheRange)
{
    demo::History<demo::DepthSample> soundings(100);
    EXPECT_EQ((std::vector<double>{0, 0}), demo::DepthShares(soundings, 10, 20, 2));
    for (const double depth :
         {10.0, 14.9, 12.0, 13.0, 15.0, 19.9, 9.9, 20.0, 1e300, demo::missing, std::nan("")})
        soundings.Add({0.0, depth});
    EXPECT_EQ((std::vector<double>{1, 0.5}), demo::DepthShares(soundings, 10, 20, 2));
    EXPECT_TRUE(demo::DepthShares(soundings, 20, 20, 2).empty());
    EXPECT_TRUE(demo::DepthShares(soundings, 20, 10, 2).empty());
    EXPECT_TRUE(demo::DepthShares(soundings, 10, 20, 0).empty());
}
