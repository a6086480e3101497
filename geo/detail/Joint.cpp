#include "geo/detail/Joint.h"

#include <cmath>

namespace vant::detail
{

namespace
{

/** Cosine of the turn beyond which a corner is sharp: 120 degrees, where the segments meet twice as far from
 * the corner as from the line. */
constexpr double sharp = -0.5;

} // namespace

PlanPoint RightOf(double heading) noexcept
{
    return {std::sin(heading), -std::cos(heading)};
}

int JointPlaces(const PlanPoint& before, const PlanPoint& after, PlanPoint (&places)[2]) noexcept
{
    const double cosine = before.x * after.x + before.y * after.y;
    if (cosine < sharp) {
        places[0] = before;
        places[1] = after;
        return 2;
    }
    places[0] = {(before.x + after.x) / (1 + cosine), (before.y + after.y) / (1 + cosine)};
    return 1;
}

} // namespace vant::detail
