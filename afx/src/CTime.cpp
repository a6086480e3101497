#include <afx.h>

#include <cwchar>
#include <iterator>
#include <string>
#include <string_view>

namespace
{

constexpr int tmYearBase = 1900;

// What strftime documents. Other codes must not reach the C library, which treats them as errors of the
// program.
constexpr std::wstring_view knownCodes = L"aAbBcdHIjmMpSUwWxXyYzZ%";

/** Only single codes go to the C library: it has no certain way to tell that a buffer is too small. */
CStringW FormatTm(LPCWSTR pszFormat, const std::tm* parts)
{
    if (pszFormat == nullptr || parts == nullptr)
        return {};
    CStringW text;
    for (LPCWSTR p = pszFormat; *p != L'\0';) {
        const std::size_t literal = std::wcscspn(p, L"%");
        text.Append(p, static_cast<int>(literal));
        p += literal;
        if (*p == L'\0')
            break;
        const LPCWSTR code = p;
        p += p[1] == L'#' ? 2 : 1;
        if (*p == L'\0' || knownCodes.find(*p) == std::wstring_view::npos)
            return {};
        ++p;
        const std::wstring single(code, p);
        wchar_t field[256];
        const std::size_t length = std::wcsftime(field, std::size(field), single.c_str(), parts);
        text.Append(field, static_cast<int>(length));
    }
    return text;
}

} // namespace

CTime CTime::GetCurrentTime() noexcept
{
    return CTime(_time64(nullptr));
}

CTime::CTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec, int nDST)
{
    std::tm parts = {};
    parts.tm_year = nYear - tmYearBase;
    parts.tm_mon = nMonth - 1;
    parts.tm_mday = nDay;
    parts.tm_hour = nHour;
    parts.tm_min = nMin;
    parts.tm_sec = nSec;
    parts.tm_isdst = nDST;
    m_time = _mktime64(&parts);
    if (m_time == -1)
        AfxThrowInvalidArgException();
}

CTime::CTime(const SYSTEMTIME& st, int nDST)
    : CTime(st.wYear, st.wMonth, st.wDay, st.wHour, st.wMinute, st.wSecond, nDST)
{
}

CTime::CTime(const FILETIME& ft, int)
{
    constexpr LONGLONG unitsPerSecond = 10'000'000;
    constexpr LONGLONG secondsTo1970 = 11'644'473'600; // the file system counts from 1601
    const LONGLONG units =
        static_cast<LONGLONG>((static_cast<ULONGLONG>(ft.dwHighDateTime) << 32) | ft.dwLowDateTime);
    m_time = units != 0 ? units / unitsPerSecond - secondsTo1970 : 0;
}

std::tm* CTime::GetGmtTm(std::tm* ptm) const
{
    return ptm != nullptr && _gmtime64_s(ptm, &m_time) == 0 ? ptm : nullptr;
}

std::tm* CTime::GetLocalTm(std::tm* ptm) const
{
    return ptm != nullptr && _localtime64_s(ptm, &m_time) == 0 ? ptm : nullptr;
}

int CTime::GetYear() const noexcept
{
    std::tm parts = {};
    return GetLocalTm(&parts) != nullptr ? parts.tm_year + tmYearBase : 0;
}

int CTime::GetMonth() const noexcept
{
    std::tm parts = {};
    return GetLocalTm(&parts) != nullptr ? parts.tm_mon + 1 : 0;
}

int CTime::GetDay() const noexcept
{
    std::tm parts = {};
    return GetLocalTm(&parts) != nullptr ? parts.tm_mday : 0;
}

int CTime::GetHour() const noexcept
{
    std::tm parts = {};
    return GetLocalTm(&parts) != nullptr ? parts.tm_hour : -1;
}

int CTime::GetMinute() const noexcept
{
    std::tm parts = {};
    return GetLocalTm(&parts) != nullptr ? parts.tm_min : -1;
}

int CTime::GetSecond() const noexcept
{
    std::tm parts = {};
    return GetLocalTm(&parts) != nullptr ? parts.tm_sec : -1;
}

int CTime::GetDayOfWeek() const noexcept
{
    std::tm parts = {};
    return GetLocalTm(&parts) != nullptr ? parts.tm_wday + 1 : 0;
}

bool CTime::GetAsSystemTime(SYSTEMTIME& st) const noexcept
{
    std::tm parts = {};
    if (GetLocalTm(&parts) == nullptr)
        return false;
    st = {};
    st.wYear = static_cast<WORD>(parts.tm_year + tmYearBase);
    st.wMonth = static_cast<WORD>(parts.tm_mon + 1);
    st.wDayOfWeek = static_cast<WORD>(parts.tm_wday);
    st.wDay = static_cast<WORD>(parts.tm_mday);
    st.wHour = static_cast<WORD>(parts.tm_hour);
    st.wMinute = static_cast<WORD>(parts.tm_min);
    st.wSecond = static_cast<WORD>(parts.tm_sec);
    return true;
}

CStringW CTime::Format(LPCWSTR pszFormat) const
{
    std::tm parts = {};
    return FormatTm(pszFormat, GetLocalTm(&parts));
}

CStringW CTime::Format(UINT nFormatID) const
{
    CStringW format;
    return format.LoadString(nFormatID) ? Format(format.GetString()) : CStringW();
}

CStringW CTime::FormatGmt(LPCWSTR pszFormat) const
{
    std::tm parts = {};
    return FormatTm(pszFormat, GetGmtTm(&parts));
}
