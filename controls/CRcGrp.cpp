#include "controls/CRcGrp.h"

#include "controls/CRcMgr.h"

CRcGrp::CRcGrp(const CString& name, CRcMgr& mgr)
    : m_name(name)
    , m_mgr(mgr)
{
}

CRcSet* CRcGrp::FindSet(const CString& name) const
{
    for (CVantPtr* pos = m_sets.GetHeadPos(); pos;) {
        CRcSet* const set = m_sets.GetNext(pos);
        if (set->Name() == name)
            return set;
    }
    return nullptr;
}

CRcSet* CRcGrp::GetSet(const CString& name)
{
    if (CRcSet* const known = FindSet(name))
        return known;
    auto* const made = new CRcSet(name, *this);
    m_sets.AddTail(made);
    return made;
}

void CRcGrp::DelSet(CRcSet* set)
{
    CVantPtr* const pos = m_sets.Find(set);
    if (!pos)
        return;
    m_place = vant::detail::RcWithout(m_place, m_sets.GetIndex(pos));
    m_sets.RemoveAt(pos);
    m_mgr.Refresh();
}

std::vector<bool> CRcGrp::Usable() const
{
    std::vector<bool> usable;
    for (CVantPtr* pos = m_sets.GetHeadPos(); pos;)
        usable.push_back(m_sets.GetNext(pos)->HasUsable());
    return usable;
}

bool CRcGrp::HasUsable() const
{
    for (CVantPtr* pos = m_sets.GetHeadPos(); pos;)
        if (m_sets.GetNext(pos)->HasUsable())
            return true;
    return false;
}
