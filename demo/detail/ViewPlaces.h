#pragma once

#include "demo/detail/Geometry.h"

namespace demo
{

/** Where the chart and the orbit view are first put, pixels. */
struct ViewPlaces {
    Box chart;
    Box orbit;

    /** @name Least sizes of the room that a view is put into, units @{ */
    static constexpr int leastWidth = 360;
    static constexpr int leastHeight = 340;
    /** @} */

    /** Finds them room in a work area: at the right of the bridge, one over the other, else below it, side by
     * side; where neither is wide enough they lie over the lower right corner of the bridge, one a little
     * above the other.
     *  @param scale  pixels of a unit */
    static ViewPlaces Beside(const Box& bridge, const Box& work, double scale) noexcept;
};

/** Where the bridge is first put, so that the views find room beside or below it if the work area has it:
 *  as large as `width` x `height` otherwise, in the middle. @param leastHeight  down to which it makes room
 * below */
Box BridgePlace(int width, int height, int leastHeight, const Box& work, double scale) noexcept;

} // namespace demo
