#include "demo/detail/AlarmWatch.h"
#include "demo/detail/Playback.h"
#include "demo/run/SentenceFeed.h"
#include "demo/session/AlarmTexts.h"
#include "platform/Vant.h"
#include "values/EUnits.h"
#include "windows/CCslAlm.h"
#include "windows/CCslComms.h"

#include "Files.h"
#include "Lines.h"
#include "support/TempDir.h"

#include <gmock/gmock.h>

#include <algorithm>

using namespace demo;
using testing::ElementsAre;

namespace
{

constexpr bool begins = true;
constexpr bool ends = false;

auto Event(AlarmId id, bool begin, double time, double value)
{
    return testing::AllOf(testing::Field(&AlarmEvent::id, id), testing::Field(&AlarmEvent::begins, begin),
                          testing::Field(&AlarmEvent::time, testing::DoubleNear(time, 1e-9)),
                          testing::Field(&AlarmEvent::value, testing::DoubleNear(value, 1e-9)));
}

AlarmWatch Watch(double limit)
{
    AlarmWatch watch;
    watch.SetShallowLimit(limit);
    return watch;
}

} // namespace

TEST(AlarmWatch, ShallowWaterEndsWithSomethingToSpare)
{
    AlarmWatch watch = Watch(10.0);
    watch.Sound(1.0, 10.0);
    EXPECT_FALSE(watch.IsOn(AlarmId::ShallowWater)) << "the limit itself is safe";
    watch.Sound(2.0, 9.9);
    EXPECT_TRUE(watch.IsOn(AlarmId::ShallowWater));
    for (const double depth : {10.1, 9.8, missing, 10.4, 9.9})
        watch.Sound(3.0, depth);
    EXPECT_TRUE(watch.IsOn(AlarmId::ShallowWater));
    watch.Sound(4.0, 10.5);
    EXPECT_FALSE(watch.IsOn(AlarmId::ShallowWater));
    watch.Sound(5.0, 10.1);
    EXPECT_THAT(watch.TakeEvents(), ElementsAre(Event(AlarmId::ShallowWater, begins, 2.0, 9.9),
                                                Event(AlarmId::ShallowWater, ends, 4.0, 10.5)));
    EXPECT_TRUE(watch.TakeEvents().empty());
}

TEST(AlarmWatch, NothingIsShallowWithoutALimit)
{
    AlarmWatch watch = Watch(0.0);
    watch.Sound(1.0, 0.0);
    watch.Sound(2.0, -3.0);
    watch.Sound(3.0, missing);
    EXPECT_TRUE(watch.TakeEvents().empty());
}

TEST(AlarmWatch, AFixIsLostAfterFiveSecondsAndBackWhenItIsSteady)
{
    AlarmWatch watch;
    watch.Fix(1.0, true);
    watch.Fix(2.0, false);
    watch.Pass(6.0);
    EXPECT_FALSE(watch.IsOn(AlarmId::LostFix)) << "five seconds are not too long";
    watch.Pass(7.5);
    EXPECT_TRUE(watch.IsOn(AlarmId::LostFix));
    EXPECT_DOUBLE_EQ(6.5, watch.SearchTime(7.5));
    watch.Fix(9.0, true); // 8 s of search
    watch.Fix(10.0, false);
    watch.Fix(12.0, true); // 3 s more
    watch.Fix(13.9, true);
    EXPECT_TRUE(watch.IsOn(AlarmId::LostFix)) << "not steady yet";
    watch.Fix(14.0, true);
    EXPECT_FALSE(watch.IsOn(AlarmId::LostFix));
    EXPECT_THAT(watch.TakeEvents(), ElementsAre(Event(AlarmId::LostFix, begins, 6.0, 5.0),
                                                Event(AlarmId::LostFix, ends, 14.0, 11.0)));
}

TEST(AlarmWatch, ASilentReceiverIsALostFixToo)
{
    AlarmWatch watch;
    watch.Fix(1.0, true);
    watch.Fix(20.0, true); // the silence is noticed with the report that ends it
    EXPECT_TRUE(watch.IsOn(AlarmId::LostFix));
    watch.Fix(24.0, true); // a gap: the fix begins anew
    EXPECT_TRUE(watch.IsOn(AlarmId::LostFix));
    watch.Fix(25.0, true);
    watch.Fix(26.0, true);
    EXPECT_THAT(watch.TakeEvents(), ElementsAre(Event(AlarmId::LostFix, begins, 6.0, 5.0),
                                                Event(AlarmId::LostFix, ends, 26.0, 23.0)));
}

