#include "CShapes.h"

#include <cmath>

int CPolygon::Inside(double x, double y)
{
    // A line from the point to the east crosses the outline an odd number of times from inside.
    bool isInside = false;
    const CV3* from = GetTail();
    for (CVantPtr* pos = GetHeadPos(); pos;) {
        const CV3* const to = GetNext(pos);
        if ((from->y > y) != (to->y > y) && ML::Interpolate(from->y, to->y, y, from->x, to->x) > x)
            isInside = !isInside;
        from = to;
    }
    return isInside;
}

CDisc::CDisc(double x, double y, double radius)
{
    par[0] = x;
    par[1] = y;
    par[2] = radius;
    constexpr int corners = 90;
    for (int i = 0; i < corners; ++i) // to be seen
        AddTail(new CV3(CV3(x, y, 0) + TgtCalc::Vel(i * ML::pi2 / corners, radius)));
}

int CDisc::Inside(double x, double y)
{
    return ML::Hypot(x - par[0], y - par[1]) <= par[2];
}

CTurned::CTurned(double x, double y, double length, double width, double bearing)
{
    par[0] = x;
    par[1] = y;
    par[2] = length;
    par[3] = width;
    par[4] = bearing;
    const CMat frame = Frame();
    const double side = width / 2;
    const double end = length / 2;
    for (const CV3& corner : {CV3(-side, -end, 0), CV3(side, -end, 0), CV3(side, end, 0), CV3(-side, end, 0)})
        AddTail(new CV3(frame.LocalToGlobal(corner)));
}

CMat CTurned::Frame() const
{
    CMat frame;
    frame.SetOrg({par[0], par[1], 0});
    frame.RotateZ(-par[4]);
    return frame;
}

int CTurned::Inside(double x, double y)
{
    const CV3 at = Frame().GlobalToLocal({x, y, 0});
    return std::abs(at.y) <= par[2] / 2 && std::abs(at.x) <= par[3] / 2;
}

CCorridor::CCorridor(const CRoute& route, double left, double right)
    : m_route(route)
{
    par[0] = left;
    par[1] = right;
    for (CVantPtr* pos = route.GetHeadPos(); pos;)
        AddTail(new CV3(route.GetNext(pos)->Pos()));
}

int CCorridor::Inside(double x, double y)
{
    double across = 0;
    double along = 0;
    return TgtCalc::XTrk(m_route, {x, y, 0}, across, along) && -par[0] <= across && across <= par[1];
}

void CCorridor::ProcTgt(const CArProcTgt& tgt, double x, double y, void (CObject::*callback)(double))
{
    double across = 0;
    double along = 0;
    if (TgtCalc::XTrk(m_route, {x, y, 0}, across, along))
        (tgt.receiver->*callback)(across);
}
