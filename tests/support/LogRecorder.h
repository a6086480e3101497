#pragma once

#include "platform/CECEntry.h"
#include "platform/detail/ILogSink.h"

#include <cstddef>
#include <list>
#include <mutex>
#include <vector>

namespace vant::test
{

/** A target keeps this many entries; a new one takes the place of the entry that was updated longest ago. */
inline constexpr std::size_t recorderCapacity = 256;

/** Keeps a target's last messages in memory. The text of an entry is the message as it was given. Entries are
 *  reused and not freed before Clear(), so that the pointer that one thread was given survives the messages
 * of others. */
class LogRecorder : public vant::detail::ILogSink
{
public:
    CECEntry* Update(unsigned long id, int& state, const CString& text) override;
    CECEntry* Add(unsigned long id, int level, const CString& text) override;

    /** A copy of what is kept, the latest last. */
    std::vector<CECEntry> Records() const;

    void Clear();

private:
    CECEntry* Append(unsigned long id);

    mutable std::mutex m_mutex;
    std::list<CECEntry> m_entries;
};

/** The recorder of a target; it gets the target's messages while a RecordLogs lives. */
LogRecorder& Recorder(vant::detail::LogTarget target) noexcept;

/** Sends the messages of all targets to their recorders instead of the consoles, as long as it lives. */
class RecordLogs
{
public:
    RecordLogs();
    ~RecordLogs();
    RecordLogs(const RecordLogs&) = delete;
    RecordLogs& operator=(const RecordLogs&) = delete;

private:
    std::vector<vant::detail::ILogSink*> m_before;
};

} // namespace vant::test
