#include "geo/TgtCalc.h"

#include "core/ML.h"
#include "geo/CRoute.h"

#include <cmath>

CV3 TgtCalc::Vel(double brg, double speed, double climb)
{
    return {std::sin(brg) * speed, std::cos(brg) * speed, climb};
}

double TgtCalc::Rng(const CV3& own, const CV3& tgt)
{
    return (tgt - own).Length();
}

double TgtCalc::PlanRng(const CV3& own, const CV3& tgt)
{
    return ML::Hypot(tgt.x - own.x, tgt.y - own.y);
}

double TgtCalc::Brg(const CV3& own, const CV3& tgt)
{
    return (tgt - own).Brg();
}

double TgtCalc::RelBrg(const CV3& own, double heading, const CV3& tgt)
{
    const double brg = std::fmod(Brg(own, tgt) - heading, ML::pi2);
    const double positive = brg < 0 ? brg + ML::pi2 : brg;
    return positive < ML::pi2 ? positive : positive - ML::pi2; // a shade below 0 becomes a whole turn
}

double TgtCalc::Elev(const CV3& own, const CV3& tgt)
{
    return (tgt - own).Slope();
}

int TgtCalc::Cpa(const CV3& own, const CV3& ownVel, const CV3& tgt, const CV3& tgtVel, double& rng,
                 double& tm)
{
    const CV3 apart = tgt - own;
    const CV3 motion = tgtVel - ownVel;
    const double speed2 = motion | motion;
    const bool isMoving = speed2 != 0;
    tm = isMoving ? -(apart | motion) / speed2 : 0.0;
    rng = (apart + motion * tm).Length();
    return isMoving;
}

int TgtCalc::XTrk(const CRoute& route, const CV3& pos, double& across, double& along)
{
    CRtV3* a = nullptr;
    CRtV3* b = nullptr;
    const double p = route.En2P(pos.x, pos.y, a, b);
    if (!a)
        return 0;
    const CRtV3 place = CRoute::InterpP(p, *a, *b);
    const double dx = pos.x - place.x;
    const double dy = pos.y - place.y;
    // At a node both of its segments have a say; one alone would call the outside of a sharp corner inside.
    const bool isNode = place.x == b->x && place.y == b->y;
    const double dirX = std::cos(a->heading) + (isNode ? std::cos(b->heading) : 0);
    const double dirY = std::sin(a->heading) + (isNode ? std::sin(b->heading) : 0);
    const double distance = ML::Hypot(dx, dy);
    across = dirX * dy - dirY * dx > 0 ? -distance : distance;
    along = place.q;
    return 1;
}
