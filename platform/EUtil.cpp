#include "platform/EUtil.h"

#include "platform/Vant.h"
#include "platform/detail/NewHandler.h"
#include "platform/detail/SystemCalls.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <cwchar>
#include <iterator>
#include <new>

namespace
{

using vant::detail::Calls;

// Released before the last message is built, so that building and showing it finds some memory.
constexpr std::size_t reserveSize = 64 * 1024;
std::atomic<void*> reserve{std::malloc(reserveSize)};

constexpr LPCWSTR outOfMemory = L"has to exit due to insufficient memory\nCause:";

// The thread that ends the process; 0 until there is one.
std::atomic<DWORD> ending{0};

bool IsEndingHere() noexcept
{
    return ending == ::GetCurrentThreadId();
}

[[noreturn]] void Fatal(LPCWSTR reason, LPCWSTR cause) noexcept
{
    DWORD first = 0;
    // One last message is enough; another thread's end of the process ends this one too.
    if (!ending.compare_exchange_strong(first, ::GetCurrentThreadId()) && first != ::GetCurrentThreadId())
        ::Sleep(INFINITE);
    std::free(reserve.exchange(nullptr));
    try {
        const CString text = Vant::appTitle + L" " + reason + L" " + cause;
        Calls().showFatalError(text, Vant::appTitle);
    } catch (...) {
        Calls().showFatalError(reason, Vant::appTitle);
    }
    Calls().endProcess(1);
    std::abort();
}

[[noreturn]] void FatalAllocation(LPCWSTR format, unsigned size) noexcept
{
    wchar_t cause[64] = {};
    // %d is what the message has always said: sizes from 2 GB on show as negative numbers.
    _snwprintf(cause, std::size(cause) - 1, format, static_cast<int>(size));
    Fatal(outOfMemory, cause);
}

// Building the last message may fail in turn. Then it is shown without the cause, so the failure must be
// thrown.
void OnNewFailed()
{
    if (IsEndingHere())
        throw std::bad_alloc();
    Fatal(outOfMemory, L"New cannot allocate memory");
}

int __cdecl OnAfxAllocationFailed(std::size_t) noexcept
{
    constexpr int giveUp = 0;
    if (IsEndingHere())
        return giveUp;
    Fatal(outOfMemory, L"New cannot allocate memory");
}

} // namespace

void vant::detail::InstallNewHandlers() noexcept
{
    // Each module that has a run-time library of its own has an operator new of its own.
    std::set_new_handler(&OnNewFailed);
    AfxSetNewHandler(&OnAfxAllocationFailed);
}

void* EUtil::Malloc(unsigned size)
{
    void* const block = Calls().reallocate(nullptr, std::max(size, 1u));
    if (!block)
        FatalAllocation(L"Malloc cannot allocate %d bytes", size);
    return block;
}

void* EUtil::Realloc(void* p, unsigned size)
{
    // The run-time heap would release the block and answer null for a size of 0.
    void* const block = Calls().reallocate(p, std::max(size, 1u));
    if (!block)
        FatalAllocation(L"Realloc cannot allocate %d bytes", size);
    return block;
}

void EUtil::FatalMemErr(const CString& cause)
{
    Fatal(outOfMemory, cause);
}

void EUtil::FatalErr(const CString& cause)
{
    Fatal(L"has to exit due to an error\nCause:", cause);
}
