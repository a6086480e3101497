#pragma once

#include "vafx/CTimeSpan.h"

// A macro of the system's headers, which would rename the member.
#undef GetCurrentTime

/** A moment: seconds since 1 January 1970 00:00 UTC, up to the year 3000. Parts and texts are in local time
 *  unless they say otherwise. */
class VAFX_API CTime
{
public:
    static CTime WINAPI GetCurrentTime() noexcept;

    CTime() noexcept = default;
    CTime(__time64_t time) noexcept
        : m_time(time)
    {
    }
    /** Local time. @param nDST 0: standard time, above 0: summer time, below 0: whichever the system says
     * holds. A moment outside the range throws CInvalidArgException. */
    CTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec, int nDST = -1);
    /** Local time; the milliseconds are left out. */
    CTime(const SYSTEMTIME& st, int nDST = -1);
    /** UTC, as the file system counts. The time 0 gives 0. */
    CTime(const FILETIME& ft, int nDST = -1);

    __time64_t GetTime() const noexcept { return m_time; }
    int GetYear() const noexcept;
    int GetMonth() const noexcept;     ///< 1 to 12.
    int GetDay() const noexcept;       ///< 1 to 31.
    int GetHour() const noexcept;      ///< 0 to 23.
    int GetMinute() const noexcept;    ///< 0 to 59.
    int GetSecond() const noexcept;    ///< 0 to 59.
    int GetDayOfWeek() const noexcept; ///< 1 (Sunday) to 7.
    /** Fills @p ptm in. @return @p ptm, or null for a moment outside the range. */
    struct tm* GetGmtTm(struct tm* ptm) const;
    /** @overload */
    struct tm* GetLocalTm(struct tm* ptm) const;
    bool GetAsSystemTime(SYSTEMTIME& st) const noexcept;

    /** strftime's codes, with # for their other forms: "%#c" is the long date and time. @return The text;
     * empty for a format that holds an unknown code. */
    CStringW Format(LPCWSTR pszFormat) const;
    /** @overload The format is a string resource. */
    CStringW Format(UINT nFormatID) const;
    /** As Format, in UTC. */
    CStringW FormatGmt(LPCWSTR pszFormat) const;

    CTimeSpan operator-(CTime time) const noexcept { return m_time - time.m_time; }
    CTime operator-(CTimeSpan span) const noexcept { return m_time - span.GetTimeSpan(); }
    CTime operator+(CTimeSpan span) const noexcept { return m_time + span.GetTimeSpan(); }
    CTime& operator+=(CTimeSpan span) noexcept
    {
        m_time += span.GetTimeSpan();
        return *this;
    }
    CTime& operator-=(CTimeSpan span) noexcept
    {
        m_time -= span.GetTimeSpan();
        return *this;
    }
    bool operator==(CTime time) const noexcept { return m_time == time.m_time; }
    bool operator!=(CTime time) const noexcept { return m_time != time.m_time; }
    bool operator<(CTime time) const noexcept { return m_time < time.m_time; }
    bool operator>(CTime time) const noexcept { return m_time > time.m_time; }
    bool operator<=(CTime time) const noexcept { return m_time <= time.m_time; }
    bool operator>=(CTime time) const noexcept { return m_time >= time.m_time; }

private:
    __time64_t m_time = 0;
};
