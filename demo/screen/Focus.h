#pragma once

#include <windows.h>

namespace demo
{

/** Whether a window, or one inside it, has the keyboard. */
bool HoldsFocus(HWND wnd) noexcept;

} // namespace demo
