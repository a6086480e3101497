#include "time/TimeTest.h"

#include <cmath>

using namespace vant::detail;

TimeTest::~TimeTest()
{
    TmSync::Exit();
    Clock() = m_calls;
    TmSync::interval = m_interval;
}

CECEntry TimeTest::Entry(unsigned id)
{
    for (const CECEntry& entry : vant::test::Recorder(LogTarget::status).Records())
        if (entry.id == id)
            return entry;
    return {};
}

SimulatedTimeTest::SimulatedTimeTest()
{
    trueTime = 0.0;
    counterRate = 1.0;
    clockStep = 0.0;
    Clock().frequency = [](LARGE_INTEGER* perSecond) {
        perSecond->QuadPart = countsPerSecond;
        return TRUE;
    };
    Clock().counter = [](LARGE_INTEGER* count) {
        constexpr long long atBegin = 123'456'789;
        count->QuadPart =
            atBegin + std::llround(trueTime * counterRate * static_cast<double>(countsPerSecond));
        return TRUE;
    };
    Clock().systemTime = [](FILETIME* time) {
        constexpr long long begin = 134'000'000'000'000'000; // in the year 2025
        const auto units =
            static_cast<unsigned long long>(begin + std::llround((trueTime + clockStep) * 1e7));
        *time = {static_cast<DWORD>(units), static_cast<DWORD>(units >> 32)};
    };
    TmSync::interval = INFINITE - 1;
    TmSync::Init();
}

void SimulatedTimeTest::Pass(double seconds)
{
    trueTime += seconds;
}

const TickReport& SimulatedTimeTest::Tick()
{
    EXPECT_TRUE(round.Run(stop));
    WriteStatus(round.Report());
    return round.Report();
}

void SimulatedTimeTest::Ticks(int count)
{
    while (count-- > 0) {
        Pass(1.0);
        round.Run(stop);
    }
}
