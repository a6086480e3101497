#include <afx.h>

#include <algorithm>
#include <commdlg.h>
#include <cwchar>
#include <iterator>
#include <memory>
#include <string_view>

IMPLEMENT_DYNAMIC(CFile, CObject)

const HANDLE CFile::hFileNull = INVALID_HANDLE_VALUE;

namespace
{

[[noreturn]] void ThrowLastError(LPCWSTR fileName)
{
    const auto error = static_cast<LONG>(::GetLastError());
    AfxThrowFileException(CFileException::OsErrorToException(error), error, fileName);
}

CStringW FullPath(LPCWSTR name)
{
    wchar_t path[MAX_PATH];
    const DWORD length = ::GetFullPathNameW(name, MAX_PATH, path, nullptr);
    if (length == 0)
        return name;
    if (length < MAX_PATH)
        return CStringW(path, static_cast<int>(length));
    CStringW result;
    const DWORD copied =
        ::GetFullPathNameW(name, length, result.GetBuffer(static_cast<int>(length)), nullptr);
    result.ReleaseBuffer(copied < length ? static_cast<int>(copied) : 0);
    return result;
}

DWORD AccessOf(UINT flags) noexcept
{
    constexpr UINT accessBits = CFile::modeWrite | CFile::modeReadWrite;
    switch (flags & accessBits) {
    case CFile::modeWrite:
        return GENERIC_WRITE;
    case CFile::modeReadWrite:
        return GENERIC_READ | GENERIC_WRITE;
    default:
        return GENERIC_READ;
    }
}

DWORD SharingOf(UINT flags) noexcept
{
    constexpr UINT shareBits = CFile::shareExclusive | CFile::shareDenyWrite | CFile::shareDenyNone;
    switch (flags & shareBits) {
    case CFile::shareDenyWrite:
        return FILE_SHARE_READ;
    case CFile::shareDenyRead:
        return FILE_SHARE_WRITE;
    case CFile::shareDenyNone:
        return FILE_SHARE_READ | FILE_SHARE_WRITE;
    default:
        return 0;
    }
}

DWORD DispositionOf(UINT flags) noexcept
{
    if ((flags & CFile::modeCreate) == 0)
        return OPEN_EXISTING;
    return (flags & CFile::modeNoTruncate) != 0 ? OPEN_ALWAYS : CREATE_ALWAYS;
}

DWORD AttributesOf(UINT flags) noexcept
{
    DWORD attributes = FILE_ATTRIBUTE_NORMAL;
    if ((flags & CFile::osNoBuffer) != 0)
        attributes |= FILE_FLAG_NO_BUFFERING;
    if ((flags & CFile::osWriteThrough) != 0)
        attributes |= FILE_FLAG_WRITE_THROUGH;
    if ((flags & CFile::osRandomAccess) != 0)
        attributes |= FILE_FLAG_RANDOM_ACCESS;
    if ((flags & CFile::osSequentialScan) != 0)
        attributes |= FILE_FLAG_SEQUENTIAL_SCAN;
    return attributes;
}

template <class Info>
void Describe(CFileStatus& status, const Info& info, LPCWSTR path)
{
    status.m_ctime = CTime(info.ftCreationTime);
    status.m_mtime = CTime(info.ftLastWriteTime);
    status.m_atime = CTime(info.ftLastAccessTime);
    status.m_size = (static_cast<ULONGLONG>(info.nFileSizeHigh) << 32) | info.nFileSizeLow;
    constexpr DWORD known =
        CFile::readOnly | CFile::hidden | CFile::system | CFile::directory | CFile::archive;
    status.m_attribute = static_cast<BYTE>(info.dwFileAttributes & known);
    status.m_szFullName[0] = L'\0';
    const std::size_t length = std::wcslen(path);
    if (length < std::size(status.m_szFullName))
        std::copy_n(path, length + 1, status.m_szFullName);
}

} // namespace

CFile::CFile()
    : CFile(hFileNull)
{
}

CFile::CFile(HANDLE hFile)
    : m_hFile(hFile)
    , m_bCloseOnDelete(TRUE)
{
}

CFile::CFile(LPCWSTR lpszFileName, UINT nOpenFlags)
    : CFile()
{
    CFileException error;
    if (!CFile::Open(lpszFileName, nOpenFlags, &error))
        AfxThrowFileException(error.m_cause, error.m_lOsError, error.m_strFileName);
}

CFile::~CFile()
{
    if (m_bCloseOnDelete)
        CFile::Abort();
}

