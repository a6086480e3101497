#include "time/CTmFnClock.h"

#include "time/TmSync.h"

#include <time.h>

CTmFnClock::CTmFnClock()
{
    name = L"PC Clock";
    // The status lines show local times.
    _tzset();
}

int CTmFnClock::PollTm(double& value)
{
    value = TmSync::GetClock();
    return 1;
}
