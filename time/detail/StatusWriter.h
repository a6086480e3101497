#pragma once

#include "time/detail/TickReport.h"

#include <atomic>
#include <memory>

namespace vant::detail
{

/** Has status lines written by a thread of the system's pool: a line may end in a file on a slow disk, or in
 *  an alarm that windows receive, and the thread that polls clocks must wait for neither. */
class StatusWriter : public std::enable_shared_from_this<StatusWriter>
{
public:
    /** @return null if the system refuses */
    static std::shared_ptr<StatusWriter> Make();
    ~StatusWriter();
    StatusWriter(const StatusWriter&) = delete;
    StatusWriter& operator=(const StatusWriter&) = delete;

    /** Takes a report over, leaving another one's memory in its place, and has it written. Never waits.
     *  @return false, with nothing taken, while an earlier one is being written */
    bool Submit(TickReport& report);

    /** Waits until nothing is being written. @return whether that was within `ms` milliseconds */
    bool WaitIdle(DWORD ms) const;

private:
    StatusWriter() = default;
    static void CALLBACK Write(PTP_CALLBACK_INSTANCE instance, void* writer, PTP_WORK work);

    TickReport m_report; // the pool's while m_isBusy, else the submitter's
    std::atomic<bool> m_isBusy = false;
    std::shared_ptr<StatusWriter> m_self; // keeps the object while it writes, whoever lets go of it
    HANDLE m_idle = nullptr;              // a manual-reset event
    PTP_WORK m_work = nullptr;
};

} // namespace vant::detail
