// CRoute: lookups along the route.
#include "geo/CRoute.h"

#include "core/CV3.h"
#include "core/ML.h"
#include "geo/detail/RouteIndex.h"

#include <algorithm>
#include <cmath>

using namespace vant::detail;

namespace
{

/** From one angle towards another one, the shorter way round. @return in (-pi, pi] */
double AngleBetween(double a, double b, double share)
{
    double turn = b - a;
    if (std::abs(turn) > ML::pi)
        turn -= ML::pi2 * std::round(turn / ML::pi2);
    const double angle = a + turn * share;
    return std::abs(angle) > ML::pi ? angle - ML::pi2 * std::round(angle / ML::pi2) : angle;
}

/** What lies at a share of the way from one node to the next. */
void Interpolate(const CRtV3& a, const CRtV3& b, double share, CRtV3& out)
{
    if (!(share > 0)) {
        out = a;
        return;
    }
    if (share >= 1) {
        out = b;
        return;
    }
    out.x = a.x + (b.x - a.x) * share;
    out.y = a.y + (b.y - a.y) * share;
    out.z = a.z + (b.z - a.z) * share;
    out.p = a.p + (b.p - a.p) * share;
    out.q = a.q + (b.q - a.q) * share;
    out.heading = AngleBetween(a.heading, b.heading, share);
    out.pitch = AngleBetween(a.pitch, b.pitch, share);
    out.scale = a.scale + (b.scale - a.scale) * share;
    out.flags = a.flags;
    out.user = a.user;
}

double Share(double at, double a, double b)
{
    return b > a ? (at - a) / (b - a) : 0.0;
}

/** The place at a distance. @return whether it is on the route */
bool PlaceAt(RouteIndex& index, const DistanceIndex& distances, double RouteStop::*stop, double CRtV3::*along,
             double at, CRtV3& out)
{
    const std::vector<RouteStop>& stops = index.stops;
    if (at < stops.front().*stop) {
        out = *stops.front().node;
        return false;
    }
    index.cursor = distances.Find(stops, at, index.cursor);
    const CRtV3& a = *stops[index.cursor].node;
    if (index.cursor + 1 == stops.size()) {
        out = a;
        return at == stops.back().*stop;
    }
    const CRtV3& b = *stops[index.cursor + 1].node;
    Interpolate(a, b, Share(at, a.*along, b.*along), out);
    return true;
}

} // namespace

RouteIndex* CRoute::Index() const
{
    if (m_index)
        return m_index.get();
    std::vector<RouteStop> stops;
    for (CVantPtr* pos = GetHeadPos(); pos;) {
        if (CRtV3* const node = GetNext(pos))
            stops.push_back({node->q, node->p, node});
    }
    if (!stops.empty())
        m_index = std::make_unique<RouteIndex>(std::move(stops));
    return m_index.get();
}

int CRoute::Q2Entry(double q, CRtV3& out) const
{
    RouteIndex* const index = Index();
    return index && !std::isnan(q) && PlaceAt(*index, index->byQ, &RouteStop::q, &CRtV3::q, q, out);
}

int CRoute::P2Entry(double p, CRtV3& out) const
{
    RouteIndex* const index = Index();
    return index && !std::isnan(p) && PlaceAt(*index, index->byP, &RouteStop::p, &CRtV3::p, p, out);
}

CRtV3 CRoute::InterpQ(double q, const CRtV3& a, const CRtV3& b)
{
    CRtV3 place;
    Interpolate(a, b, Share(q, a.q, b.q), place);
    return place;
}

CRtV3 CRoute::InterpP(double p, const CRtV3& a, const CRtV3& b)
{
    CRtV3 place;
    Interpolate(a, b, Share(p, a.p, b.p), place);
    return place;
}

std::size_t CRoute::SegmentAt(double q) const
{
    RouteIndex& index = *Index();
    return q < index.stops.front().q ? 0 : index.byQ.Find(index.stops, q, index.cursor);
}

bool CRoute::Nearest(double east, double north, CRtV3*& a, CRtV3*& b, double& share) const
{
    a = b = nullptr;
    share = 0;
    RouteIndex* const index = Index();
    if (!index || !std::isfinite(east) || !std::isfinite(north))
        return false;
    const std::vector<RouteStop>& stops = index->stops;
    if (stops.size() == 1) {
        a = b = stops.front().node;
        return true;
    }
    if (!index->nearest) {
        std::vector<PlanPoint> points(stops.size());
        std::transform(stops.begin(), stops.end(), points.begin(), [](const RouteStop& stop) {
            return PlanPoint{stop.node->x, stop.node->y};
        });
        index->nearest = std::make_unique<const NearestIndex>(std::move(points));
    }
    NearestPlace place{};
    if (!index->nearest->Find({east, north}, place))
        return false;
    a = stops[place.segment].node;
    b = stops[place.segment + 1].node;
    share = place.share;
    return true;
}

double CRoute::En2P(double east, double north, CRtV3*& a, CRtV3*& b) const
{
    double share = 0;
    if (!Nearest(east, north, a, b, share))
        return 0;
    return share < 1 ? a->p + (b->p - a->p) * share : b->p;
}

CRtV3 CRoute::En2Entry(double east, double north) const
{
    CRtV3* a = nullptr;
    CRtV3* b = nullptr;
    double share = 0;
    CRtV3 place;
    if (Nearest(east, north, a, b, share))
        Interpolate(*a, *b, share, place);
    return place;
}

CRtV3 CRoute::V2Entry(const CV3& pt) const
{
    return En2Entry(pt.x, pt.y);
}

CRtV3 CRoute::Node(CVantPtr* pos) const
{
    const CRtV3* const node = GetAt(pos);
    return node ? *node : CRtV3();
}
