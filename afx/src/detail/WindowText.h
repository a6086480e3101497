#pragma once

#include "vafx/CStringW.h"

namespace vafx::detail
{

/** The text of any window, however long. @return Its length. */
inline int ReadText(HWND window, CString& text)
{
    const int length = ::GetWindowTextLengthW(window);
    const int read = ::GetWindowTextW(window, text.GetBuffer(length), length + 1);
    text.ReleaseBuffer(read);
    return read;
}

} // namespace vafx::detail
