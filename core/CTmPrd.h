#pragma once

#include "core/VantApi.h"

/** Measures intervals on the processor's performance counter. The fields are open, so that a program can
 * store and compare instants; setting `stop` to 0 lets the next Tick() begin anew. */
class VANT_API CTmPrd
{
public:
    /** An interval of length 0, beginning and ending now. */
    CTmPrd() noexcept;

    /** Begins the interval now. */
    void Start() noexcept;
    /** Ends the interval now. */
    void Stop() noexcept;
    /** Begins and ends the interval now. */
    void SetTime() noexcept;

    /** Called once per event: from then on the interval is the one between the last two ticks. The first tick
     * after `stop` was set to 0 gives an interval of length 0.
     *  @param unused kept for callers that hand in an event's number */
    void Tick(unsigned unused = 0) noexcept;

    /** The interval in milliseconds; negative when it was begun after it was ended. */
    double GetMS() const noexcept { return static_cast<double>(stop - start) * msPerCount; }

    /** Events per second, one per interval; infinite for an interval of length 0. */
    double GetEPS() const noexcept { return 1000.0 / GetMS(); }

    double msPerCount; ///< milliseconds per count
    long long stop;    ///< counter value at the interval's end
    long long start;   ///< counter value at the interval's beginning
};
