#pragma once

#include "demo/detail/Geometry.h"

namespace demo
{

/** Part of a way that is done after a part of its time, both 0 to 1: slow at first, fast, and slow again. */
double Eased(double part) noexcept;

/** A calm way of the mouse from one point to another. */
struct Glide {
    Point from;
    Point to;
    double begin = 0.0;    ///< seconds
    double duration = 0.0; ///< seconds

    /** Straight there: the farther, the longer it takes, but never so long that a viewer grows tired.
     *  @param now  seconds */
    static Glide Between(Point from, Point to, double now) noexcept;

    /** Where it is at a time: at `from` before it begins, at `to` once it is over. */
    Point At(double t) const noexcept;
    bool IsOver(double t) const noexcept { return t >= begin + duration; }
};

} // namespace demo
