#include "controls/detail/CtrlLook.h"

#include "controls/CECtrl.h"

using vant::skins::Look;

namespace vant::detail
{

bool HasFocus(const CECtrl& ctrl)
{
    return ctrl.m_hWnd && ::GetFocus() == ctrl.m_hWnd;
}

Look LookOf(const CECtrl& ctrl)
{
    if (!ctrl.IsEnabled())
        return Look::Disabled;
    if (ctrl.look & CECtrl::lookPressed)
        return Look::Pressed;
    if (HasFocus(ctrl))
        return Look::Focused;
    return (ctrl.look & CECtrl::lookHover) ? Look::Hover : Look::Normal;
}

} // namespace vant::detail
