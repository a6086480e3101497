#pragma once

#include "vafx/CStringW.h"

#include <string>

/** A text in the system's 8-bit code page: the partner of CStringW for interfaces that take narrow text. */
class VAFX_API CStringA
{
public:
    using XCHAR = char;
    using YCHAR = wchar_t;

    CStringA() = default;
    /** A null pointer makes an empty text. */
    CStringA(LPCSTR text);
    CStringA(LPCSTR text, int length);
    /** What the code page cannot hold becomes its default character, usually a question mark. */
    CStringA(LPCWSTR text);
    CStringA(LPCWSTR text, int length);
    CStringA(const CStringW& text);

    operator LPCSTR() const noexcept { return m_text.c_str(); }
    LPCSTR GetString() const noexcept { return m_text.c_str(); }
    /** @return The length in bytes. */
    int GetLength() const noexcept { return static_cast<int>(m_text.size()); }
    bool IsEmpty() const noexcept { return m_text.empty(); }
    void Empty() noexcept { m_text.clear(); }
    char GetAt(int i) const noexcept { return m_text.c_str()[i]; }
    char operator[](int i) const noexcept { return m_text.c_str()[i]; }

    CStringA& operator+=(const CStringA& text);
    CStringA& operator+=(LPCSTR text);
    CStringA& operator+=(char ch);
    /** @return Below 0, 0 or above 0, as this text comes before, equals or comes after @p text. */
    int Compare(LPCSTR text) const noexcept;

private:
    std::string m_text;
};

inline bool operator==(const CStringA& a, const CStringA& b) noexcept
{
    return a.Compare(b) == 0;
}
inline bool operator==(const CStringA& a, LPCSTR b) noexcept
{
    return a.Compare(b) == 0;
}
inline bool operator!=(const CStringA& a, const CStringA& b) noexcept
{
    return a.Compare(b) != 0;
}
inline bool operator!=(const CStringA& a, LPCSTR b) noexcept
{
    return a.Compare(b) != 0;
}
