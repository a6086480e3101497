#pragma once

#include "core/VantApi.h"

#include <afxwin.h>

/** How a child follows the growth of its window: the share of the growth that each of its edges moves by.
 *
 *  {0, 0, 1, 0} grows in width with the window, {1, 0, 1, 0} sticks to the right edge, {0, 1, 1, 1} sticks to
 *  the bottom and grows in width, {0, 0, 0.5, 0} takes half of the growth. */
class VANT_API CEFlex
{
public:
    /** Stays as it is. */
    CEFlex() noexcept = default;
    /** The shares of the four edges. */
    CEFlex(double l, double t, double r, double b) noexcept
        : left(l)
        , top(t)
        , right(r)
        , bottom(b)
    {
    }

    double left = 0.0;   ///< share of the growth in width, for the left edge
    double top = 0.0;    ///< share of the growth in height, for the top edge
    double right = 0.0;  ///< share of the growth in width, for the right edge
    double bottom = 0.0; ///< share of the growth in height, for the bottom edge

    /** A rectangle's place after the window grew by (dx, dy); each edge is rounded to the nearest, halves up.
     * The right and bottom edges never come before the left and top ones. */
    CRect Apply(const CRect& base, int dx, int dy) const noexcept;
};
