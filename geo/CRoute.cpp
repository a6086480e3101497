#include "geo/CRoute.h"

#include "geo/detail/Leg.h"
#include "geo/detail/NameOrder.h"
#include "geo/detail/RouteIndex.h"

using namespace vant::detail;

CRoute::CRoute() = default;
CRoute::~CRoute() = default;

CRoute::CRoute(const CRoute& other)
    : CLstMgd(other)
    , name(other.name)
{
}

CRoute& CRoute::operator=(const CRoute& other)
{
    Changing() = other;
    name = other.name;
    return *this;
}

int CRoute::operator<(const CRoute& other) const
{
    return IsBefore(name, other.name);
}

void CRoute::Recalc()
{
    Forget();
    CRtV3* before = nullptr;
    Leg leg;
    for (CVantPtr* pos = GetHeadPos(); pos;) {
        CRtV3* const node = GetNext(pos);
        if (!node)
            continue;
        if (before) {
            leg = NextLeg(leg, node->x - before->x, node->y - before->y, node->z - before->z);
            before->heading = leg.heading;
            before->pitch = leg.pitch;
            node->p = before->p + leg.length;
            node->q = before->q + leg.plan;
        }
        before = node;
    }
    if (!before)
        return;
    before->heading = leg.heading;
    before->pitch = leg.pitch;
    Index();
}

void CRoute::Forget()
{
    m_index.reset();
}
