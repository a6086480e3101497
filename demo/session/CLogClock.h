#pragma once

#include "time/CTmFn.h"

namespace demo
{

/** The log's own clock, as a receiver on board shows it: a source of time that TmSync fits to its time base.
 *  It counts seconds of the day; played ten times as fast it gains ten seconds a second, which is the slope
 * of its fit. */
class CLogClock : public CTmFn
{
public:
    CLogClock();

    /** What the clock shows now, seconds of the day; demo::missing while it shows nothing. */
    void Show(double secondsOfDay);

    /** Reads what was shown last. @return 0 while it shows nothing: what it showed before is a sample that
     * does not bend the fit */
    int PollTm(double& value) override;

private:
    // Guarded by m_lock: set by the window's thread, read by that of TmSync.
    double m_shown = 0;
    bool m_isShown = false;
};

} // namespace demo
