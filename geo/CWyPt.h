#pragma once

#include "core/CV3.h"
#include "core/VantApi.h"

/** A waypoint: a place in display coordinates. Copies take the place. */
class VANT_API CWyPt
{
public:
    CWyPt() = default;
    CWyPt(double itsX, double itsY, double itsZ)
        : x(itsX)
        , y(itsY)
        , z(itsZ)
    {
    }
    CWyPt(const CWyPt& other) = default;
    CWyPt& operator=(const CWyPt& other) = default;
    virtual ~CWyPt();

    CV3 Pos() const { return {x, y, z}; }

    double x = 0;
    double y = 0;
    double z = 0;
};
