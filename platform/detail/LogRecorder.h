#pragma once

#include "platform/CECEntry.h"
#include "platform/detail/ILogSink.h"

#include <cstddef>
#include <list>
#include <mutex>
#include <vector>

namespace vant::detail
{

/** A target keeps this many entries; a new one takes the place of the entry that was updated longest ago. */
inline constexpr std::size_t recorderCapacity = 256;

/** Keeps a target's last messages in memory while no window shows them. The text of an entry is the message
 *  as it was given. Entries are reused and not freed before Clear(), so that the pointer that one thread was
 *  given survives the messages of others. */
class VANT_API LogRecorder : public ILogSink
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

/** The recorder of a target. */
VANT_API LogRecorder& Recorder(LogTarget target) noexcept;

} // namespace vant::detail
