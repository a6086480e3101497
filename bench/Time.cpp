#include "Compare.h"

#include "time/TmSync.h"
#include "time/detail/PollRound.h"

#include <afxmt.h>

#include <catch2/catch.hpp>

#include <atomic>

namespace
{

constexpr int readings = 20'000;
constexpr int ticks = 50;
constexpr int sources = 8;

/** A source that costs nothing. */
class Counting : public CTmFn
{
public:
    int PollTm(double& value) override
    {
        value = ++m_count;
        return 1;
    }

private:
    double m_count = 0.0;
};

void OurClock(Stopwatch& watch)
{
    watch.Measure([] {
        for (int i = 0; i < readings; ++i)
            Keep(TmSync::GetTm());
    });
}

void Counter(Stopwatch& watch)
{
    watch.Measure([] {
        for (int i = 0; i < readings; ++i) {
            LARGE_INTEGER count;
            ::QueryPerformanceCounter(&count);
            Keep(count.QuadPart);
        }
    });
}

} // namespace

TEST_CASE("time")
{
    TmSync::interval = 600'000; // the thread sleeps
    REQUIRE(TmSync::Init());
    Compare("time: TmSync::GetTm (the performance counter alone)", OurClock, Counter, {.target = 1.2});

    // With the PC's clock they are eight.
    Counting others[sources - 1];
    for (Counting& source : others)
        TmSync::AddTmFn(&source);
    vant::detail::PollRound round;
    const std::atomic<bool> stop = false;
    const Round ours = [&](Stopwatch& watch) {
        watch.Measure([&] {
            for (int i = 0; i < ticks; ++i)
                Keep(round.Run(stop));
        });
        REQUIRE(round.Report().sources.size() == sources);
    };
    // What a tick cannot do without: each source's mutex is taken when its line is stored and when it is
    // read.
    CMutex mutex;
    const Round locks = [&](Stopwatch& watch) {
        watch.Measure([&] {
            for (int i = 0; i < 2 * sources * ticks; ++i)
                Keep(CSingleLock(&mutex, TRUE).IsLocked());
        });
    };
    Compare("time: 50 ticks with 8 sources (their mutexes alone)", ours, locks);
    REQUIRE(TmSync::Exit());
}
