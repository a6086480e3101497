#include <afx.h>

#include "detail/ErrorText.h"

IMPLEMENT_DYNAMIC(CArchiveException, CException)

namespace
{

// By cause; %s is the archive's file.
constexpr LPCWSTR messages[] = {
    L"No error occurred with %s.",
    L"An unknown error occurred while accessing %s.",
    L"%s is open for reading and cannot be written.",
    L"The end of %s was reached unexpectedly.",
    L"%s is open for writing and cannot be read.",
    L"%s has a bad format.",
    L"%s contains an unexpected object.",
    L"%s was written by another version of the program.",
};

} // namespace

CArchiveException::CArchiveException(int cause, LPCWSTR lpszArchiveName)
    : m_cause(cause)
    , m_strFileName(lpszArchiveName)
{
}

BOOL CArchiveException::GetErrorMessage(LPWSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const
{
    return vafx::detail::CopyMessageAbout(m_strFileName, messages, m_cause, lpszError, nMaxError,
                                          pnHelpContext);
}

void AfxThrowArchiveException(int cause, LPCWSTR lpszArchiveName)
{
    throw new CArchiveException(cause, lpszArchiveName);
}
