#include "geo/detail/RouteIndex.h"

#include <cmath>
#include <utility>

namespace vant::detail
{

namespace
{

void Rise(double& distance, double before)
{
    if (!std::isfinite(distance) || distance < before)
        distance = before;
}

std::vector<RouteStop> Rising(std::vector<RouteStop> stops)
{
    RouteStop before = stops.front();
    if (!std::isfinite(before.q))
        before.q = 0;
    if (!std::isfinite(before.p))
        before.p = 0;
    for (RouteStop& stop : stops) {
        Rise(stop.q, before.q);
        Rise(stop.p, before.p);
        before = stop;
    }
    return stops;
}

} // namespace

RouteIndex::RouteIndex(std::vector<RouteStop> nodes)
    : stops(Rising(std::move(nodes)))
    , byQ(stops, &RouteStop::q)
    , byP(stops, &RouteStop::p)
{
}

} // namespace vant::detail
