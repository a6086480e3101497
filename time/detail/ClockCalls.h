#pragma once

#include "core/VantApi.h"

#include <windows.h>

namespace vant::detail
{

/** The edge to what tells the time: the processor's counter, and the system clock, which may be set at any
 *  moment. */
struct ClockCalls {
    /** Counts per second; fails where there is no such counter. */
    BOOL(WINAPI* frequency)(LARGE_INTEGER* perSecond);

    BOOL(WINAPI* counter)(LARGE_INTEGER* count);

    /** The system clock in UTC. */
    void(WINAPI* systemTime)(FILETIME* time);
};

/** The table in use: the system's own functions, unless something was put in their place. */
VANT_API ClockCalls& Clock() noexcept;

} // namespace vant::detail
