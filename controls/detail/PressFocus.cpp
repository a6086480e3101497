#include "controls/detail/PressFocus.h"

namespace vant::detail
{

bool FocusByPress(HWND ctrl)
{
    if (::GetFocus() == ctrl)
        return true;
    // Who takes the mouse meanwhile takes it from the control.
    ::SetCapture(ctrl);
    ::SetFocus(ctrl);
    if (!::IsWindow(ctrl) || ::GetCapture() != ctrl)
        return false;
    ::ReleaseCapture();
    return ::IsWindowEnabled(ctrl) != FALSE;
}

} // namespace vant::detail
