#include "time/detail/StatusWriter.h"

#include "platform/detail/Module.h"

#include <utility>

namespace vant::detail
{

std::shared_ptr<StatusWriter> StatusWriter::Make()
{
    const std::shared_ptr<StatusWriter> writer(new StatusWriter);
    TP_CALLBACK_ENVIRON environment;
    ::InitializeThreadpoolEnvironment(&environment);
    // The library stays as long as its code runs in the pool, even if the application unloads it.
    ::SetThreadpoolCallbackLibrary(&environment, Module());
    writer->m_idle = ::CreateEventW(nullptr, TRUE, TRUE, nullptr);
    writer->m_work = ::CreateThreadpoolWork(&Write, writer.get(), &environment);
    return writer->m_idle && writer->m_work ? writer : nullptr;
}

StatusWriter::~StatusWriter()
{
    if (m_work)
        ::CloseThreadpoolWork(m_work);
    if (m_idle)
        ::CloseHandle(m_idle);
}

bool StatusWriter::Submit(TickReport& report)
{
    if (m_isBusy.exchange(true, std::memory_order_acquire))
        return false;
    ::ResetEvent(m_idle);
    std::swap(m_report, report);
    m_self = shared_from_this();
    ::SubmitThreadpoolWork(m_work);
    return true;
}

bool StatusWriter::WaitIdle(DWORD ms) const
{
    return ::WaitForSingleObject(m_idle, ms) == WAIT_OBJECT_0;
}

void CALLBACK StatusWriter::Write(PTP_CALLBACK_INSTANCE, void* writer, PTP_WORK)
{
    // Taken out before others may submit, and let go of last.
    const std::shared_ptr<StatusWriter> self = std::move(static_cast<StatusWriter*>(writer)->m_self);
    WriteStatus(self->m_report);
    ::SetEvent(self->m_idle);
    self->m_isBusy.store(false, std::memory_order_release);
}

} // namespace vant::detail
