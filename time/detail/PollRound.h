#pragma once

#include "core/CStatBuf.h"
#include "core/VantApi.h"
#include "time/CTmVal.h"
#include "time/detail/TickReport.h"

#include <atomic>
#include <optional>
#include <vector>

class CTmFn;

namespace vant::detail
{

/** The work of the polling thread, without the thread: each Run() is one tick. */
class VANT_API PollRound
{
public:
    /** Takes the memory that the ticks need; there is no more of it later unless sources are added. */
    PollRound();

    /** Polls and fits all sources, and compares clock and time base.
     *  @param stop  ends the tick: once it is set, no source is touched after its PollTm() has returned
     *  @return whether the tick was done; its outcome is in Report() */
    bool Run(const std::atomic<bool>& stop);

    /** The outcome of the last tick; its owner may exchange it for another one, whose memory is used then. */
    TickReport& Report() noexcept { return m_report; }

private:
    bool PollSources(const std::atomic<bool>& stop);
    void CompareClocks();

    std::vector<CTmFn*> m_sources;
    std::vector<CTmVal> m_samples; // of the sources, in this tick
    CStatBuf m_err;                // clock less time base, ms
    CStatBuf m_advance;            // of the clock from tick to tick, ms
    std::optional<double> m_lastClock;
    TickReport m_report;
};

} // namespace vant::detail
