#include <afx.h>

#include "detail/ErrorText.h"

#include <cwchar>

namespace vafx::detail
{

BOOL CopyMessage(LPCWSTR message, LPWSTR lpszError, UINT nMaxError, PUINT pnHelpContext) noexcept
{
    if (pnHelpContext != nullptr)
        *pnHelpContext = 0;
    if (lpszError == nullptr || nMaxError == 0)
        return FALSE;
    std::wcsncpy(lpszError, message, nMaxError - 1);
    lpszError[nMaxError - 1] = L'\0';
    return TRUE;
}

BOOL CopyMessageAbout(const CStringW& file, std::span<const LPCWSTR> messages, int cause, LPWSTR lpszError,
                      UINT nMaxError, PUINT pnHelpContext)
{
    constexpr std::size_t unknown = 1;
    const auto index = static_cast<std::size_t>(cause); // a negative one is beyond all of them
    CStringW text;
    text.Format(messages[index < messages.size() ? index : unknown],
                file.IsEmpty() ? L"an unnamed file" : file.GetString());
    return CopyMessage(text, lpszError, nMaxError, pnHelpContext);
}

} // namespace vafx::detail

using vafx::detail::CopyMessage;

IMPLEMENT_DYNAMIC(CSimpleException, CException)
IMPLEMENT_DYNAMIC(CMemoryException, CSimpleException)
IMPLEMENT_DYNAMIC(CNotSupportedException, CSimpleException)
IMPLEMENT_DYNAMIC(CResourceException, CSimpleException)
IMPLEMENT_DYNAMIC(CUserException, CSimpleException)
IMPLEMENT_DYNAMIC(CInvalidArgException, CSimpleException)

CSimpleException::CSimpleException() = default;

CSimpleException::CSimpleException(BOOL bAutoDelete)
    : CException(bAutoDelete)
{
}

CMemoryException::CMemoryException() = default;

CMemoryException::CMemoryException(BOOL bAutoDelete)
    : CSimpleException(bAutoDelete)
{
}

BOOL CMemoryException::GetErrorMessage(LPWSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const
{
    return CopyMessage(L"Out of memory.", lpszError, nMaxError, pnHelpContext);
}

CNotSupportedException::CNotSupportedException() = default;

CNotSupportedException::CNotSupportedException(BOOL bAutoDelete)
    : CSimpleException(bAutoDelete)
{
}

BOOL CNotSupportedException::GetErrorMessage(LPWSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const
{
    return CopyMessage(L"The operation is not supported.", lpszError, nMaxError, pnHelpContext);
}

CResourceException::CResourceException() = default;

CResourceException::CResourceException(BOOL bAutoDelete)
    : CSimpleException(bAutoDelete)
{
}

BOOL CResourceException::GetErrorMessage(LPWSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const
{
    return CopyMessage(L"A needed resource is not available.", lpszError, nMaxError, pnHelpContext);
}

CUserException::CUserException() = default;

CUserException::CUserException(BOOL bAutoDelete)
    : CSimpleException(bAutoDelete)
{
}

CInvalidArgException::CInvalidArgException() = default;

CInvalidArgException::CInvalidArgException(BOOL bAutoDelete)
    : CSimpleException(bAutoDelete)
{
}

BOOL CInvalidArgException::GetErrorMessage(LPWSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const
{
    return CopyMessage(L"An argument has an invalid value.", lpszError, nMaxError, pnHelpContext);
}

namespace
{

CMemoryException g_memoryException(FALSE);

} // namespace

void AfxThrowMemoryException()
{
    throw &g_memoryException;
}

void AfxThrowNotSupportedException()
{
    throw new CNotSupportedException;
}

void AfxThrowResourceException()
{
    throw new CResourceException;
}

void AfxThrowUserException()
{
    throw new CUserException;
}

void AfxThrowInvalidArgException()
{
    throw new CInvalidArgException;
}
