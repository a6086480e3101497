// CRoute: lookups along the route.
#include "geo/CRoute.h"

#include "core/CV3.h"
#include "core/ML.h"
#include "geo/detail/RouteIndex.h"

#include <cmath>
#include <utility>
#include <vector>

using namespace vant::detail;

namespace
{

/** The turn by which an angle is beyond half a turn either way. */
double Excess(double angle)
{
    return angle > ML::pi ? ML::pi2 : angle < -ML::pi ? -ML::pi2 : 0.0;
}

/** From one angle towards another one, the shorter way round. @return in (-pi, pi] */
double AngleBetween(double a, double b, double share)
{
    double turn = b - a;
    if (std::abs(turn) > 3 * ML::pi) // no angle that Recalc() has made
        turn = std::remainder(turn, ML::pi2);
    turn -= Excess(turn);
    const double angle = a + turn * share;
    return angle - Excess(angle);
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
bool PlaceAt(DistanceIndex& distances, double CRtV3::*along, double at, CRtV3& out)
{
    if (at < distances.First()) {
        out = distances.Node(0);
        return false;
    }
    const std::size_t found = distances.Find(at);
    const CRtV3& a = distances.Node(found);
    if (found + 1 == distances.Count()) {
        out = a;
        return at == distances.Last();
    }
    const CRtV3& b = distances.Node(found + 1);
    Interpolate(a, b, Share(at, a.*along, b.*along), out);
    return true;
}

} // namespace

RouteIndex* CRoute::Index() const
{
    if (m_index)
        return m_index.get();
    std::vector<RouteStop> byQ;
    std::vector<RouteStop> byP;
    for (CVantPtr* pos = GetHeadPos(); pos;) {
        if (CRtV3* const node = GetNext(pos)) {
            byQ.push_back({node->q, node});
            byP.push_back({node->p, node});
        }
    }
    if (!byQ.empty())
        m_index.reset(new RouteIndex{DistanceIndex(std::move(byQ)), DistanceIndex(std::move(byP)), nullptr});
    return m_index.get();
}

int CRoute::Q2Entry(double q, CRtV3& out) const
{
    RouteIndex* const index = Index();
    return index && !std::isnan(q) && PlaceAt(index->byQ, &CRtV3::q, q, out);
}

int CRoute::P2Entry(double p, CRtV3& out) const
{
    RouteIndex* const index = Index();
    return index && !std::isnan(p) && PlaceAt(index->byP, &CRtV3::p, p, out);
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
    DistanceIndex& distances = Index()->byQ;
    return q < distances.First() ? 0 : distances.Find(q);
}

bool CRoute::Nearest(double east, double north, CRtV3*& a, CRtV3*& b, double& share) const
{
    a = b = nullptr;
    share = 0;
    RouteIndex* const index = Index();
    if (!index || !std::isfinite(east) || !std::isfinite(north))
        return false;
    const DistanceIndex& stops = index->byQ;
    if (stops.Count() == 1) {
        a = b = &stops.Node(0);
        return true;
    }
    if (!index->nearest) {
        std::vector<PlanPoint> points(stops.Count());
        for (std::size_t i = 0; i < points.size(); ++i)
            points[i] = {stops.Node(i).x, stops.Node(i).y};
        index->nearest = std::make_unique<const NearestIndex>(std::move(points));
    }
    NearestPlace place{};
    if (!index->nearest->Find({east, north}, place))
        return false;
    a = &stops.Node(place.segment);
    b = &stops.Node(place.segment + 1);
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
