#pragma once

#include "core/VantApi.h"

#include <afx.h>

#include <type_traits>

class CTm80;

/** Loads an object that was stored as a pointer; the caller owns it. */
VANT_API CArchive& operator>>(CArchive& ar, CTm80*& object);

/** A moment as the time base counts it: seconds since 1 January 1980 00:00 UTC, as a double. It converts to
 *  and from the number, and calculates and compares like it; the difference of two moments is a number.
 *  Texts and parts are in local time. */
class VANT_API CTm80 : public CObject
{
    DECLARE_DYNCREATE(CTm80) // and the operator above: serialisable

public:
    /** The beginning of 1980. */
    CTm80() noexcept = default;
    /** @param seconds  since 1 January 1980 00:00 UTC */
    CTm80(double seconds) noexcept
        : m_seconds(seconds)
    {
    }
    /** The same moment. */
    CTm80(const CTm80& other) noexcept
        : CObject()
        , m_seconds(other.m_seconds)
    {
    }
    ~CTm80() override;
    /** Becomes another moment, or so many seconds since 1980. */
    CTm80& operator=(const CTm80& other) noexcept { return *this = other.m_seconds; }
    CTm80& operator=(double seconds) noexcept
    {
        m_seconds = seconds;
        return *this;
    }

    /** @param ms  milliseconds to add; may have a fraction, and be negative or beyond a second */
    void SetTime(CTime time, double ms = 0.0) noexcept;
    /** Local time; `ms` as above. @return 1, or 0 for a date that the calendar time cannot hold, the value
     * then staying as it is */
    int SetTime(int year, int month, int day, int hour, int minute, int second, double ms = 0.0) noexcept;
    /** The second that the moment lies in. A value that is no time, or far beyond all calendars, gives
     * CTime(-1), whose texts are empty. */
    CTime GetTime() const noexcept;
    /** Local time as CTime::Format() writes it. */
    CString Format(LPCWSTR pattern) const;

    /** Stores the seconds (64 bits) in an archive or loads them; throws what the archive throws. */
    void Serialize(CArchive& ar) override;

    /** Seconds since 1980. */
    operator double() const noexcept { return m_seconds; }

    // For numbers of any type: the conversions from and to double would leave it open which + an int means.
    /** @name Reckoning
     *  Each counts in seconds; moments compare by which is the earlier one. @{ */
    template <class T>
    requires std::is_arithmetic_v<T> CTm80 operator+(T seconds) const noexcept
    {
        return m_seconds + static_cast<double>(seconds);
    }
    template <class T>
    requires std::is_arithmetic_v<T> CTm80 operator-(T seconds) const noexcept
    {
        return m_seconds - static_cast<double>(seconds);
    }
    double operator-(const CTm80& other) const noexcept { return m_seconds - other.m_seconds; }
    CTm80& operator+=(double seconds) noexcept { return *this = m_seconds + seconds; }
    CTm80& operator-=(double seconds) noexcept { return *this = m_seconds - seconds; }
    template <class T>
    requires std::is_arithmetic_v<T>
    bool operator<(T seconds) const noexcept { return m_seconds < static_cast<double>(seconds); }
    template <class T>
    requires std::is_arithmetic_v<T>
    bool operator>(T seconds) const noexcept { return m_seconds > static_cast<double>(seconds); }
    bool operator<(const CTm80& other) const noexcept { return m_seconds < other.m_seconds; }
    bool operator>(const CTm80& other) const noexcept { return m_seconds > other.m_seconds; }
    /** @} */

private:
    double m_seconds = 0.0;
};
