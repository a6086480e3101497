#include <afx.h>

#include "detail/ErrorText.h"

#include <cerrno>
#include <cstdlib>

IMPLEMENT_DYNAMIC(CFileException, CException)

namespace
{

// By cause; %s is the file.
constexpr LPCWSTR messages[] = {
    L"No error occurred with %s.",
    L"An unknown error occurred while accessing %s.",
    L"%s was not found.",
    L"%s contains an invalid path.",
    L"%s could not be opened because there are too many open files.",
    L"Access to %s was denied.",
    L"An invalid file handle was associated with %s.",
    L"%s could not be removed because it is the current directory.",
    L"%s could not be created because the directory is full.",
    L"A position outside the file was sought in %s.",
    L"A hardware error was reported while accessing %s.",
    L"%s is in use by another program.",
    L"A part of %s is locked by another program.",
    L"The disk is full while accessing %s.",
    L"The end of %s was reached unexpectedly.",
};

} // namespace

CFileException::CFileException(int cause, LONG lOsError, LPCWSTR lpszArchiveName)
    : m_cause(cause)
    , m_lOsError(lOsError)
    , m_strFileName(lpszArchiveName)
{
}

BOOL CFileException::GetErrorMessage(LPWSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const
{
    return vafx::detail::CopyMessageAbout(m_strFileName, messages, m_cause, lpszError, nMaxError,
                                          pnHelpContext);
}

int CFileException::OsErrorToException(LONG lOsError)
{
    switch (static_cast<DWORD>(lOsError)) {
    case NO_ERROR:
        return none;
    case ERROR_FILE_NOT_FOUND:
        return fileNotFound;
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_DRIVE:
    case ERROR_BAD_PATHNAME:
    case ERROR_INVALID_NAME:
    case ERROR_FILENAME_EXCED_RANGE:
    case ERROR_DIRECTORY:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
        return badPath;
    case ERROR_TOO_MANY_OPEN_FILES:
    case ERROR_NO_MORE_SEARCH_HANDLES:
    case ERROR_SHARING_BUFFER_EXCEEDED:
        return tooManyOpenFiles;
    case ERROR_ACCESS_DENIED:
    case ERROR_WRITE_PROTECT:
    case ERROR_INVALID_ACCESS:
    case ERROR_NETWORK_ACCESS_DENIED:
    case ERROR_CANNOT_MAKE:
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
    case ERROR_DIR_NOT_EMPTY:
    case ERROR_PRIVILEGE_NOT_HELD:
        return accessDenied;
    case ERROR_INVALID_HANDLE:
    case ERROR_INVALID_TARGET_HANDLE:
    case ERROR_DIRECT_ACCESS_HANDLE:
        return invalidFile;
    case ERROR_CURRENT_DIRECTORY:
        return removeCurrentDir;
    case ERROR_SEEK:
    case ERROR_NEGATIVE_SEEK:
    case ERROR_SEEK_ON_DEVICE:
    case ERROR_SECTOR_NOT_FOUND:
        return badSeek;
    case ERROR_BAD_UNIT:
    case ERROR_NOT_READY:
    case ERROR_BAD_COMMAND:
    case ERROR_CRC:
    case ERROR_BAD_LENGTH:
    case ERROR_NOT_DOS_DISK:
    case ERROR_WRITE_FAULT:
    case ERROR_READ_FAULT:
    case ERROR_GEN_FAILURE:
    case ERROR_WRONG_DISK:
    case ERROR_IO_DEVICE:
    case ERROR_OPEN_FAILED:
        return hardIO;
    case ERROR_SHARING_VIOLATION:
    case ERROR_USER_MAPPED_FILE:
        return sharingViolation;
    case ERROR_LOCK_VIOLATION:
    case ERROR_LOCK_FAILED:
    case ERROR_NOT_LOCKED:
        return lockViolation;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
    case ERROR_FILE_TOO_LARGE:
        return diskFull;
    case ERROR_HANDLE_EOF:
        return endOfFile;
    default:
        return genericException;
    }
}

int CFileException::ErrnoToException(int nErrno)
{
    switch (nErrno) {
    case 0:
        return none;
    case EPERM:
    case EACCES:
        return accessDenied;
    case EBADF:
        return invalidFile;
    case EDEADLK:
        return sharingViolation;
    case EMFILE:
        return tooManyOpenFiles;
    case ENOENT:
    case ENFILE:
        return fileNotFound;
    case ENOSPC:
        return diskFull;
    case EINVAL:
    case EIO:
        return hardIO;
    default:
        return genericException;
    }
}

void CFileException::ThrowOsError(LONG lOsError, LPCWSTR lpszFileName)
{
    if (lOsError != NO_ERROR)
        AfxThrowFileException(OsErrorToException(lOsError), lOsError, lpszFileName);
}

void CFileException::ThrowErrno(int nErrno, LPCWSTR lpszFileName)
{
    if (nErrno != 0)
        AfxThrowFileException(ErrnoToException(nErrno), static_cast<LONG>(_doserrno), lpszFileName);
}

void AfxThrowFileException(int cause, LONG lOsError, LPCWSTR lpszFileName)
{
    throw new CFileException(cause, lOsError, lpszFileName);
}
