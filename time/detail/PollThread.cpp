#include "time/detail/PollThread.h"

#include "time/TmSync.h"
#include "time/detail/PollRound.h"

#include <algorithm>

namespace vant::detail
{

namespace
{

HANDLE Duplicate(HANDLE handle)
{
    const HANDLE process = ::GetCurrentProcess();
    HANDLE copy = nullptr;
    ::DuplicateHandle(process, handle, process, &copy, 0, FALSE, DUPLICATE_SAME_ACCESS);
    return copy;
}

void StayLoaded()
{
    static const char place = 0;
    HMODULE module = nullptr;
    ::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_PIN,
                         reinterpret_cast<LPCWSTR>(&place), &module);
}

} // namespace

std::shared_ptr<PollThread> PollThread::Start(HANDLE exit, HANDLE exited)
{
    auto thread = std::make_shared<PollThread>();
    thread->m_exit = Duplicate(exit);
    thread->m_exited = Duplicate(exited);
    thread->m_writer = StatusWriter::Make();
    if (!thread->m_exit || !thread->m_exited || !thread->m_writer)
        return nullptr;
    auto owned = std::make_unique<std::shared_ptr<PollThread>>(thread);
    if (!::AfxBeginThread(&Main, owned.get(), THREAD_PRIORITY_TIME_CRITICAL))
        return nullptr;
    owned.release();
    return thread;
}

PollThread::~PollThread()
{
    for (const HANDLE event : {m_exit, m_exited}) {
        if (event)
            ::CloseHandle(event);
    }
}

bool PollThread::Stop(HANDLE exit, HANDLE exited, DWORD ms)
{
    const ULONGLONG begin = ::GetTickCount64();
    m_stop = true;
    ::SetEvent(exit);
    bool hasEnded = ::WaitForSingleObject(exited, ms) == WAIT_OBJECT_0;
    const auto spent = static_cast<DWORD>(std::min<ULONGLONG>(::GetTickCount64() - begin, ms));
    hasEnded = hasEnded && m_writer->WaitIdle(ms - spent);
    if (!hasEnded)
        StayLoaded();
    return hasEnded;
}

UINT PollThread::Main(LPVOID param)
{
    const std::unique_ptr<std::shared_ptr<PollThread>> self(static_cast<std::shared_ptr<PollThread>*>(param));
    (*self)->Loop();
    return 0;
}

void PollThread::Loop()
{
    PollRound round;
    while (::WaitForSingleObject(m_exit, TmSync::interval) == WAIT_TIMEOUT) {
        if (!round.Run(m_stop))
            break;
        m_writer->Submit(round.Report());
    }
    ::SetEvent(m_exited);
}

} // namespace vant::detail
