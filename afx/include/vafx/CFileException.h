#pragma once

#include "vafx/CException.h"
#include "vafx/CStringW.h"

/** A file operation failed. */
class VAFX_API CFileException : public CException
{
    DECLARE_DYNAMIC(CFileException)

public:
    enum {
        none,
        genericException,
        fileNotFound,
        badPath,
        tooManyOpenFiles,
        accessDenied,
        invalidFile,
        removeCurrentDir,
        directoryFull,
        badSeek,
        hardIO,
        sharingViolation,
        lockViolation,
        diskFull,
        endOfFile
    };

    explicit CFileException(int cause = none, LONG lOsError = -1, LPCWSTR lpszArchiveName = nullptr);

    BOOL GetErrorMessage(LPWSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) const override;

    /** @return The cause that belongs to a system error; genericException for one without a cause of its own.
     */
    static int PASCAL OsErrorToException(LONG lOsError);
    /** @return The cause that belongs to an errno value of the C library. */
    static int PASCAL ErrnoToException(int nErrno);
    /** Throws for a system error; does nothing for 0. */
    static void PASCAL ThrowOsError(LONG lOsError, LPCWSTR lpszFileName = nullptr);
    /** Throws for an errno value; does nothing for 0. */
    static void PASCAL ThrowErrno(int nErrno, LPCWSTR lpszFileName = nullptr);

    int m_cause;            ///< What happened, one of the enumeration.
    LONG m_lOsError;        ///< The system's error; -1 when there is none.
    CStringW m_strFileName; ///< The file.
};

[[noreturn]] VAFX_API void AfxThrowFileException(int cause, LONG lOsError = -1,
                                                 LPCWSTR lpszFileName = nullptr);
