#include <afx.h>

void AfxTrace(LPCWSTR format, ...)
{
    va_list args;
    va_start(args, format);
    CStringW text;
    text.FormatV(format, args);
    va_end(args);
    ::OutputDebugStringW(text);
}

BOOL AfxAssertFailedLine(LPCSTR fileName, int line)
{
    CStringW text;
    text.Format(L"%hs(%d): assertion failed\n", fileName, line);
    ::OutputDebugStringW(text);
    return TRUE;
}
