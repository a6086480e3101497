#pragma once

#include "vafx/CException.h"

/** An exception that is fully told by its class. */
class VAFX_API CSimpleException : public CException
{
    DECLARE_DYNAMIC(CSimpleException)

public:
    CSimpleException();
    explicit CSimpleException(BOOL bAutoDelete);
};

/** There is no memory left. */
class VAFX_API CMemoryException : public CSimpleException
{
    DECLARE_DYNAMIC(CMemoryException)

public:
    CMemoryException();
    explicit CMemoryException(BOOL bAutoDelete);
    BOOL GetErrorMessage(LPWSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) const override;
};

/** The operation is not one of this object's. */
class VAFX_API CNotSupportedException : public CSimpleException
{
    DECLARE_DYNAMIC(CNotSupportedException)

public:
    CNotSupportedException();
    explicit CNotSupportedException(BOOL bAutoDelete);
    BOOL GetErrorMessage(LPWSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) const override;
};

/** A resource cannot be found or made. */
class VAFX_API CResourceException : public CSimpleException
{
    DECLARE_DYNAMIC(CResourceException)

public:
    CResourceException();
    explicit CResourceException(BOOL bAutoDelete);
    BOOL GetErrorMessage(LPWSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) const override;
};

/** Ends an operation of the user, who has been told already. */
class VAFX_API CUserException : public CSimpleException
{
    DECLARE_DYNAMIC(CUserException)

public:
    CUserException();
    explicit CUserException(BOOL bAutoDelete);
};

/** An argument is outside its range. */
class VAFX_API CInvalidArgException : public CSimpleException
{
    DECLARE_DYNAMIC(CInvalidArgException)

public:
    CInvalidArgException();
    explicit CInvalidArgException(BOOL bAutoDelete);
    BOOL GetErrorMessage(LPWSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) const override;
};

/** Throws without asking for memory. */
[[noreturn]] VAFX_API void AfxThrowMemoryException();
[[noreturn]] VAFX_API void AfxThrowNotSupportedException();
[[noreturn]] VAFX_API void AfxThrowResourceException();
[[noreturn]] VAFX_API void AfxThrowUserException();
[[noreturn]] VAFX_API void AfxThrowInvalidArgException();
