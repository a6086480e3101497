#pragma once

#include "time/detail/StatusWriter.h"

#include <atomic>
#include <memory>

namespace vant::detail
{

/** The polling thread of TmSync. What it works with belongs to it and goes when it ends, even if nobody waits
 *  for that any more. */
class PollThread
{
public:
    /** Starts the thread. It has handles of its own for both events. @return null if the system refuses */
    static std::shared_ptr<PollThread> Start(HANDLE exit, HANDLE exited);
    PollThread() = default;
    ~PollThread();
    PollThread(const PollThread&) = delete;
    PollThread& operator=(const PollThread&) = delete;

    /** Ends the thread and waits until it has ended and its status lines are written, `ms` milliseconds at
     *  most. @return whether both are; if not, the library stays loaded from now on, for their code */
    bool Stop(HANDLE exit, HANDLE exited, DWORD ms);

private:
    static UINT Main(LPVOID param);
    void Loop();

    std::shared_ptr<StatusWriter> m_writer;
    std::atomic<bool> m_stop = false;
    HANDLE m_exit = nullptr;
    HANDLE m_exited = nullptr;
};

} // namespace vant::detail
