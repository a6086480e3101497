#pragma once

#include <windows.h>

namespace vant::detail
{

/** The dots per inch that the system has for a window; for null those that a new one is made for. 0 if it
 * does not say. */
int SystemDpi(HWND wnd) noexcept;

} // namespace vant::detail
