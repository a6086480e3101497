#pragma once

#include "core/VantApi.h"

#include <afxwin.h>

namespace vant::detail
{

/** The work area of the monitor that a window, or the greater part of it, is on. @param wnd  null: the
 * primary monitor */
VANT_API CRect WorkArea(HWND wnd);

/** The work area of the monitor that is nearest to a point. */
VANT_API CRect WorkArea(CPoint screenPt);

/** Moves a rectangle into another one, its right and bottom first: what is too large begins at the top left.
 */
VANT_API CRect MovedInto(CRect r, const CRect& area);

} // namespace vant::detail
