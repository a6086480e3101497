#include "demo/screen/Focus.h"

namespace demo
{

bool HoldsFocus(HWND wnd) noexcept
{
    const HWND focus = ::GetFocus();
    return focus && (focus == wnd || ::IsChild(wnd, focus));
}

} // namespace demo
