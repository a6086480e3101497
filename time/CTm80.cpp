#include "time/CTm80.h"

#include "time/TmSync.h"

#include <cmath>

IMPLEMENT_SERIAL(CTm80, CObject, 1)

CTm80::~CTm80() = default;

void CTm80::SetTime(CTime time, double ms) noexcept
{
    m_seconds = static_cast<double>(time.GetTime() - TmSync::base80) + ms / 1000.0;
}

int CTm80::SetTime(int year, int month, int day, int hour, int minute, int second, double ms) noexcept
{
    try {
        SetTime(CTime(year, month, day, hour, minute, second), ms);
        return 1;
    } catch (CException* e) {
        e->Delete();
        return 0;
    }
}

CTime CTm80::GetTime() const noexcept
{
    constexpr double farOff = 1e15; // seconds; what fits the calendar is far less
    if (!(std::abs(m_seconds) < farOff))
        return CTime(__time64_t{-1});
    return CTime(static_cast<__time64_t>(std::floor(m_seconds)) + TmSync::base80);
}

CString CTm80::Format(LPCWSTR pattern) const
{
    return GetTime().Format(pattern);
}

void CTm80::Serialize(CArchive& ar)
{
    CObject::Serialize(ar);
    if (ar.IsStoring())
        ar << m_seconds;
    else
        ar >> m_seconds;
}
