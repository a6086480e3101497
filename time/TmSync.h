#pragma once

#include "core/CLstPtr.h"
#include "core/VantApi.h"
#include "time/CTmFn.h"
#include "time/CTmFnClock.h"

#include <afxwin.h>

/** The time base of the process, and the thread that keeps sources of time in step with it.
 *
 *  The time base is the processor's counter, aligned once to the system clock: seconds since 1 January 1980
 * 00:00 UTC, as a double (which resolves a quarter of a microsecond). It never jumps, whatever is done to the
 * system clock later, and runs at the counter's own rate; what it has become off by is #err and the status
 * line 4002, and the fit of a better source says what it should read.
 *
 *  An application calls Init() once at start-up and Exit() once at shutdown, on one thread. In between a
 * thread of the highest priority polls the sources every #interval, fits them (CTmFn) and reports in status
 * lines: 4100 onwards one for each source, at level 2, with its name, how far its last reading lies from its
 * fit (ms), slope and intercept; at level 1 4000 the system clock, 4001 the time base (both local, with
 * milliseconds; the line break that the run-time library ends a time with is deliberately there), and 4002
 * the minutes since the start, #err and the mean advance of the clock from poll to poll (ms), the counts per
 * second, the longest that a source took to answer in this poll, and how long the poll took as a whole (s).
 *
 *  The thread itself waits for nothing but its sources: the lines are written by a thread of the system's
 * pool, and if that has not finished when the next ones are due, those are left out. */
class VANT_API TmSync
{
public:
    TmSync() = delete;

    /** Seconds from 1 January 1970 00:00, where calendar times begin, to 1980. */
    static constexpr long long base80 = 315'532'800;

    static long long scale; ///< counts per second; 0 before Init(), and where there is no counter
    static long long start; ///< the count at Init()
    static double offset;   ///< seconds since 1980 at Init()
    static unsigned
        interval;          ///< of the polls, milliseconds; 1000 at first. Changes act from the next poll on
    static HANDLE hExit;   ///< set by Exit(): ends the thread. Auto-reset; null while there is no thread
    static HANDLE hExited; ///< set by the thread as it ends. Auto-reset; null while there is no thread
    static CLstPtr<CTmFn*> tmFns; ///< the sources, not owned. Not locked for others: see AddTmFn()
    static CTmFnClock ltf;        ///< always the first of them: the system clock
    /** The mean of clock less time base over the last 60 polls, milliseconds. Written by the thread and read
     * by anyone without a lock: a double in its natural place is written and read by one access of the 64-bit
     *  processor, so that no reader finds half of it. */
    static double err;
    static double
        tm80; ///< a time since 1980 for the application's own use; 0 at first, the library leaves it

    /** Aligns the time base to the system clock, adds #ltf and starts the thread. Without a high-resolution
     *  counter it says so in a message box and starts nothing. While there is a thread it does nothing.
     *  @return 1, or 0 if there is no counter or no thread could be started (alarm 4010) */
    static int Init();

    /** Ends the thread, waiting at most a second, and empties #tmFns.
     *  @return 1, or 0 if a source, or a file that status lines are written to, has not returned yet. The
     *  thread then ends by itself as soon as it does, and without touching any source again, but this one
     *  source, whose code it is in, must go on existing. Nothing else is used any more */
    static int Exit();

    /** Adds a source, which must live until Exit() has returned 1. Safe at any time on any thread; the polls
     *  take the list as it was when they began. */
    static void AddTmFn(CTmFn* source);

    /** @name The time base; any thread, from Init() on */
    ///@{
    /** Now, in seconds since 1980. */
    static double GetTm() noexcept { return GetPc() + offset; }
    /** The time base at `pc` seconds since the start, as GetPc() counted them. */
    static double GetTm(double pc) noexcept { return offset + pc; }
    /** Seconds since the start. */
    static double GetPc() noexcept;
    /** @} */

    /** The system clock: seconds since 1970 in UTC, to whole milliseconds. Without the step to 1980. */
    static double GetClock() noexcept;
};
