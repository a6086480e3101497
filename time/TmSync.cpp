#include "time/TmSync.h"

#include "platform/Vant.h"
#include "time/detail/ClockCalls.h"
#include "time/detail/PollThread.h"
#include "time/detail/Sources.h"

#include <memory>
#include <mutex>

using vant::detail::Clock;
using vant::detail::PollThread;

long long TmSync::scale = 0;
long long TmSync::start = 0;
double TmSync::offset = 0.0;
unsigned TmSync::interval = 1000;
HANDLE TmSync::hExit = nullptr;
HANDLE TmSync::hExited = nullptr;
CLstPtr<CTmFn*> TmSync::tmFns;
CTmFnClock TmSync::ltf;
double TmSync::err = 0.0;
double TmSync::tm80 = 0.0;
constexpr long long TmSync::base80;

namespace
{

constexpr unsigned long threadAlarm = 4010;
constexpr DWORD exitTime = 1000; // milliseconds

std::mutex sources; // guards TmSync::tmFns
std::shared_ptr<PollThread> thread;

long long Count() noexcept
{
    LARGE_INTEGER count{};
    Clock().counter(&count);
    return count.QuadPart;
}

void CloseEvents() noexcept
{
    for (HANDLE* const event : {&TmSync::hExit, &TmSync::hExited}) {
        if (*event)
            ::CloseHandle(*event);
        *event = nullptr;
    }
}

void ForgetSources()
{
    const std::lock_guard lock(sources);
    TmSync::tmFns.RemoveAll();
}

} // namespace

namespace vant::detail
{

void CopySources(std::vector<CTmFn*>& copy)
{
    const std::lock_guard lock(sources);
    copy.clear();
    for (CVantPtr* pos = TmSync::tmFns.GetHeadPos(); pos;)
        copy.push_back(TmSync::tmFns.GetNext(pos));
}

} // namespace vant::detail

int TmSync::Init()
{
    if (thread)
        return 1;
    LARGE_INTEGER frequency{};
    if (!Clock().frequency(&frequency) || frequency.QuadPart <= 0) {
        scale = 0;
        Vant::MsgBox(Vant::msgModal | Vant::msgStopIcon,
                     L"The system does not support high-resolution timestamps");
        return 0;
    }
    scale = frequency.QuadPart;
    start = Count();
    offset = 0.0;
    const double clock = GetClock();
    offset = clock - GetPc() - static_cast<double>(base80);

    ltf.Reset();
    {
        // At the head: a source may have been added too early.
        const std::lock_guard lock(sources);
        tmFns.AddHead(&ltf);
    }
    hExit = ::CreateEventW(nullptr, FALSE, FALSE, nullptr);
    hExited = ::CreateEventW(nullptr, FALSE, FALSE, nullptr);
    if (hExit && hExited)
        thread = PollThread::Start(hExit, hExited);
    if (thread)
        return 1;
    Vant::Alarm(threadAlarm, 1, L"Time synchronisation: the thread could not be started");
    CloseEvents();
    ForgetSources();
    return 0;
}

int TmSync::Exit()
{
    if (!thread)
        return 1;
    const bool hasEnded = thread->Stop(hExit, hExited, exitTime);
    thread.reset();
    CloseEvents();
    ForgetSources();
    return hasEnded ? 1 : 0;
}

void TmSync::AddTmFn(CTmFn* source)
{
    if (!source)
        return;
    const std::lock_guard lock(sources);
    tmFns.AddTail(source);
}

double TmSync::GetPc() noexcept
{
    return static_cast<double>(Count() - start) / static_cast<double>(scale);
}

double TmSync::GetClock() noexcept
{
    constexpr unsigned long long unitsPerMs = 10'000; // the system counts 100 ns
    constexpr unsigned long long unitsPerSecond = 10'000'000;
    constexpr long long secondsTo1970 = 11'644'473'600; // and from 1601
    FILETIME time{};
    Clock().systemTime(&time);
    const unsigned long long units =
        static_cast<unsigned long long>(time.dwHighDateTime) << 32 | time.dwLowDateTime;
    const auto seconds = static_cast<long long>(units / unitsPerSecond) - secondsTo1970;
    const auto ms = static_cast<int>(units % unitsPerSecond / unitsPerMs);
    return static_cast<double>(seconds) + ms / 1000.0;
}
