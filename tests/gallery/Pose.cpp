#include "Pose.h"

void Pose(CECtrl& ctrl, State state, CWnd& elsewhere)
{
    auto* const part = dynamic_cast<CECtrl*>(CWnd::FromHandlePermanent(::GetWindow(ctrl, GW_CHILD)));
    CECtrl& target = part ? *part : ctrl;
    // A row of buttons looks where the mouse is.
    target.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(1, 1));
    target.look = state == stHot       ? int{CECtrl::lookHover}
                  : state == stPressed ? CECtrl::lookHover | CECtrl::lookPressed
                                       : 0;
    ctrl.state = state == stDisabled ? CECtrl::stShown : CECtrl::stShown | CECtrl::stEnabled;
    if (state == stFocused)
        target.SetFocus();
    else
        elsewhere.SetFocus();
}
