#include "time/TimeTest.h"

#include <cmath>

using namespace vant::detail;

namespace
{

const CECEntry* Find(const std::vector<CECEntry>& records, unsigned id)
{
    const auto found =
        std::find_if(records.begin(), records.end(), [id](const CECEntry& entry) { return entry.id == id; });
    return found == records.end() ? nullptr : &*found;
}

} // namespace

TimeTest::~TimeTest()
{
    TmSync::Exit();
    Clock() = m_calls;
    TmSync::interval = m_interval;
}

std::wstring TimeTest::Line(unsigned id)
{
    const auto records = vant::test::Recorder(LogTarget::status).Records();
    const CECEntry* const entry = Find(records, id);
    return entry ? entry->text.GetString() : L"";
}

int TimeTest::LevelOf(unsigned id)
{
    const auto records = vant::test::Recorder(LogTarget::status).Records();
    const CECEntry* const entry = Find(records, id);
    return entry ? entry->state : -1;
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

Device::Device(double (*reading)())
    : read(reading)
{
    name = L"Device";
}

int Device::PollTm(double& value)
{
    ++polls;
    value = read();
    return 1;
}
