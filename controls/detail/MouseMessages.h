#pragma once

#include <afxwin.h>

namespace vant::detail
{

/** A button goes down, the second time of a double click too, wherever in a window that is. */
constexpr bool IsMousePress(UINT message) noexcept
{
    switch (message) {
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
    case WM_MBUTTONDOWN:
    case WM_XBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_RBUTTONDBLCLK:
    case WM_MBUTTONDBLCLK:
    case WM_XBUTTONDBLCLK:
    case WM_NCLBUTTONDOWN:
    case WM_NCRBUTTONDOWN:
    case WM_NCMBUTTONDOWN:
    case WM_NCXBUTTONDOWN:
    case WM_NCLBUTTONDBLCLK:
    case WM_NCRBUTTONDBLCLK:
    case WM_NCMBUTTONDBLCLK:
    case WM_NCXBUTTONDBLCLK:
        return true;
    default:
        return false;
    }
}

constexpr bool IsMouseWheel(UINT message) noexcept
{
    return message == WM_MOUSEWHEEL || message == WM_MOUSEHWHEEL;
}

} // namespace vant::detail
