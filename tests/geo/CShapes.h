#pragma once

#include <VantCore.h>

// Areas that know what lies inside: each fills in the hook of its kind and reads the numbers by the kind's
// own convention (geo/CArKinds.h).

/** A polygon of any shape: its vertices. */
class CPolygon : public CArFree
{
public:
    using CArea::Inside; // also that of a vector
    int Inside(double x, double y) override;
};

/** A circle. */
class CDisc : public CArCircle
{
public:
    CDisc(double x, double y, double radius);
    using CArea::Inside;
    int Inside(double x, double y) override;
};

/** A rectangle at an angle. */
class CTurned : public CArARect
{
public:
    CTurned(double x, double y, double length, double width, double bearing);
    using CArea::Inside;
    int Inside(double x, double y) override;

private:
    CMat Frame() const; // y along the length
};

/** What lies within so many metres to the left and to the right of a route. */
class CCorridor : public CArRt
{
public:
    CCorridor(const CRoute& route, double left, double right);
    using CArea::Inside;
    int Inside(double x, double y) override;
    /** Tells the distance off the route, to the right. */
    void ProcTgt(const CArProcTgt& tgt, double x, double y, void (CObject::*callback)(double)) override;

private:
    CRoute m_route;
};
