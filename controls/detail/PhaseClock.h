#pragma once

#include <algorithm>
#include <cmath>
#include <limits>

namespace vant::detail
{

/** How long something has been going on, by a clock that is looked at now and then. A clock that is set back
 * takes nothing away. */
class PhaseClock
{
public:
    /** Begins anew: counting starts when the clock is looked at for the first time. */
    void Restart() noexcept
    {
        m_passed = 0;
        m_last = std::numeric_limits<double>::quiet_NaN();
    }

    /** @param t  what the clock shows, seconds; not finite: nothing passes */
    void Look(double t) noexcept
    {
        if (!std::isfinite(t))
            return;
        if (!std::isnan(m_last))
            m_passed += std::max(t - m_last, 0.0);
        m_last = t;
    }

    /** Seconds since the first look. */
    double Passed() const noexcept { return m_passed; }

private:
    double m_passed = 0;
    double m_last = std::numeric_limits<double>::quiet_NaN();
};

} // namespace vant::detail
