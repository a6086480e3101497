#include "demo/session/CLogClock.h"

#include "demo/detail/Quantities.h"

namespace demo
{

CLogClock::CLogClock()
{
    name = L"Log";
}

void CLogClock::Show(double secondsOfDay)
{
    const CSingleLock guard(&m_lock, TRUE);
    m_isShown = !IsMissing(secondsOfDay);
    if (m_isShown)
        m_shown = secondsOfDay;
}

int CLogClock::PollTm(double& value)
{
    const CSingleLock guard(&m_lock, TRUE);
    value = m_shown;
    return m_isShown;
}

} // namespace demo
