#pragma once

#include <vector>

namespace vant::detail
{

/** Where somebody is in a row: at a member, or in the gap before it. In plain C++. */
struct RcPlace {
    int at = 0;
    /** At the member `at`; otherwise before it, or after the last one where that is the number of members. */
    bool on = false;
};

/** The member that some steps from a place lead to. Only usable members count; the first step from a gap, or
 * from a member that is not usable, leads to the nearest one in that direction.
 *  @param by  negative: back; of any size  @param wrap  whether the first member follows the last one;
 * otherwise steps end there  @return its index; -1 if no member is usable */
int RcStep(const std::vector<bool>& usable, RcPlace from, int by, bool wrap);

/** The member at the place, or the next usable one after it, around. @return -1 if no member is usable */
int RcNearest(const std::vector<bool>& usable, RcPlace from);

/** The place after a member has been taken out of the row. */
RcPlace RcWithout(RcPlace from, int member) noexcept;

} // namespace vant::detail
