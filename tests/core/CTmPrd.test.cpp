#include "core/CTmPrd.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include <windows.h>

namespace
{

long long Counter()
{
    LARGE_INTEGER count{};
    QueryPerformanceCounter(&count);
    return count.QuadPart;
}

/** Waits until the counter has moved on, however coarse it is. */
void LetTheCounterMove()
{
    for (const long long before = Counter(); Counter() == before;) {
    }
}

} // namespace

TEST(CTmPrd, StartsWithAnIntervalOfLengthZero)
{
    const CTmPrd period;
    EXPECT_EQ(period.start, period.stop);
    EXPECT_EQ(period.GetMS(), 0.0);
    EXPECT_EQ(period.GetEPS(), std::numeric_limits<double>::infinity());
    LARGE_INTEGER frequency{};
    QueryPerformanceFrequency(&frequency);
    EXPECT_EQ(period.msPerCount, 1000.0 / static_cast<double>(frequency.QuadPart));
}

TEST(CTmPrd, IntervalInMillisecondsAndEventsPerSecond)
{
    CTmPrd period;
    period.msPerCount = 0.5;
    period.start = 1000;
    period.stop = 1500;
    EXPECT_EQ(period.GetMS(), 250.0);
    EXPECT_EQ(period.GetEPS(), 4.0);
    const CTmPrd copy = period;
    EXPECT_EQ(copy.GetMS(), 250.0);
    period.stop = 900;
    EXPECT_EQ(period.GetMS(), -50.0);
}

TEST(CTmPrd, StartStopAndSetTimeReadTheCounter)
{
    CTmPrd period;
    const long long before = Counter();
    LetTheCounterMove();
    period.Start();
    LetTheCounterMove();
    period.Stop();
    LetTheCounterMove();
    EXPECT_GT(period.start, before);
    EXPECT_GT(period.stop, period.start);
    EXPECT_LT(period.stop, Counter());
    const long long stopped = period.stop;
    period.SetTime();
    EXPECT_EQ(period.start, period.stop);
    EXPECT_GT(period.stop, stopped);
}

TEST(CTmPrd, TicksMeasureFromOneToTheNext)
{
    CTmPrd period;
    LetTheCounterMove();
    period.Tick(0);
    const long long first = period.stop;
    LetTheCounterMove();
    period.Tick(1);
    EXPECT_EQ(period.start, first);
    EXPECT_GT(period.stop, first);

    period.stop = 0;
    period.Tick();
    EXPECT_EQ(period.start, period.stop);
    EXPECT_GT(period.stop, first);
}
