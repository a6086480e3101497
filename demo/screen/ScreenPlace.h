#pragma once

#include "controls/CDpi.h"
#include "demo/detail/PopupPlaces.h"

#include <afxwin.h>

namespace demo
{

/** Style of the main window. */
inline constexpr DWORD mainStyle = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN;

/** The size of the main window around a client area, in pixels. @param width, height  in units */
CSize FrameAround(int width, int height, CDpi dpi) noexcept;

/** The dots per inch for the main window on the monitor where it is: those that the system asks for, or as
 * many as let its least size fit there. */
CDpi DpiThatFits(HWND wnd, CDpi asked) noexcept;

/** Where the main window goes when it was never open: onto the main screen, with room for the popups. */
Box FirstPlace() noexcept;

/** Where the popups go that were never open. @param bridge  the main window, pixels */
PopupPlaces FirstPlacesOfPopups(const Box& bridge, CDpi dpi) noexcept;

/** Where a window goes that was last open at `saved`: there, as far as the monitors of today allow it. */
Box PlaceAgain(const Box& saved);

Box BoxOf(const RECT& rect) noexcept;
CRect RectOf(const Box& box) noexcept;

} // namespace demo
