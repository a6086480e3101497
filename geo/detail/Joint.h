#pragma once

#include "geo/detail/NearestIndex.h"

namespace vant::detail
{

/** What lies to the right of a heading, at a distance of 1. */
PlanPoint RightOf(double heading) noexcept;

/** Where a line that runs 1 to the right of another one turns, as seen from the other's corner: one place, at
 * which its two segments meet, or in a sharp corner two, beside the end of the first segment and beside the
 * beginning of the second, which would else meet far away or nowhere.
 *  @param before,after  what lies to the right of the segments before and after the corner (RightOf)
 *  @return how many places there are: 1 or 2 */
int JointPlaces(const PlanPoint& before, const PlanPoint& after, PlanPoint (&places)[2]) noexcept;

} // namespace vant::detail
