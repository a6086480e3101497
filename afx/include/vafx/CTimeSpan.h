#pragma once

#include "vafx/CStringW.h"

#include <ctime>

/** The difference between two times, in whole seconds, of either sign. */
class VAFX_API CTimeSpan
{
public:
    CTimeSpan() noexcept = default;
    CTimeSpan(__time64_t time) noexcept
        : m_timeSpan(time)
    {
    }
    CTimeSpan(LONG lDays, int nHours, int nMins, int nSecs) noexcept
        : m_timeSpan(((lDays * 24LL + nHours) * 60 + nMins) * 60 + nSecs)
    {
    }

    LONGLONG GetDays() const noexcept { return m_timeSpan / 86400; }
    LONGLONG GetTotalHours() const noexcept { return m_timeSpan / 3600; }
    LONG GetHours() const noexcept { return static_cast<LONG>(GetTotalHours() - GetDays() * 24); }
    LONGLONG GetTotalMinutes() const noexcept { return m_timeSpan / 60; }
    LONG GetMinutes() const noexcept { return static_cast<LONG>(GetTotalMinutes() - GetTotalHours() * 60); }
    LONGLONG GetTotalSeconds() const noexcept { return m_timeSpan; }
    LONG GetSeconds() const noexcept { return static_cast<LONG>(m_timeSpan - GetTotalMinutes() * 60); }
    __time64_t GetTimeSpan() const noexcept { return m_timeSpan; }

    CTimeSpan operator-(CTimeSpan span) const noexcept { return m_timeSpan - span.m_timeSpan; }
    CTimeSpan operator+(CTimeSpan span) const noexcept { return m_timeSpan + span.m_timeSpan; }
    CTimeSpan& operator+=(CTimeSpan span) noexcept
    {
        m_timeSpan += span.m_timeSpan;
        return *this;
    }
    CTimeSpan& operator-=(CTimeSpan span) noexcept
    {
        m_timeSpan -= span.m_timeSpan;
        return *this;
    }
    bool operator==(CTimeSpan span) const noexcept { return m_timeSpan == span.m_timeSpan; }
    bool operator!=(CTimeSpan span) const noexcept { return m_timeSpan != span.m_timeSpan; }
    bool operator<(CTimeSpan span) const noexcept { return m_timeSpan < span.m_timeSpan; }
    bool operator>(CTimeSpan span) const noexcept { return m_timeSpan > span.m_timeSpan; }
    bool operator<=(CTimeSpan span) const noexcept { return m_timeSpan <= span.m_timeSpan; }
    bool operator>=(CTimeSpan span) const noexcept { return m_timeSpan >= span.m_timeSpan; }

    /** %%D days, %%H hours of the day, %%M minutes, %%S seconds (two digits each but the days), %%%% a
     * percent sign. @return The text; empty when the format holds anything else after a percent sign. */
    CStringW Format(LPCWSTR pszFormat) const;

private:
    __time64_t m_timeSpan = 0;
};
