#include "controls/CRcMgr.h"

#include "controls/detail/RcGlow.h"
#include "controls/detail/WatchedCtrl.h"

#include <limits>

using vant::detail::CtrlOf;
using vant::detail::RcNearest;
using vant::detail::RcStep;

IMPLEMENT_DYNAMIC(CRcMgr, CVantWnd)

constexpr int CRcMgr::nfyCurrent;

namespace
{

int Negated(int number)
{
    return number == std::numeric_limits<int>::min() ? std::numeric_limits<int>::max() : -number;
}

} // namespace

CRcMgr::CRcMgr()
    : m_glow(std::make_unique<vant::detail::RcGlow>(*this))
{
    name = L"RcMgr";
    s_infoRx.AddTail(this);
}

CRcMgr::~CRcMgr()
{
    s_infoRx.RemoveAt(s_infoRx.Find(this));
}

CRcGrp* CRcMgr::FindGrp(const CString& grpName) const
{
    for (CVantPtr* pos = m_grps.GetHeadPos(); pos;) {
        CRcGrp* const grp = m_grps.GetNext(pos);
        if (grp->Name() == grpName)
            return grp;
    }
    return nullptr;
}

CRcGrp* CRcMgr::GetGrp(const CString& grpName)
{
    if (CRcGrp* const known = FindGrp(grpName))
        return known;
    auto* const made = new CRcGrp(grpName, *this);
    m_grps.AddTail(made);
    return made;
}

void CRcMgr::DelGrp(CRcGrp* grp)
{
    CVantPtr* const pos = m_grps.Find(grp);
    if (!pos)
        return;
    m_place = vant::detail::RcWithout(m_place, m_grps.GetIndex(pos));
    m_grps.RemoveAt(pos);
    Refresh();
}

CRcGrp* CRcMgr::CurGrp() const
{
    return m_place.on ? m_grps.GetAt(m_grps.FindIndex(m_place.at)) : nullptr;
}

CRcSet* CRcMgr::CurSet() const
{
    const CRcGrp* const grp = CurGrp();
    return grp ? grp->Cur() : nullptr;
}

CECtrl* CRcMgr::CurCtrl() const
{
    CRcSet* const set = m_isActive ? CurSet() : nullptr;
    CECtrl* const ctrl = set ? set->Cur() : nullptr;
    return CRcSet::IsUsable(ctrl) ? ctrl : nullptr;
}

std::vector<bool> CRcMgr::Usable() const
{
    std::vector<bool> usable;
    for (CVantPtr* pos = m_grps.GetHeadPos(); pos;)
        usable.push_back(m_grps.GetNext(pos)->HasUsable());
    return usable;
}

/** Brings the glow, and what listeners know, in line with what is current. */
void CRcMgr::Refresh()
{
    CECtrl* const now = CurCtrl();
    m_glow->Show(now);
    if (CtrlOf(m_told) != now || m_hasTold != (now != nullptr) || m_toldSet != CurSet())
        Tell(now);
}

void CRcMgr::Tell(CECtrl* now)
{
    m_told.reset();
    if (now)
        m_told = now->Watch();
    m_hasTold = now != nullptr;
    m_toldSet = CurSet();
    NotifyWnd(nfyCurrent, now);
}

void CRcMgr::EnterCtrl(CRcSet& set, int ctrl)
{
    if (ctrl < 0)
        return;
    set.m_place = {ctrl, true};
    m_isActive = true;
    ScrollAllIntoView(set.GetAt(ctrl));
}

void CRcMgr::EnterSet(CRcGrp& grp, int set)
{
    if (set < 0)
        return;
    grp.m_place = {set, true};
    CRcSet& entered = *grp.Cur();
    EnterCtrl(entered, RcNearest(entered.Usable(), entered.m_place));
}

void CRcMgr::EnterGrp(int grp)
{
    if (grp < 0)
        return;
    m_place = {grp, true};
    CRcGrp& entered = *CurGrp();
    EnterSet(entered, RcNearest(entered.Usable(), entered.m_place));
}

int CRcMgr::Wake()
{
    EnterGrp(RcNearest(Usable(), m_place));
    const int found = m_isActive ? 1 : 0;
    Refresh();
    return found;
}

