#pragma once

#include "display/detail/Point3.h"

#include <vector>

namespace vant::detail
{

/** The edge points of a band along a line, level from its left to its right, in pairs, left then right: the
 * corners of a strip of triangles. Corners are mitred, sharp ones cut; the ends are straight. Where the line
 * goes straight up or down the band stands, across the direction before it. Empty for less than two points.
 */
std::vector<Point3> RibbonAlong(const std::vector<Point3>& line, double width);

} // namespace vant::detail
