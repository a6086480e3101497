#include "support/LogRecorder.h"

#include <algorithm>
#include <iterator>

namespace vant::test
{

namespace
{

using vant::detail::LogTarget;

constexpr int repeatsWrap = 1000;
constexpr LogTarget allTargets[] = {LogTarget::console, LogTarget::comms, LogTarget::status,
                                    LogTarget::alarm};

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

LogRecorder& Recorder(LogTarget target) noexcept
{
    static LogRecorder recorders[std::size(allTargets)];
    return recorders[static_cast<std::size_t>(target)];
}

RecordLogs::RecordLogs()
{
    for (const LogTarget target : allTargets) {
        Recorder(target).Clear();
        m_before.push_back(SetLogSink(target, &Recorder(target)));
    }
}

RecordLogs::~RecordLogs()
{
    for (std::size_t i = 0; i < std::size(allTargets); ++i)
        SetLogSink(allTargets[i], m_before[i]);
}

} // namespace vant::test
