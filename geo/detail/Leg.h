#pragma once

namespace vant::detail
{

/** What a segment of a route adds to it: its length, also as seen from above, and its direction. */
struct Leg {
    double length = 0;
    double plan = 0;
    double heading = 0; ///< mathematical angle, radians, rounded to single precision
    double pitch = 0;   ///< positive downwards, radians, rounded to single precision
};

/** The segment that goes by (dx, dy, dz). One that goes straight up or down keeps the heading of the segment
 * before it, and one that goes nowhere its pitch as well; so does one whose length is not a number or beyond
 * the range of numbers, which counts as going nowhere. Before the first segment stands Leg(). */
Leg NextLeg(const Leg& before, double dx, double dy, double dz) noexcept;

} // namespace vant::detail
