#include "platform/detail/LogRecorder.h"

#include <algorithm>
#include <iterator>

namespace vant::detail
{

namespace
{

constexpr int repeatsWrap = 1000;

void Stamp(CECEntry& entry, int state, const CString& text)
{
    const CTime now = CTime::GetCurrentTime();
    entry.state = state;
    entry.time = now.GetTime();
    entry.displayTime = now.Format(L"%H:%M:%S");
    entry.text = text;
}

} // namespace

/** A blank entry at the end; when all places are taken, that of the first. */
CECEntry* LogRecorder::Append(unsigned long id)
{
    if (m_entries.size() < recorderCapacity)
        m_entries.emplace_back();
    else
        m_entries.splice(m_entries.end(), m_entries, m_entries.begin());
    m_entries.back() = {};
    m_entries.back().id = id;
    return &m_entries.back();
}

CECEntry* LogRecorder::Update(unsigned long id, int& state, const CString& text)
{
    const std::lock_guard lock(m_mutex);
    const auto found =
        std::find_if(m_entries.begin(), m_entries.end(), [id](const CECEntry& e) { return e.id == id; });
    CECEntry* entry = nullptr;
    if (found == m_entries.end()) {
        entry = Append(id);
    } else {
        entry = &*found;
        m_entries.splice(m_entries.end(), m_entries, found);
    }
    Stamp(*entry, state, text);
    entry->repeats = (entry->repeats + 1) % repeatsWrap;
    return entry;
}

CECEntry* LogRecorder::Add(unsigned long id, int level, const CString& text)
{
    const std::lock_guard lock(m_mutex);
    CECEntry* const entry = Append(id);
    Stamp(*entry, level, text);
    return entry;
}

std::vector<CECEntry> LogRecorder::Records() const
{
    const std::lock_guard lock(m_mutex);
    return {m_entries.begin(), m_entries.end()};
}

void LogRecorder::Clear()
{
    const std::lock_guard lock(m_mutex);
    m_entries.clear();
}

} // namespace vant::detail
