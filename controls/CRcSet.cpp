#include "controls/CRcSet.h"

#include "controls/CEAddr.h"
#include "controls/CRcMgr.h"
#include "controls/detail/WatchedCtrl.h"

#include <algorithm>

using vant::detail::CtrlOf;

CRcSet::CRcSet(const CString& name, CRcGrp& grp)
    : m_name(name)
    , m_grp(grp)
{
}

bool CRcSet::IsUsable(const CECtrl* ctrl)
{
    if (!ctrl || !ctrl->m_hWnd || !ctrl->IsEnabled() || !::IsWindowVisible(ctrl->m_hWnd))
        return false;
    for (HWND wnd = ctrl->m_hWnd;;) {
        // A window is disabled while a modal one waits for its answer.
        if (!::IsWindowEnabled(wnd) || ::IsIconic(wnd))
            return false;
        if (!(::GetWindowLongPtrW(wnd, GWL_STYLE) & WS_CHILD))
            return true;
        wnd = ::GetAncestor(wnd, GA_PARENT);
    }
}

/** Forgets the controls that were deleted. */
void CRcSet::Prune()
{
    for (std::size_t i = m_members.size(); i-- > 0;)
        if (m_members[i].ctrl.expired())
            m_place = vant::detail::RcWithout(m_place, static_cast<int>(i));
    std::erase_if(m_members, [](const Member& member) { return member.ctrl.expired(); });
}

void CRcSet::Changed()
{
    m_grp.m_mgr.Refresh();
}

int CRcSet::Find(const CECtrl* ctrl)
{
    Prune();
    const auto found = std::find_if(m_members.begin(), m_members.end(),
                                    [ctrl](const Member& member) { return CtrlOf(member.ctrl) == ctrl; });
    return found != m_members.end() ? static_cast<int>(found - m_members.begin()) : -1;
}

void CRcSet::Add(CECtrl* ctrl, double step, double fine)
{
    if (!ctrl)
        return;
    const int at = Find(ctrl);
    if (at < 0)
        m_members.push_back({ctrl->Watch(), step, fine});
    else
        m_members[static_cast<std::size_t>(at)] = {ctrl->Watch(), step, fine};
}

void CRcSet::AddCat(const CCtrlCat& cat)
{
    for (CVantPtr* pos = cat.ctrls.GetHeadPos(); pos;) {
        CECtrl* const ctrl = cat.ctrls.GetNext(pos);
        // Of an address it is the fields that Tab stops at.
        if ((ctrl->WndStyle() & WS_TABSTOP) || dynamic_cast<CEAddr*>(ctrl))
            Add(ctrl);
    }
}

void CRcSet::AddWnd(const CVantWnd& wnd)
{
    AddCat(wnd);
    for (CVantPtr* pos = wnd.Cats().GetHeadPos(); pos;)
        AddCat(*wnd.Cats().GetNext(pos));
}

void CRcSet::Remove(CECtrl* ctrl)
{
    const int at = Find(ctrl);
    if (at < 0)
        return;
    m_members.erase(m_members.begin() + at);
    m_place = vant::detail::RcWithout(m_place, at);
    Changed();
}

void CRcSet::Clear()
{
    m_members.clear();
    m_place = {};
    Changed();
}

int CRcSet::GetCount()
{
    Prune();
    return static_cast<int>(m_members.size());
}

CECtrl* CRcSet::GetAt(int index)
{
    return index >= 0 && index < GetCount() ? CtrlOf(m_members[static_cast<std::size_t>(index)].ctrl)
                                            : nullptr;
}

CECtrl* CRcSet::Cur()
{
    Prune();
    return m_place.on ? GetAt(m_place.at) : nullptr;
}

std::vector<bool> CRcSet::Usable()
{
    Prune();
    std::vector<bool> usable;
    usable.reserve(m_members.size());
    for (const Member& member : m_members)
        usable.push_back(IsUsable(CtrlOf(member.ctrl)));
    return usable;
}

bool CRcSet::HasUsable()
{
    return std::any_of(m_members.begin(), m_members.end(),
                       [](const Member& member) { return IsUsable(CtrlOf(member.ctrl)); });
}
