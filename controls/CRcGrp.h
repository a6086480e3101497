#pragma once

#include "controls/CRcSet.h"
#include "core/CLstMgd.h"

#include <vector>

class CRcMgr;

/** A named group of sets of controls that an external controller steps through; part of a CRcMgr. Sets
 * without a control that can be used are passed over. Belongs to the UI thread. */
class VANT_API CRcGrp
{
public:
    CRcGrp(const CRcGrp&) = delete;
    CRcGrp& operator=(const CRcGrp&) = delete;

    /** The name that CRcMgr::GetGrp() was asked for. */
    const CString& Name() const noexcept { return m_name; }

    /** The set of that name, appended if there is none. Owned by the group; valid until DelSet(). */
    CRcSet* GetSet(const CString& name);
    /** The set of that name; null if there is none. */
    CRcSet* FindSet(const CString& name) const;
    /** Deletes a set of this group. */
    void DelSet(CRcSet* set);
    /** In the order in which the controller steps through them. */
    const CLstMgd<CRcSet>& Sets() const noexcept { return m_sets; }
    /** The set that the group was left at; null before there was one. */
    CRcSet* Cur() const { return m_place.on ? m_sets.GetAt(m_sets.FindIndex(m_place.at)) : nullptr; }

private:
    friend class CRcMgr;
    friend class CRcSet;

    CRcGrp(const CString& name, CRcMgr& mgr);
    std::vector<bool> Usable() const;
    bool HasUsable() const;

    CString m_name;
    CRcMgr& m_mgr;
    CLstMgd<CRcSet> m_sets;
    vant::detail::RcPlace m_place;
};
