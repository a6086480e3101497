#pragma once

#include "demo/detail/Geometry.h"

#include <array>

namespace demo
{

/** Where the parts of the bridge are in its client area. All lengths are the library's layout units. */
struct Layout {
    Box header;
    Box alarms; ///< the line that tells which alarms are on
    Box depth;
    Box track;
    Box heading;
    Box position;
    Box wind;
    Box motion;
    /** The consoles, in a row as long as their messages can be read. The last one stands under the set-up if
     * there is room. A narrow area leaves out the third and, unless it stands there, the last one; their
     * boxes are empty then. */
    std::array<Box, 4> docks;
    Box setup; ///< the column at the right
    Box footer;
    double scale = 1.0; ///< of text and lines in the instruments; 1 for the area that they were drawn for

    static constexpr int designWidth = 1500;
    static constexpr int designHeight = 980;
    static constexpr int wholeHeight = 808; ///< from which the set-up shows all of its sections
    static constexpr int leastWidth = 1040; ///< a smaller area is not fit to be read
    static constexpr int leastHeight = 680;

    /** Divides an area of any size, at least leastWidth x leastHeight being used: header and alarm line
     * above, the footer below; between them three columns of two instruments over the consoles, and the
     * set-up. */
    static Layout Of(int width, int height) noexcept;
};

} // namespace demo
