#include "demo/scene/PlannedRoute.h"

#include "demo/detail/Quantities.h"

#include <cmath>
#include <numbers>

namespace demo
{

void PlannedRoute::Make(const std::vector<PlanPoint>& plan)
{
    m_points = plan;
    CRoute nodes;
    nodes.name = L"Survey";
    for (const PlanPoint& point : plan) {
        nodes.AddTail(new CRtV3(point.place.east, point.place.north, 0)); // the route's from here on
    }
    nodes.Recalc();
    nodes.SplineRt(m_smooth, CSpline(), 0);
    for (CVantPtr* pos = m_smooth.GetHeadPos(); pos;)
        m_smooth.GetNext(pos)->scale = 1; // offsets count in full
    m_smooth.Recalc();
    const double length = m_smooth.IsEmpty() ? 0 : m_smooth.GetTail()->q;
    constexpr double right = std::numbers::pi / 2;
    m_smooth.OffsetRtCP(m_port, 0, length, -corridor, right);
    m_smooth.OffsetRtCP(m_starboard, 0, length, corridor, right);
}

double PlannedRoute::CrossTrack(const GroundPoint& place) const
{
    if (m_smooth.IsEmpty())
        return missing;
    const CRtV3 nearest = m_smooth.En2Entry(place.east, place.north);
    const double east = place.east - nearest.x;
    const double north = place.north - nearest.y;
    const double toStarboard = east * std::sin(nearest.heading) - north * std::cos(nearest.heading);
    return std::copysign(std::hypot(east, north), toStarboard);
}

} // namespace demo
