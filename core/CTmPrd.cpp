#include "core/CTmPrd.h"

#include <windows.h>

namespace
{

// Neither call can fail on any Windows that this library runs on.
long long Now() noexcept
{
    LARGE_INTEGER count{};
    QueryPerformanceCounter(&count);
    return count.QuadPart;
}

double MsPerCount() noexcept
{
    LARGE_INTEGER frequency{};
    QueryPerformanceFrequency(&frequency);
    return 1000.0 / static_cast<double>(frequency.QuadPart);
}

} // namespace

CTmPrd::CTmPrd() noexcept
    : msPerCount(MsPerCount())
    , stop(Now())
    , start(stop)
{
}

void CTmPrd::Start() noexcept
{
    start = Now();
}

void CTmPrd::Stop() noexcept
{
    stop = Now();
}

void CTmPrd::SetTime() noexcept
{
    start = Now();
    stop = start;
}

void CTmPrd::Tick(unsigned) noexcept
{
    start = stop;
    stop = Now();
    if (start == 0) {
        start = stop;
    }
}