TEST(AlarmWatch, ANewStartEndsWhatIsOn)
{
    AlarmWatch watch = Watch(10.0);
    watch.Sound(1.0, 4.0);
    watch.Pass(8.0);
    watch.Restart(9.0);
    EXPECT_THAT(watch.TakeEvents(), ElementsAre(Event(AlarmId::ShallowWater, begins, 1.0, 4.0),
                                                Event(AlarmId::LostFix, begins, 5.0, 5.0),
                                                Event(AlarmId::ShallowWater, ends, 9.0, 4.0),
                                                Event(AlarmId::LostFix, ends, 9.0, 9.0)));
    EXPECT_FALSE(watch.IsOn(AlarmId::ShallowWater));
    EXPECT_FALSE(watch.IsOn(AlarmId::LostFix));
    EXPECT_EQ(10.0, watch.ShallowLimit());
    watch.Pass(4.0);
    EXPECT_TRUE(watch.TakeEvents().empty()) << "the search begins anew";
}

TEST(AlarmWatch, TheLengthOfASearchCanBeSet)
{
    AlarmWatch watch = Watch(10.0);
    watch.SetLongestSearch(30.0);
    watch.Fix(1.0, true);
    watch.Pass(31.0);
    EXPECT_FALSE(watch.IsOn(AlarmId::LostFix));
    watch.Restart(0.0);
    watch.Pass(30.5);
    EXPECT_THAT(watch.TakeEvents(), ElementsAre(Event(AlarmId::LostFix, begins, 30.0, 30.0)))
        << "also after a new start";
}

TEST(AlarmWatch, TheSurveyRaisesItsAlarmsWhateverTheSteps)
{
    const Tape tape(Contents(DEMO_DATA_DIR "/survey.nmea"));
    std::vector<AlarmEvent> all[2];
    for (const double step : {200.0, 0.25}) {
        Playback playback(tape);
        playback.Alarms().SetShallowLimit(14.0);
        for (double time = 0.0; time < 200.0; time += step)
            playback.Advance(step);
        all[step < 1.0] = playback.Alarms().TakeEvents();
    }
    for (const std::vector<AlarmEvent>& events : all) {
        ASSERT_EQ(6U, events.size()) << "the bank twice and a drop-out of the fix";
        EXPECT_EQ(AlarmId::ShallowWater, events[0].id);
        EXPECT_EQ(AlarmId::LostFix, events[3].id);
        EXPECT_NEAR(122.0, events[3].time, 0.2) << "the last fix was at 117 s";
        EXPECT_NEAR(9.0, events[4].value, 0.2);
    }
    for (std::size_t i = 0; i < all[0].size(); ++i) {
        EXPECT_EQ(all[0][i].begins, all[1][i].begins);
        EXPECT_EQ(all[0][i].id, all[1][i].id);
        EXPECT_NEAR(all[0][i].time, all[1][i].time, 1e-9);
    }
}

TEST(Playback, ASlantingBeamMeasuresMoreThanTheDepth)
{
    const Tape tape(Line("SDDPT,10.00,0.5") + "\r\n" + Line("SDDBT,32.8,f,10.0,M,5.5,F") + "\r\n");
    Playback playback(tape);
    playback.SetMounting({0.0, 30.0 * degree});
    playback.Alarms().SetShallowLimit(6.0);
    playback.Advance(1.0);
    EXPECT_NEAR(5.0, playback.Value(Quantity::DepthBelowTransducer), 1e-9);
    EXPECT_NEAR(5.5, playback.Value(Quantity::DepthBelowSurface), 1e-9) << "what is above it is upright";
    EXPECT_NEAR(5.5, playback.Depths().Last().depth, 1e-9);
    EXPECT_TRUE(playback.Alarms().IsOn(AlarmId::ShallowWater));
    playback.Rewind();
    EXPECT_NEAR(30.0 * degree, playback.Mounted().slope, 1e-12);
    EXPECT_EQ(1.0, Mounting().DepthPart());
    EXPECT_EQ(0.0, Mounting().SidePart());
    EXPECT_EQ(0.0, Mounting({0.0, -1.0}).DepthPart()) << "never above the horizon";
    EXPECT_EQ(1.0, Mounting({0.0, -1.0}).SidePart());
}

