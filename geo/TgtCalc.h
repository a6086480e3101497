#pragma once

#include "core/CV3.h"
#include "core/VantApi.h"

class CRoute;

/** What can be told about a target from own place and motion and its own: ranges, bearings, the closest point
 * of approach, and how far off a route something is.
 *
 *  Places are in metres, x east, y north, z up; velocities in metres per second along the same axes. Bearings
 * are radians in [0, 2 pi), clockwise from +Y. What is not a number gives what is not a number. */
class VANT_API TgtCalc
{
public:
    TgtCalc() = delete;

    /** The velocity of something on a course. @param brg  bearing  @param climb  upwards */
    static CV3 Vel(double brg, double speed, double climb = 0);

    /** The distance to the target in space. */
    static double Rng(const CV3& own, const CV3& tgt);
    /** The distance to the target as seen from above. */
    static double PlanRng(const CV3& own, const CV3& tgt);
    /** The bearing of the target; as of CV3::Brg(), pi for one that is straight above or below. */
    static double Brg(const CV3& own, const CV3& tgt);
    /** The same from the bow. @param heading  own bearing, any number of turns @return in [0, 2 pi),
     * clockwise: less than pi is to starboard */
    static double RelBrg(const CV3& own, double heading, const CV3& tgt);
    /** The elevation of the target above the horizontal, -pi/2 .. pi/2. */
    static double Elev(const CV3& own, const CV3& tgt);

    /** The closest point of approach, in space, if both keep their velocities.
     *  @param[out] rng  the distance there
     *  @param[out] tm  seconds until then; less than 0 where it has been passed
     *  @return non-zero; 0 if neither moves as seen from the other: now is as good as any time */
    static int Cpa(const CV3& own, const CV3& ownVel, const CV3& tgt, const CV3& tgtVel, double& rng,
                   double& tm);

    /** The distance from a route as seen from above, to its nearest place (CRoute::En2P), also beyond its
     * ends.
     *  @param[out] across  more than 0 to the right of the route's direction, less to its left
     *  @param[out] along  q of the nearest place
     *  @return non-zero; 0, and both stay, for a route without nodes and a place that is not finite */
    static int XTrk(const CRoute& route, const CV3& pos, double& across, double& along);
};
