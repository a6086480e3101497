#include "controls/CECtrl.h"

#include "platform/detail/HelpRegistry.h"

// Constant, so that controls with static storage may be made before anything else of this file.
constinit CLstPtr<CECtrl*> CECtrl::s_eCtrls;
constinit CLstPtr<CECtrl*> CECtrl::s_auCtrls;

namespace
{

/** The next control that owns `wnd`, from `pos` on; null if there is none. */
CECtrl* NextOf(HWND wnd, CVantPtr*& pos)
{
    while (wnd && pos) {
        CECtrl* const ctrl = CECtrl::s_eCtrls.GetNext(pos);
        if (ctrl->m_hWnd == wnd)
            return ctrl;
    }
    return nullptr;
}

/** Answers the context help: the topic is the control's fourth text. */
bool FindHelp(HWND wnd, CString& topic, HWND& parent)
{
    CVantPtr* pos = CECtrl::s_eCtrls.GetHeadPos();
    const CECtrl* const ctrl = NextOf(wnd, pos);
    if (!ctrl)
        return false;
    topic = ctrl->aux3;
    parent = ::GetAncestor(wnd, GA_PARENT);
    return true;
}

[[maybe_unused]] const bool helpRegistered = [] {
    vant::detail::Help().findControl = &FindHelp;
    return true;
}();

} // namespace

CECtrl* CECtrl::GetCtrl(CPoint screenPt)
{
    CVantPtr* pos = s_eCtrls.GetHeadPos();
    return NextOf(::WindowFromPoint(screenPt), pos);
}

CECtrl* CECtrl::GetTip(CPoint screenPt, CString& tip)
{
    const HWND wnd = ::WindowFromPoint(screenPt);
    CVantPtr* pos = s_eCtrls.GetHeadPos();
    while (CECtrl* const ctrl = NextOf(wnd, pos)) {
        CString found;
        ctrl->GetTip(found);
        if (found.IsEmpty())
            continue;
        tip = found;
        return ctrl;
    }
    return nullptr;
}

void CECtrl::UpdateAuCtrls(double t)
{
    // Moved on before the call: the control may take itself off the list.
    for (CVantPtr* pos = s_auCtrls.GetHeadPos(); pos;)
        s_auCtrls.GetNext(pos)->AutoUpdate(t);
}