BOOL CFile::Open(LPCWSTR lpszFileName, UINT nOpenFlags, CFileException* pError)
{
    ASSERT(m_hFile == hFileNull);
    SECURITY_ATTRIBUTES security = {};
    security.nLength = sizeof security;
    security.bInheritHandle = (nOpenFlags & modeNoInherit) == 0 ? TRUE : FALSE;
    const HANDLE file = ::CreateFileW(lpszFileName, AccessOf(nOpenFlags), SharingOf(nOpenFlags), &security,
                                      DispositionOf(nOpenFlags), AttributesOf(nOpenFlags), nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        if (pError != nullptr) {
            pError->m_lOsError = static_cast<LONG>(::GetLastError());
            pError->m_cause = CFileException::OsErrorToException(pError->m_lOsError);
            pError->m_strFileName = lpszFileName;
        }
        return FALSE;
    }
    Abort();
    m_hFile = file;
    m_bCloseOnDelete = TRUE;
    m_strFileName = FullPath(lpszFileName);
    return TRUE;
}

UINT CFile::Read(void* lpBuf, UINT nCount)
{
    if (nCount == 0)
        return 0;
    DWORD done = 0;
    if (!::ReadFile(m_hFile, lpBuf, nCount, &done, nullptr))
        ThrowLastError(m_strFileName);
    return done;
}

void CFile::Write(const void* lpBuf, UINT nCount)
{
    if (nCount == 0)
        return;
    DWORD done = 0;
    if (!::WriteFile(m_hFile, lpBuf, nCount, &done, nullptr))
        ThrowLastError(m_strFileName);
    if (done != nCount)
        AfxThrowFileException(CFileException::diskFull, -1, m_strFileName);
}

ULONGLONG CFile::Seek(LONGLONG lOff, UINT nFrom)
{
    LARGE_INTEGER offset = {};
    offset.QuadPart = lOff;
    LARGE_INTEGER position = {};
    if (!::SetFilePointerEx(m_hFile, offset, &position, nFrom))
        ThrowLastError(m_strFileName);
    return static_cast<ULONGLONG>(position.QuadPart);
}

ULONGLONG CFile::GetPosition() const
{
    LARGE_INTEGER position = {};
    if (!::SetFilePointerEx(m_hFile, {}, &position, FILE_CURRENT))
        ThrowLastError(m_strFileName);
    return static_cast<ULONGLONG>(position.QuadPart);
}

ULONGLONG CFile::GetLength() const
{
    LARGE_INTEGER length = {};
    if (!::GetFileSizeEx(m_hFile, &length))
        ThrowLastError(m_strFileName);
    return static_cast<ULONGLONG>(length.QuadPart);
}

void CFile::SetLength(ULONGLONG dwNewLen)
{
    Seek(static_cast<LONGLONG>(dwNewLen), begin);
    if (!::SetEndOfFile(m_hFile))
        ThrowLastError(m_strFileName);
}

void CFile::Flush()
{
    if (m_hFile != hFileNull && !::FlushFileBuffers(m_hFile))
        ThrowLastError(m_strFileName);
}

void CFile::Close()
{
    const BOOL closed = m_hFile == hFileNull || ::CloseHandle(m_hFile);
    const CStringW name = m_strFileName;
    m_hFile = hFileNull;
    m_bCloseOnDelete = FALSE;
    m_strFileName.Empty();
    if (!closed)
        ThrowLastError(name);
}

void CFile::Abort()
{
    if (m_hFile != hFileNull)
        ::CloseHandle(m_hFile);
    m_hFile = hFileNull;
    m_strFileName.Empty();
}

CStringW CFile::GetFileName() const
{
    return m_strFileName.Mid(m_strFileName.ReverseFind(L'\\') + 1);
}

CStringW CFile::GetFilePath() const
{
    return m_strFileName;
}

CStringW CFile::GetFileTitle() const
{
    wchar_t title[MAX_PATH];
    if (::GetFileTitleW(m_strFileName, title, static_cast<WORD>(std::size(title))) != 0)
        return GetFileName();
    return title;
}

void CFile::SetFilePath(LPCWSTR lpszNewName)
{
    m_strFileName = lpszNewName;
}

BOOL CFile::GetStatus(CFileStatus& rStatus) const
{
    BY_HANDLE_FILE_INFORMATION info = {};
    if (m_hFile == hFileNull || !::GetFileInformationByHandle(m_hFile, &info))
        return FALSE;
    Describe(rStatus, info, m_strFileName);
    return TRUE;
}

BOOL CFile::GetStatus(LPCWSTR lpszFileName, CFileStatus& rStatus)
{
    WIN32_FILE_ATTRIBUTE_DATA info = {};
    if (lpszFileName == nullptr || !::GetFileAttributesExW(lpszFileName, GetFileExInfoStandard, &info))
        return FALSE;
    Describe(rStatus, info, FullPath(lpszFileName));
    return TRUE;
}

void CFile::Rename(LPCWSTR lpszOldName, LPCWSTR lpszNewName)
{
    if (!::MoveFileW(lpszOldName, lpszNewName))
        ThrowLastError(lpszOldName);
}

void CFile::Remove(LPCWSTR lpszFileName)
{
    if (!::DeleteFileW(lpszFileName))
        ThrowLastError(lpszFileName);
}
