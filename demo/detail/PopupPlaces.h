#pragma once

#include "demo/detail/Geometry.h"

namespace demo
{

/** Where the chart, the orbit view, the colours of the depths and the survey are first put, pixels. */
struct PopupPlaces {
    Box chart;
    Box orbit;
    Box colours;
    Box survey; ///< in the middle of the bridge: it is closed at first

    /** @name Least sizes of the room that the popups are put into, units @{ */
    static constexpr int leastWidth = 400;
    static constexpr int leastHeight = 340;
    /** @} */

    static constexpr int coloursWidth = 410; ///< of the colours, which need no more
    static constexpr int coloursHeight = 340;

    static constexpr int surveyWidth = 780;
    static constexpr int surveyHeight = 470;

    /** Finds them room in a work area: at the right of the bridge, one over the other, else below it, side by
     * side; where neither is wide enough they lie over the lower right corner of the bridge, each a little
     * above the next.
     *  @param scale  pixels of a unit */
    static PopupPlaces Beside(const Box& bridge, const Box& work, double scale) noexcept;
};

/** Where the bridge is first put, so that the popups find room beside or below it if the work area has it:
 *  as large as `width` x `height` otherwise, in the middle. @param leastHeight  down to which it makes room
 * below */
Box BridgePlace(int width, int height, int leastHeight, const Box& work, double scale) noexcept;

} // namespace demo
