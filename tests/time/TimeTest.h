#pragma once

#include "support/LogRecorder.h"
#include "time/TmSync.h"
#include "time/detail/ClockCalls.h"
#include "time/detail/PollRound.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

/** Keeps the log in memory, and counter, clock and interval as they were. */
class TimeTest : public testing::Test
{
protected:
    ~TimeTest() override;

    /** The status line with this id as it was last written; one without a text if it never was. */
    static CECEntry Entry(unsigned id);
    static std::wstring Line(unsigned id) { return Entry(id).text.GetString(); }

private:
    vant::test::RecordLogs m_logs;
    const vant::detail::ClockCalls m_calls = vant::detail::Clock();
    const unsigned m_interval = TmSync::interval;
};

/** Counter and system clock that stand still but for what the test does to them; the thread sleeps, and the
 *  test does its work. */
class SimulatedTimeTest : public TimeTest
{
protected:
    SimulatedTimeTest();

    static constexpr long long countsPerSecond = 10'000'000;

    /** Lets true time pass; the counter and the system clock go on with it. */
    static void Pass(double seconds);
    /** One tick. @return its report, whose lines have been written */
    const vant::detail::TickReport& Tick();
    /** So many ticks, each after a second. */
    void Ticks(int count);

    static inline double trueTime = 0.0; ///< seconds since the simulation began
    static inline double counterRate = 1.0;
    static inline double clockStep = 0.0; ///< what the system clock was set forward by, seconds

    vant::detail::PollRound round;
    std::atomic<bool> stop = false;
};

/** A source that reads what the test makes of the true time. */
class Device : public CTmFn
{
public:
    explicit Device(double (*reading)())
        : read(reading)
    {
        name = L"Device";
    }
    int PollTm(double& value) override
    {
        if (isFailing)
            return 0;
        value = read();
        return 1;
    }

    double (*read)();
    bool isFailing = false;
};