TEST(Playback, ARewindEndsAlarmsAndKeepsTheLimit)
{
    const Tape tape(Line("SDDPT,3.00,0.5") + "\r\n");
    Playback playback(tape);
    playback.Alarms().SetShallowLimit(5.0);
    playback.Advance(1.0);
    EXPECT_TRUE(playback.Alarms().IsOn(AlarmId::ShallowWater));
    playback.Rewind();
    EXPECT_FALSE(playback.Alarms().IsOn(AlarmId::ShallowWater));
    EXPECT_EQ(5.0, playback.Alarms().ShallowLimit());
    EXPECT_EQ(2U, playback.Alarms().TakeEvents().size()) << "its end is not lost";
}

TEST(Alarms, ReachTheConsoleAndItsLog)
{
    const vant::test::TempDir dir;
    Vant::dataDir = dir.Path(L"");
    Vant::alarm.SetupCsl(2);
    Vant::alarm.logTo = 1;
    EUnits::system = 0;
    EXPECT_EQ(L"Shallow water: 13.2m, limit 14.0m",
              RaiseAlarm({1.0, AlarmId::ShallowWater, begins, 13.2}, 14.0));
    RaiseAlarm({2.0, AlarmId::LostFix, begins, 5.0}, 14.0);
    RaiseAlarm({3.0, AlarmId::LostFix, ends, 9.04}, 14.0);
    EUnits::system = 1;
    EXPECT_EQ(L"Deep enough again: 49ft 3in", RaiseAlarm({4.0, AlarmId::ShallowWater, ends, 15.0}, 14.0));
    EUnits::system = 0;

    EXPECT_EQ(2, Vant::alarm.entries.GetCount()) << "an end takes the place of its beginning";
    CECEntry entry;
    ASSERT_TRUE(Vant::alarm.GetEntry(3002, entry));
    EXPECT_LT(entry.state, 0) << "an end is silent";
    EXPECT_THAT(static_cast<LPCWSTR>(entry.text), testing::HasSubstr(L"Position back after 9.0 s"));
    const std::string text = Contents(dir.Path(L"Logs\\Alarms.csv").GetString());
    for (const char* line : {"Shallow water: 13.2m, limit 14.0m", "No position for 5 s", "49ft 3in"})
        EXPECT_THAT(text, testing::HasSubstr(line));
    EXPECT_EQ(4, std::count(text.begin(), text.end(), '\n'));
}

TEST(Alarms, EverySentenceIsFedOnceAndDamagedOnesAreMarked)
{
    const Tape tape(Line("SDDPT,3.00,0.5") + "\r\n" + "$SDDPT,3.00,\x07.5*00\r\n");
    Playback playback(tape);
    SentenceFeed feed;
    while (!Vant::comms.entries.IsEmpty()) // of another run of the test
        delete Vant::comms.entries.RemoveHead();
    feed.Feed(tape, playback);
    EXPECT_TRUE(Vant::comms.entries.IsEmpty()) << "nothing has been played";
    playback.Advance(10.0);
    feed.Feed(tape, playback);
    feed.Feed(tape, playback);
    ASSERT_EQ(2, Vant::comms.entries.GetCount());
    const CECEntry& sound = *Vant::comms.entries.GetHead();
    const CECEntry& damaged = *Vant::comms.entries.GetTail();
    EXPECT_EQ(0, sound.state);
    EXPECT_THAT(static_cast<LPCWSTR>(sound.text), testing::HasSubstr(L"$SDDPT,3.00,0.5*"));
    EXPECT_EQ(SentenceFeed::damagedLevel, damaged.state);
    EXPECT_THAT(static_cast<LPCWSTR>(damaged.text), testing::EndsWith(L"$SDDPT,3.00,..5*00"));
    playback.Rewind();
    feed.Feed(tape, playback);
    playback.Advance(10.0);
    feed.Feed(tape, playback);
    EXPECT_EQ(4, Vant::comms.entries.GetCount()) << "a rewound tape is fed again";
}
