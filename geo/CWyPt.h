#pragma once

#include "core/CV3.h"
#include "core/VantApi.h"

/** A waypoint: a place in display coordinates. Copies take the place. */
class VANT_API CWyPt
{
public:
    /** At the zero of the display. */
    CWyPt() = default;
    /** At a place in display coordinates, metres. */
    CWyPt(double itsX, double itsY, double itsZ)
        : x(itsX)
        , y(itsY)
        , z(itsZ)
    {
    }
    CWyPt(const CWyPt& other) = default;
    CWyPt& operator=(const CWyPt& other) = default;
    virtual ~CWyPt();

    /** The place as a vector. */
    CV3 Pos() const { return {x, y, z}; }

    double x = 0; ///< east, metres
    double y = 0; ///< north, metres
    double z = 0; ///< up, metres
};
