#pragma once

#include <afx.h>

namespace vant::detail
{

/** A text on one line: each line break in it, of one character or two, is a blank. */
inline CString OneLine(const CString& text)
{
    constexpr wchar_t breaks[] = L"\r\n\v\f";
    if (text.FindOneOf(breaks) < 0)
        return text;
    CString line = text;
    line.Replace(L"\r\n", L" ");
    for (const wchar_t* ch = breaks; *ch; ++ch)
        line.Replace(*ch, L' ');
    return line;
}

} // namespace vant::detail
