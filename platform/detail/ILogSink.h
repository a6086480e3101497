#pragma once

#include "core/VantApi.h"

#include <afx.h>

class CECEntry;

namespace vant::detail
{

/** Where a logger's messages go. Called from any thread: an implementation takes its own lock. */
class ILogSink
{
public:
    virtual ~ILogSink() = default;

    /** Sets the entry with this id, or makes one. The sink may change `state` for the caller. Returns the
     *  entry, which stays the sink's, or null if it keeps none. */
    virtual CECEntry* Update(unsigned long id, int& state, const CString& text) = 0;

    /** Adds an entry after all others. Returns it as Update() does. */
    virtual CECEntry* Add(unsigned long id, int level, const CString& text) = 0;
};

/** The loggers of Vant, each with a sink of its own. */
enum class LogTarget { console, comms, status, alarm };

/** Sends the target's messages to `sink`, which must outlive its use; null drops them. Each console is its
 *  target's sink as long as it exists. @return the sink before */
VANT_API ILogSink* SetLogSink(LogTarget target, ILogSink* sink) noexcept;

} // namespace vant::detail
