// CRcMgr: persistence of where it was left.
#include "controls/CRcMgr.h"

#include "settings/CESetObj.h"

namespace
{

/** A name as the file keeps it: without what would end it there. */
CString Key(const CString& name)
{
    CString key = name;
    for (const wchar_t kept : L"\"%<> \t\r\n")
        if (kept)
            key.Replace(kept, L'_');
    return key;
}

/** The index of the member of that key; -1 for none. */
template <class T>
int IndexOf(const CLstMgd<T>& members, const CString& key)
{
    int index = 0;
    for (CVantPtr* pos = members.GetHeadPos(); pos; ++index)
        if (Key(members.GetNext(pos)->Name()) == key)
            return index;
    return -1;
}

/** Exchanges the name of the member that was left. */
template <class T>
void ExchangeCur(CESetObj& obj, const CString& item, const CLstMgd<T>& members, vant::detail::RcPlace& place)
{
    const T* const cur = place.on ? members.GetAt(members.FindIndex(place.at)) : nullptr;
    CString key = cur ? Key(cur->Name()) : CString();
    if (cur || obj.IsLoading())
        obj.Item(item, key);
    if (!obj.IsLoading())
        return;
    if (const int index = IndexOf(members, key); index >= 0)
        place = {index, true};
}

} // namespace

void CRcMgr::GrpSettings(CESetObj& obj, CRcGrp& grp)
{
    ExchangeCur(obj, L"Set." + Key(grp.m_name), grp.m_sets, grp.m_place);
    for (CVantPtr* pos = grp.m_sets.GetHeadPos(); pos;) {
        CRcSet& set = *grp.m_sets.GetNext(pos);
        set.Prune();
        int at = set.m_place.on ? set.m_place.at : -1;
        if (at >= 0 || obj.IsLoading())
            obj.Item(L"Ctrl." + Key(grp.m_name) + L"." + Key(set.m_name), at);
        if (obj.IsLoading() && at >= 0 && at < set.GetCount())
            set.m_place = {at, true};
    }
}

void CRcMgr::Settings(CESetObj& obj)
{
    CVantWnd::Settings(obj);
    obj.Item(L"Fine", fine);
    ExchangeCur(obj, L"Group", m_grps, m_place);
    for (CVantPtr* pos = m_grps.GetHeadPos(); pos;)
        GrpSettings(obj, *m_grps.GetNext(pos));
    if (obj.IsLoading())
        Release();
}
