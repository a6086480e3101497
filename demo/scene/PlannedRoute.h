#pragma once

#include "demo/detail/SurveyPlan.h"
#include "geo/CRoute.h"

namespace demo
{

/** The planned survey as a route: its points, the smooth curve through them that the boat is to sail, and the
 * edges of the corridor in which it has to stay. */
class PlannedRoute
{
public:
    static constexpr double corridor = 8.0; ///< metres to either side

    /** Makes the routes; without points there are none. */
    void Make(const std::vector<PlanPoint>& plan);

    const std::vector<PlanPoint>& Points() const noexcept { return m_points; }
    const CRoute& Smooth() const noexcept { return m_smooth; }
    const CRoute& PortEdge() const noexcept { return m_port; }
    const CRoute& StarboardEdge() const noexcept { return m_starboard; }

    /** How far a place lies beside the smooth route, metres, positive on its starboard side; missing without
     * a route. */
    double CrossTrack(const GroundPoint& place) const;

private:
    std::vector<PlanPoint> m_points;
    CRoute m_smooth;
    CRoute m_port;
    CRoute m_starboard;
};

} // namespace demo
