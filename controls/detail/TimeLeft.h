#pragma once

#include <optional>
#include <string>

namespace vant::detail
{

/** Estimates how long something that makes progress will still take, from how fast it went: what was lately
 * counts more than what was before, the longer it takes the less so. In plain C++. */
class TimeLeft
{
public:
    /** Forgets all that was seen. */
    void Restart() noexcept { *this = TimeLeft(); }

    /** Takes a look. Progress that goes back begins anew; time that goes back counts as none.
     *  @param t  seconds  @param share  0 to 1; NaN while it is unknown, which counts as standing still
     *  @param runs  false while it is paused: the time since the last look does not count */
    void Look(double t, double share, bool runs) noexcept;

    /** The seconds left; none before there is enough to go by, or while nothing moves. */
    std::optional<double> Seconds() const noexcept;

private:
    double m_last = 0;   // time of the last look
    double m_first = 0;  // share at the first look
    double m_share = 0;  // at the last look
    double m_passed = 0; // time that counts
    double m_recent = 0; // the same, fading
    double m_gained = 0; // share gained, fading alike
    bool m_begun = false;
};

/** A time as "0:07", "12:30" or "1:02:30", rounded up to seconds; empty from 100 hours on, and for what is no
 * time. */
std::wstring TimeLeftText(double seconds);

} // namespace vant::detail
