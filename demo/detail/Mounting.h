#pragma once

namespace demo
{

/** How the echo sounder is mounted: the direction of its beam. What it measures along a slanting beam is more
 * than the depth, and lies beside the boat. */
struct Mounting {
    double bearing = 0.0;   ///< of the beam from the bow, radians clockwise
    double slope = upright; ///< of the beam below the horizontal, radians

    static constexpr double upright = 1.5707963267948966; ///< straight down

    /** Depth under the transducer for each metre that is measured along the beam: 0 to 1. */
    double DepthPart() const noexcept;

    /** Distance to the side at which the beam meets the ground, for each metre along the beam: 0 to 1. */
    double SidePart() const noexcept;
};

} // namespace demo
