#pragma once

#include "demo/detail/Geometry.h"

namespace demo
{

/** Where the parts of the display are in the window's client area. */
struct Layout {
    Box header;
    Box alarms;
    Box depth;
    Box track;
    Box heading;
    Box position;
    Box wind;
    Box motion;
    Box footer;
    double scale = 1.0; ///< of text and lines; 1 for the area that the display was drawn for

    static constexpr int designWidth = 1280;
    static constexpr int designHeight = 800;
    static constexpr int leastWidth = 1000; ///< a smaller area is not fit to be read
    static constexpr int leastHeight = 660;

    /** Divides an area of any size, at least leastWidth x leastHeight being used: three columns of two panels
     *  between header and alarm line above and the footer below. */
    static Layout Of(int width, int height) noexcept;
};

} // namespace demo
