#pragma once

#include "controls/detail/WorkArea.h"

#include <afxwin.h>

namespace vant::detail
{

/** The application's main window, or the one around it; null if there is none. */
HWND MsgOwner();

/** Place for a box of this size in the middle of a window that can be seen, else of the work area of its
 * monitor; always inside the work area. All pixels of the screen. @param over  null: the primary monitor */
CRect MsgPlace(HWND over, CSize size);

/** `place` if it does not touch `other`, else the nearest place below, above, right or left of it that is
 * inside the work area of the monitor; `place` if none is. */
CRect MsgPlaceBeside(const CRect& place, const CRect& other);

} // namespace vant::detail
