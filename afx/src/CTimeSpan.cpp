#include <afx.h>

CStringW CTimeSpan::Format(LPCWSTR pszFormat) const
{
    CStringW text;
    for (LPCWSTR p = pszFormat; p != nullptr && *p != L'\0'; ++p) {
        if (*p != L'%') {
            text.AppendChar(*p);
            continue;
        }
        switch (*++p) {
        case L'%':
            text.AppendChar(L'%');
            break;
        case L'D':
            text.AppendFormat(L"%I64d", GetDays());
            break;
        case L'H':
            text.AppendFormat(L"%02ld", GetHours());
            break;
        case L'M':
            text.AppendFormat(L"%02ld", GetMinutes());
            break;
        case L'S':
            text.AppendFormat(L"%02ld", GetSeconds());
            break;
        default:
            return {};
        }
    }
    return text;
}
