#include "time/detail/ClockCalls.h"

namespace vant::detail
{

namespace
{

// The precise clock: the other one moves in steps of up to 16 ms.
constinit ClockCalls inUse{&::QueryPerformanceFrequency, &::QueryPerformanceCounter,
                           &::GetSystemTimePreciseAsFileTime};

} // namespace

ClockCalls& Clock() noexcept
{
    return inUse;
}

} // namespace vant::detail
