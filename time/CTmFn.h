#pragma once

#include "core/VantApi.h"
#include "time/detail/SlopeFit.h"

#include <afxmt.h>

/** A source of time, and the straight line that leads from the time base to its readings: y = m x + c, with x
 *  in seconds since 1980 (TmSync::GetTm()) and y in whatever the source counts.
 *
 *  An application derives a class, reads its device in PollTm(), and hands an object to TmSync::AddTmFn().
 * The thread of TmSync then takes a sample at every poll and fits the line to the last 60 of them; GetTm()
 * converts a time stamp of the source to the time base.
 *
 *  The fit is the mean of the middle third of the slopes from sample to sample. Up to a third of the samples
 * may be wrong by any amount without the least effect; but a slope over one second is no better than the
 * readings at its ends, so a source whose readings jitter by milliseconds needs a CTmFnSteady in front.
 *
 *  PollTm(), AddTm(), CalcMC() and the samples belong to the polling thread; GetTm(), GetMC() and SetMC() may
 *  be called from any thread. An object must live until TmSync::Exit() has returned 1. */
class VANT_API CTmFn
{
public:
    CTmFn();
    virtual ~CTmFn();
    CTmFn(const CTmFn&) = delete;
    CTmFn& operator=(const CTmFn&) = delete;

    /** What the status line begins with; "Default" at first. To be set before the source is added. */
    CString name;

    /** Reads the source now. Called by a thread of the highest priority, which waits for it with all other
     * sources: it must return within milliseconds, so a device that may be slow is read elsewhere and asked
     * here for its latest time only.
     *  @param value  the reading; 0 when it is called by TmSync
     *  @return non-zero on success. A failure is a sample too, of whatever was left in `value`. The base
     * class fails and leaves `value` alone. */
    virtual int PollTm(double& value);

    /** Adds the reading y at x of the time base, over the oldest one when there are 60, and calls CalcMC().
     *  A sample whose x or y is exactly that of the one before adds no slope. */
    void AddTm(double y, double x);
    /** Fits the line to the samples and publishes it. With one or two samples the slope 1 and intercept 0 of
     * the first one count in the mean, and the line is not good for anything yet. When no slope is left in
     * the middle third (a source that stood still from the beginning), m and c are 0. */
    void CalcMC();
    /** Forgets the samples; the line is m = 1, c = 0 again. Not while the source is being polled. */
    void Reset();

    /** The time base at which the source reads y: (y - c) / m, not finite while m is 0; -1 if the line cannot
     * be locked. */
    double GetTm(double y) const;
    /** Sets the line, until the next sample. @return 1, or 0 if it cannot be locked */
    int SetMC(double slope, double intercept);
    /** Both numbers of the same fit. @return 1, or 0 if they cannot be locked, the outputs then being left
     * alone */
    int GetMC(double& slope, double& intercept) const;

protected:
    mutable CMutex m_lock; ///< guards the line, and what a derived source publishes with it

private:
    double m_m = 1.0;
    double m_c = 0.0;
    vant::detail::SlopeFit m_fit; // the polling thread's
};
