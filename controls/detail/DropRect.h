#pragma once

#include "controls/detail/DropPlace.h"

#include <afxwin.h>

namespace vant::detail
{

/** PlaceDrop() for the system's rectangles. */
inline CRect PlaceDrop(const CRect& box, const CRect& area, Side wanted, DropSize size)
{
    const auto boxOf = [](const CRect& r) { return ScreenBox{r.left, r.top, r.right, r.bottom}; };
    const ScreenBox drop = PlaceDrop(boxOf(box), boxOf(area), wanted, size);
    return {drop.left, drop.top, drop.right, drop.bottom};
}

} // namespace vant::detail
