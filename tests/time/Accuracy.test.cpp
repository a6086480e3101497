// What the fits achieve, over hours of polling that take no time.
#include "time/CTmFnSteady.h"
#include "time/TimeTest.h"

#include <cmath>
#include <random>

namespace
{

constexpr double rateGoal = 1e-7;
constexpr double offsetGoal = 1e-3; // seconds
constexpr int hour = 3600;

class Accuracy : public SimulatedTimeTest
{
protected:
    Accuracy()
    {
        random.seed(1);
        jitter = step = 0.0;
        wrongOf10 = 0;
        isStuck = false;
        readings = 0;
        // The PC's counter is 30 ppm fast; the source loses 5 ppm.
        counterRate = 1.0 + 30e-6;
    }

    static constexpr double sourceRate = 1.0 - 5e-6;
    static double TrueReading() { return 1000.0 + trueTime * sourceRate + step; }

    /** A reading as a device gives it. Three of every ten, at random, may be off by up to a second. */
    static double Reading()
    {
        static double last = 0.0;
        if (isStuck)
            return last;
        constexpr int group = 10;
        if (readings++ % group == 0) {
            std::fill_n(isWrong, group, false);
            std::fill_n(isWrong, wrongOf10, true);
            std::shuffle(isWrong, isWrong + group, random);
        }
        last = TrueReading() + std::normal_distribution<>(0.0, 1.0)(random) * jitter;
        if (isWrong[(readings - 1) % group])
            last += std::uniform_real_distribution<>(-1.0, 1.0)(random);
        return last;
    }

    /** Polls at intervals that the machine's load stretches by up to 10 ms. */
    void Poll(int count)
    {
        while (count-- > 0) {
            Pass(1.0 + std::uniform_real_distribution<>(0.0, 0.01)(random));
            ASSERT_TRUE(round.Run(stop));
        }
    }

    static CTmEnt LineOf(const CTmFn& source)
    {
        CTmEnt line;
        EXPECT_EQ(source.GetMC(line.m, line.c), 1);
        return line;
    }
    static double RateError(const CTmFn& source)
    {
        return std::abs(LineOf(source).m - sourceRate / counterRate);
    }
    /** In seconds: what the source is taken to read now. */
    static double OffsetError(const CTmFn& source)
    {
        return std::abs(LineOf(source).m * TmSync::GetTm() + LineOf(source).c - TrueReading());
    }

    static inline std::mt19937 random;
    static inline double jitter = 0.0; // standard deviation, seconds
    static inline int wrongOf10 = 0;
    static inline double step = 0.0;
    static inline bool isStuck = false;
    static inline long long readings = 0;
    static inline bool isWrong[10] = {};
};

} // namespace

TEST_F(Accuracy, UnevenPollsAndWrongReadingsDoNotShow)
{
    Device device(Reading);
    TmSync::AddTmFn(&device);
    wrongOf10 = 3;
    Poll(60);
    for (int minute = 0; minute < 60; ++minute) {
        Poll(60);
        ASSERT_LT(RateError(device), rateGoal);
        ASSERT_LT(OffsetError(device), offsetGoal / 100);
    }
    step = 1.0;
    Poll(1);
    EXPECT_LT(RateError(device), rateGoal) << "one slope of a step is one of those that do not count";
    Poll(60);
    EXPECT_LT(OffsetError(device), offsetGoal);
}

TEST_F(Accuracy, ReadingsThatJitterNeedTheSteadySource)
{
    Device device(Reading);
    CTmFnSteady steady(device);
    EXPECT_EQ(steady.name, L"Device steady");
    TmSync::AddTmFn(&device);
    TmSync::AddTmFn(&steady);
    jitter = 0.01;
    wrongOf10 = 3;
    Poll(hour);
    EXPECT_GT(RateError(device), 1e-5) << "slopes from second to second are as good as their ends";
    EXPECT_LT(RateError(device), 2e-2);
    EXPECT_LT(RateError(steady), 6e-7);
    EXPECT_LT(OffsetError(steady), 1.5 * offsetGoal);
    Poll(3 * hour);
    for (int i = 0; i < 24; ++i) {
        Poll(600);
        ASSERT_LT(RateError(steady), rateGoal) << i;
        ASSERT_LT(OffsetError(steady), offsetGoal) << i;
    }
}

TEST_F(Accuracy, AStepIsFollowedAndTheRateKept)
{
    Device device(Reading);
    CTmFnSteady steady(device);
    TmSync::AddTmFn(&steady);
    jitter = 0.01;
    wrongOf10 = 3;
    Poll(4 * hour);
    step = -0.5;
    Poll(60);
    EXPECT_NEAR(OffsetError(steady), 0.5, 2e-3) << "might be wrong readings";
    Poll(180);
    EXPECT_LT(OffsetError(steady), 5e-3);
    EXPECT_LT(RateError(steady), 2 * rateGoal);
    Poll(hour);
    EXPECT_LT(OffsetError(steady), offsetGoal);
    EXPECT_LT(RateError(steady), 2 * rateGoal);
}

TEST_F(Accuracy, ASourceThatStandsStillOrFailsIsCarriedOn)
{
    Device device(Reading);
    CTmFnSteady steady(device);
    TmSync::AddTmFn(&device);
    TmSync::AddTmFn(&steady);
    Poll(hour);
    isStuck = true;
    Poll(hour);
    EXPECT_LT(RateError(device), rateGoal) << "no new slopes";
    EXPECT_LT(RateError(steady), rateGoal);
    EXPECT_LT(OffsetError(steady), offsetGoal);
    isStuck = false;
    device.isFailing = true;
    Poll(hour);
    EXPECT_LT(OffsetError(steady), offsetGoal);
    device.isFailing = false;
    Poll(600);
    EXPECT_LT(OffsetError(device), offsetGoal);
    EXPECT_LT(OffsetError(steady), offsetGoal);
}

TEST_F(Accuracy, ASteadySourceFindsItsWayWhenNothingFits)
{
    Device device([] { return TrueReading() * (step > 0.0 ? 1.01 : 1.0); });
    CTmFnSteady steady(device, 0.5);
    TmSync::AddTmFn(&steady);
    Poll(600);
    EXPECT_LT(RateError(steady), rateGoal);
    step = 1.0; // and from now on one percent fast
    Poll(1200);
    const CTmEnt line = LineOf(steady);
    EXPECT_NEAR(line.m, 1.01 * sourceRate / counterRate, rateGoal);
    EXPECT_NEAR(line.m * TmSync::GetTm() + line.c, device.read(), offsetGoal);
}
