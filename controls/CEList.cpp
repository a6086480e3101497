#include "controls/CEList.h"

#include "controls/detail/EntryKey.h"

#include <algorithm>
#include <cwchar>
#include <utility>

using vant::detail::EntryKey;

IMPLEMENT_DYNAMIC(CEList, CECtrl)

CEList::CEList()
{
    ctrlType = typeList;
}

CEList::~CEList() = default;

int CEList::Create(unsigned long wndStyle, const RECT& r, CWnd* parent, unsigned int childId)
{
    // A window that is destroyed under the mouse need not be told that it has lost it.
    ReleaseMouse();
    if (!CECtrl::Create(wndStyle, r, parent, childId))
        return 0;
    Fill();
    // Before the window's size was known.
    ScrollTo(0);
    Show(m_sel);
    return 1;
}

unsigned long CEList::WndStyle() const
{
    return CECtrl::WndStyle() | WS_TABSTOP | keepFocus;
}

void CEList::Update(int arg)
{
    SelVal(*this);
    CECtrl::Update(arg);
}

void CEList::Retreive()
{
    StoreIn(*this, m_sel);
}

CELEnt* CEList::Add(const CString& entryText)
{
    return Append(std::make_unique<CELEnt>(entryText));
}

CELEnt* CEList::Add(const CString& entryText, void* item)
{
    return Append(std::make_unique<CELEnt>(entryText, item));
}

CELEnt* CEList::Add(const CString& entryText, double num)
{
    return Append(std::make_unique<CELEnt>(entryText, num));
}

CELEnt* CEList::Add(const CStrVal& pair)
{
    return Append(std::make_unique<CELEnt>(pair));
}

CELEnt* CEList::Append(std::unique_ptr<CELEnt> ent)
{
    ent->m_index = GetCount();
    m_ents.push_back(std::move(ent));
    Changed();
    return m_ents.back().get();
}

void CEList::Reserve(int count)
{
    m_ents.reserve(static_cast<std::size_t>(std::max(count, 0)));
}

void CEList::Remove(CELEnt* ent)
{
    if (!IsOwn(ent))
        return;
    OnRemove(ent);
    const auto at = m_ents.begin() + ent->m_index;
    for (auto next = at + 1; next != m_ents.end(); ++next)
        --(*next)->m_index;
    m_ents.erase(at);
    Changed();
}

void CEList::Clear()
{
    OnRemove(nullptr);
    m_ents.clear();
    m_typed.Reset();
    Changed();
}

void CEList::OnRemove(const CELEnt* ent)
{
    for (CELEnt** const kept : {&m_sel, &m_hot, &m_pressed}) {
        if (!ent || *kept == ent)
            *kept = nullptr;
    }
}

/** The entries are no longer the same. */
void CEList::Changed()
{
    m_lookedFor.reset();
    m_scroll.SetRows(GetCount());
    // Not once for every one of many entries.
    if (m_hWnd && !m_stale) {
        m_stale = true;
        Invalidate(FALSE);
    }
}

int CEList::GetCount() const noexcept
{
    return static_cast<int>(m_ents.size());
}

CELEnt* CEList::GetAt(int index) const noexcept
{
    return index >= 0 && index < GetCount() ? m_ents[static_cast<std::size_t>(index)].get() : nullptr;
}

bool CEList::IsOwn(const CELEnt* ent) const noexcept
{
    return ent && GetAt(ent->m_index) == ent;
}

CELEnt* CEList::Find(const CString& entryText) const
{
    const auto found =
        std::find_if(m_ents.begin(), m_ents.end(), [&](const auto& ent) { return ent->text == entryText; });
    return found != m_ents.end() ? found->get() : nullptr;
}

CELEnt* CEList::FindItem(const void* item) const
{
    const auto found = std::find_if(m_ents.begin(), m_ents.end(), [item](const auto& ent) {
        return ent->kind == CELEnt::kindItem && ent->item == item;
    });
    return found != m_ents.end() ? found->get() : nullptr;
}

CELEnt* CEList::FindNum(double num) const
{
    const auto found = std::find_if(m_ents.begin(), m_ents.end(), [num](const auto& ent) {
        return ent->kind == CELEnt::kindNum && ent->value == num;
    });
    return found != m_ents.end() ? found->get() : nullptr;
}

CELEnt* CEList::FindPrefix(const CString& prefix, int from) const
{
    const int length = prefix.GetLength();
    const auto begins = [&](const auto& ent) {
        return ent->text.GetLength() >= length &&
               ::CompareStringOrdinal(ent->text, length, prefix, length, TRUE) == CSTR_EQUAL;
    };
    const auto middle = m_ents.begin() + std::clamp(from, 0, GetCount());
    auto found = std::find_if(middle, m_ents.end(), begins);
    if (found != m_ents.end())
        return found->get();
    found = std::find_if(m_ents.begin(), middle, begins);
    return found != middle ? found->get() : nullptr;
}

CELEnt* CEList::FindVal(const CEVal& val) const
{
    if (!val.pVal)
        return nullptr;
    const EntryKey key(val);
    const auto found =
        std::find_if(m_ents.begin(), m_ents.end(), [&key](const auto& ent) { return key.Fits(*ent); });
    return found != m_ents.end() ? found->get() : nullptr;
}

void CEList::Sel(CELEnt* ent)
{
    CELEnt* const now = IsOwn(ent) ? ent : nullptr;
    m_lookedFor.reset();
    if (now == m_sel)
        return;
    InvalidateEnt(m_sel);
    m_sel = now;
    InvalidateEnt(m_sel);
    Show(m_sel);
}

void CEList::SelVal(const CEVal& val)
{
    if (!val.pVal)
        return;
    const EntryKey key(val);
    if (m_sel ? key.Fits(*m_sel) : m_lookedFor && *m_lookedFor == key)
        return;
    Sel(FindVal(val));
    if (!m_sel)
        m_lookedFor = std::make_unique<EntryKey>(key);
}

void CEList::StoreIn(CEVal& val, const CELEnt* ent)
{
    if (ent && val.pVal)
        vant::detail::StoreEntry(val, *ent);
}

void CEList::SetFill(CObject* target, FillFn fn, void* data)
{
    m_fillTarget = target;
    m_fill = fn;
    m_fillData = data;
}

void CEList::SetDraw(CObject* target, DrawFn fn)
{
    m_drawTarget = target;
    m_draw = fn;
    if (m_hWnd)
        Invalidate(FALSE);
}

void CEList::FillFor(const CEVal& val)
{
    // A callback that asks for what it is doing already.
    if (m_filling)
        return;
    if (!m_fillTarget || !m_fill)
        return SelVal(val);
    m_filling = true;
    Clear();
    CELEnt* const chosen = (m_fillTarget->*m_fill)(*this, m_fillData);
    m_filling = false;
    if (chosen)
        Sel(chosen);
    else
        SelVal(val);
}
