#pragma once

#include "demo/detail/LocalPlane.h"

#include <vector>

namespace demo
{

/** A point of the planned survey. */
struct PlanPoint {
    GroundPoint place;
    int line = 0; ///< 1, 2, ... at both ends of a survey line; 0 in between and in the turns
};

/** The survey as it was planned: parallel lines, joined by turns, in the order in which they are sailed.
 *  Empty for a plane that lies somewhere else, because another log is played. */
std::vector<PlanPoint> SurveyPlan(const LocalPlane& plane);

} // namespace demo
