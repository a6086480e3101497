#pragma once

#include "vafx/CException.h"
#include "vafx/CStringW.h"

/** An archive cannot be read or written as asked. */
class VAFX_API CArchiveException : public CException
{
    DECLARE_DYNAMIC(CArchiveException)

public:
    enum {
        none,
        genericException,
        readOnly,  ///< Writing to an archive that loads.
        endOfFile, ///< The data end too early.
        writeOnly, ///< Reading from an archive that stores.
        badIndex,  ///< The data name an object that was never stored.
        badClass,  ///< The stored object is of a class that is unknown or not the expected one.
        badSchema  ///< The stored object is of another version of the class.
    };

    explicit CArchiveException(int cause = none, LPCWSTR lpszArchiveName = nullptr);

    BOOL GetErrorMessage(LPWSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) const override;

    int m_cause;            ///< What happened, one of the enumeration.
    CStringW m_strFileName; ///< The archive's file.
};

[[noreturn]] VAFX_API void AfxThrowArchiveException(int cause, LPCWSTR lpszArchiveName = nullptr);
