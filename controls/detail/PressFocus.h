#pragma once

#include <windows.h>

namespace vant::detail
{

/** Gives the focus to a control that the mouse has been pressed on. A field that loses it calls its
 * callbacks, which may destroy or disable the control, or take the mouse, as a message box does: the button
 * may be up again. @return whether the press goes on; the control does not hold the mouse yet */
bool FocusByPress(HWND ctrl);

} // namespace vant::detail
