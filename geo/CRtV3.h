#pragma once

#include "core/CV3.h"
#include "core/VantApi.h"

/** A node of a route, or a position between two of them. Copies take everything. */
class VANT_API CRtV3
{
public:
    /** At the zero of the display. */
    CRtV3() = default;
    /** At a place in display coordinates, metres. */
    CRtV3(double itsX, double itsY, double itsZ)
        : x(itsX)
        , y(itsY)
        , z(itsZ)
    {
    }
    CRtV3(const CRtV3& other) = default;
    CRtV3& operator=(const CRtV3& other) = default;
    virtual ~CRtV3();

    /** The place as a vector. */
    CV3 Pos() const { return {x, y, z}; }

    /** @name Display coordinates, metres */
    ///@{
    double x = 0; ///< east, metres
    double y = 0; ///< north, metres
    double z = 0; ///< up, metres
    /** @} */
    /** @name What CRoute::Recalc() finds out */
    ///@{
    double p = 0;       ///< distance from the first node along the route, metres
    double q = 0;       ///< the same as seen from above
    double heading = 0; ///< of the segment that leaves the node: mathematical angle in the XY plane, radians
    /** Of the same segment, radians, deliberately positive downwards: as for a vehicle that dives. */
    double pitch = 0;
    /** @} */
    double scale = 0; ///< multiplies offsets to the side; deliberately 0 at first: no offset before it is set
    /** @name The application's: kept and copied */
    ///@{
    int flags = 0; ///< bits that the application chooses
    int user = 0;  ///< a number of the application
    /** @} */
};
