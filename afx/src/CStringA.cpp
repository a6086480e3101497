#include <afx.h>

#include "detail/CodePage.h"

#include <cstring>
#include <cwchar>

CStringA::CStringA(LPCSTR text)
    : m_text(text != nullptr ? text : "")
{
}

CStringA::CStringA(LPCSTR text, int length)
    : m_text(text != nullptr && length > 0 ? std::string(text, static_cast<std::size_t>(length))
                                           : std::string())
{
}

CStringA::CStringA(LPCWSTR text)
    : m_text(text != nullptr ? vafx::detail::Narrow(text, std::wcslen(text)) : std::string())
{
}

CStringA::CStringA(LPCWSTR text, int length)
    : m_text(text != nullptr && length > 0 ? vafx::detail::Narrow(text, static_cast<std::size_t>(length))
                                           : std::string())
{
}

CStringA::CStringA(const CStringW& text)
    : CStringA(text, text.GetLength())
{
}

CStringA& CStringA::operator+=(const CStringA& text)
{
    m_text += text.m_text;
    return *this;
}

CStringA& CStringA::operator+=(LPCSTR text)
{
    if (text != nullptr)
        m_text += text;
    return *this;
}

CStringA& CStringA::operator+=(char ch)
{
    m_text += ch;
    return *this;
}

int CStringA::Compare(LPCSTR text) const noexcept
{
    return std::strcmp(m_text.c_str(), text != nullptr ? text : "");
}