int CRcMgr::StepGrp(int by)
{
    if (by == 0)
        return 0;
    if (!m_isActive)
        return Wake();
    const CRcGrp* const before = CurGrp();
    EnterGrp(RcStep(Usable(), m_place, by, wrap != 0));
    const int changed = CurGrp() != before ? 1 : 0;
    Refresh();
    return changed;
}

int CRcMgr::StepSet(int by)
{
    if (by == 0)
        return 0;
    CRcGrp* const grp = CurGrp();
    if (!m_isActive || !grp)
        return Wake();
    const CRcSet* const before = grp->Cur();
    EnterSet(*grp, RcStep(grp->Usable(), grp->m_place, by, wrap != 0));
    const int changed = grp->Cur() != before ? 1 : 0;
    Refresh();
    return changed;
}

int CRcMgr::StepCtrl(int by)
{
    if (by == 0)
        return 0;
    CRcSet* const set = CurSet();
    if (!m_isActive || !set)
        return Wake();
    const CECtrl* const before = set->Cur();
    // The look-up of what can be used also takes deleted controls away, and the place with them.
    const std::vector<bool> usable = set->Usable();
    EnterCtrl(*set, RcStep(usable, set->m_place, by, wrap != 0));
    const int changed = set->Cur() != before ? 1 : 0;
    Refresh();
    return changed;
}

int CRcMgr::Adjust(int notches, int isFine)
{
    CECtrl* const ctrl = CurCtrl();
    if (!ctrl || notches == 0)
        return 0;
    constexpr double fineShare = 0.1;
    const CRcSet& set = *CurSet();
    const CRcSet::Member& member = set.m_members[static_cast<std::size_t>(set.m_place.at)];
    const double fineStep = member.fine > 0 ? member.fine : member.step * fineShare;
    ScrollAllIntoView(ctrl);
    return ctrl->Jog(notches, isFine ? fineStep : member.step, isFine);
}

int CRcMgr::Press()
{
    CECtrl* const ctrl = CurCtrl();
    if (!ctrl)
        return 0;
    ScrollAllIntoView(ctrl);
    return ctrl->Press();
}

void CRcMgr::ToggleFine()
{
    fine = fine ? 0 : 1;
    Tell(CurCtrl());
}

void CRcMgr::Release()
{
    m_isActive = false;
    Refresh();
}

bool CRcMgr::SelectIn(int grp, int set, CECtrl* ctrl)
{
    CRcGrp& inGrp = *m_grps.GetAt(m_grps.FindIndex(grp));
    CRcSet& inSet = *inGrp.m_sets.GetAt(inGrp.m_sets.FindIndex(set));
    const int at = inSet.Find(ctrl);
    if (at < 0)
        return false;
    m_place = {grp, true};
    inGrp.m_place = {set, true};
    EnterCtrl(inSet, at);
    return true;
}

int CRcMgr::Select(CECtrl* ctrl)
{
    if (!CRcSet::IsUsable(ctrl))
        return 0;
    bool found = CurSet() && SelectIn(m_place.at, CurGrp()->m_place.at, ctrl);
    for (int grp = 0; !found && grp < m_grps.GetCount(); ++grp) {
        const int sets = m_grps.GetAt(m_grps.FindIndex(grp))->Sets().GetCount();
        for (int set = 0; !found && set < sets; ++set)
            found = SelectIn(grp, set, ctrl);
    }
    if (found)
        Refresh();
    return found ? 1 : 0;
}

void CRcMgr::OnInfoMsg(int msg, void* data)
{
    const int count = data ? *static_cast<const int*>(data) : 1;
    switch (msg - infoShift) {
    case infoNextGrp:
        StepGrp(count);
        break;
    case infoPrevGrp:
        StepGrp(Negated(count));
        break;
    case infoNextSet:
        StepSet(count);
        break;
    case infoPrevSet:
        StepSet(Negated(count));
        break;
    case infoNextCtrl:
        StepCtrl(count);
        break;
    case infoPrevCtrl:
        StepCtrl(Negated(count));
        break;
    case infoInc:
        Adjust(count, fine);
        break;
    case infoDec:
        Adjust(Negated(count), fine);
        break;
    case infoIncFine:
        Adjust(count, 1);
        break;
    case infoDecFine:
        Adjust(Negated(count), 1);
        break;
    case infoPress:
        Press();
        break;
    case infoFine:
        ToggleFine();
        break;
    case infoRelease:
        Release();
        break;
    default:
        break;
    }
}
