#include <afx.h>

IMPLEMENT_DYNAMIC(CException, CObject)

CException::CException()
    : CException(TRUE)
{
}

CException::CException(BOOL bAutoDelete)
    : m_bAutoDelete(bAutoDelete)
{
}

void CException::Delete()
{
    if (m_bAutoDelete)
        delete this;
}

BOOL CException::GetErrorMessage(LPWSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const
{
    if (pnHelpContext != nullptr)
        *pnHelpContext = 0;
    if (lpszError != nullptr && nMaxError > 0)
        lpszError[0] = L'\0';
    return FALSE;
}

int CException::ReportError(UINT nType, UINT nMessageID)
{
    constexpr UINT maxMessage = 512;
    wchar_t text[maxMessage];
    if (GetErrorMessage(text, maxMessage))
        return ::MessageBoxW(::GetActiveWindow(), text, nullptr, nType);
    CStringW fallback;
    if (nMessageID == 0 || !fallback.LoadString(nMessageID))
        fallback = L"An operation failed for an unknown reason.";
    return ::MessageBoxW(::GetActiveWindow(), fallback, nullptr, nType);
}
