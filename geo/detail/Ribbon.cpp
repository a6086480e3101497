#include "geo/detail/Ribbon.h"

#include "geo/detail/Joint.h"
#include "geo/detail/Leg.h"

#include <algorithm>
#include <cstddef>

namespace vant::detail
{

namespace
{

/** What lies to the right of each segment. */
std::vector<PlanPoint> Sides(const std::vector<Point3>& line)
{
    std::vector<PlanPoint> sides;
    Leg leg;
    std::size_t undirected = 0; // segments at the beginning that go nowhere as seen from above
    for (std::size_t i = 1; i < line.size(); ++i) {
        const Point3 way = line[i] - line[i - 1];
        leg = NextLeg(leg, way.x, way.y, way.z);
        sides.push_back(RightOf(leg.heading));
        if (leg.plan == 0 && undirected == i - 1)
            undirected = i;
    }
    if (undirected < sides.size())
        std::fill_n(sides.begin(), undirected, sides[undirected]);
    return sides;
}

} // namespace

std::vector<Point3> RibbonAlong(const std::vector<Point3>& line, double width)
{
    std::vector<Point3> edges;
    if (line.size() < 2)
        return edges;
    const double half = width / 2;
    const auto add = [&](const Point3& at, const PlanPoint& right) {
        const Point3 toEdge{right.x * half, right.y * half, 0};
        edges.push_back(at - toEdge);
        edges.push_back(at + toEdge);
    };
    const std::vector<PlanPoint> sides = Sides(line);
    edges.reserve(2 * line.size());
    add(line.front(), sides.front());
    for (std::size_t i = 1; i < sides.size(); ++i) {
        PlanPoint places[2];
        const int count = JointPlaces(sides[i - 1], sides[i], places);
        for (int k = 0; k < count; ++k)
            add(line[i], places[k]);
    }
    add(line.back(), sides.back());
    return edges;
}

} // namespace vant::detail
