#include "demo/CLogClock.h"

#include "demo/detail/Quantities.h"

namespace demo
{

CLogClock::CLogClock()
    : m_shown(missing)
{
    name = L"Log";
}

void CLogClock::Show(double secondsOfDay)
{
    const CSingleLock guard(&m_lock, TRUE);
    m_shown = secondsOfDay;
}

int CLogClock::PollTm(double& value)
{
    const CSingleLock guard(&m_lock, TRUE);
    if (IsMissing(m_shown))
        return 0;
    value = m_shown;
    return 1;
}

} // namespace demo
