#include <afx.h>

#include "detail/CodePage.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <fcntl.h>
#include <io.h>
#include <string>

IMPLEMENT_DYNAMIC(CStdioFile, CFile)

namespace
{

void ForgetErrors() noexcept
{
    errno = 0;
    _doserrno = 0;
}

/** Throws for what the C library reports; the system's own error tells more than errno. */
[[noreturn]] void ThrowStreamError(LPCWSTR fileName)
{
    const int error = errno;
    const auto system = static_cast<LONG>(_doserrno);
    int cause = CFileException::OsErrorToException(system);
    if (cause == CFileException::none || cause == CFileException::genericException)
        cause = CFileException::ErrnoToException(error);
    if (cause == CFileException::none)
        cause = CFileException::genericException;
    AfxThrowFileException(cause, system, fileName);
}

/** Makes a stream of an open file, which belongs to the stream then. @return Null: errno tells why. */
FILE* StreamOf(HANDLE file, UINT flags) noexcept
{
    const bool text = (flags & CFile::typeBinary) == 0;
    int fileFlags = text ? _O_TEXT : 0;
    if ((flags & CFile::modeNoInherit) != 0)
        fileFlags |= _O_NOINHERIT;
    const int descriptor = _open_osfhandle(reinterpret_cast<intptr_t>(file), fileFlags);
    if (descriptor < 0) {
        ::CloseHandle(file);
        return nullptr;
    }
    // The file is already as its flags ask for: here "w" cuts nothing off.
    const char* mode = text ? "rt" : "rb";
    if ((flags & CFile::modeReadWrite) != 0)
        mode = text ? "r+t" : "r+b";
    else if ((flags & CFile::modeWrite) != 0)
        mode = text ? "wt" : "wb";
    FILE* const stream = _fdopen(descriptor, mode);
    if (stream == nullptr)
        _close(descriptor);
    return stream;
}

} // namespace

CStdioFile::CStdioFile()
    : m_pStream(nullptr)
{
}

CStdioFile::CStdioFile(FILE* pOpenStream)
    : CFile(reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(pOpenStream))))
    , m_pStream(pOpenStream)
{
}

CStdioFile::CStdioFile(LPCWSTR lpszFileName, UINT nOpenFlags)
    : m_pStream(nullptr)
{
    CFileException error;
    if (!CStdioFile::Open(lpszFileName, nOpenFlags, &error))
        AfxThrowFileException(error.m_cause, error.m_lOsError, error.m_strFileName);
}

CStdioFile::~CStdioFile()
{
    CStdioFile::Abort();
}

BOOL CStdioFile::Open(LPCWSTR lpszFileName, UINT nOpenFlags, CFileException* pError)
{
    Abort();
    if (!CFile::Open(lpszFileName, nOpenFlags, pError))
        return FALSE;
    ForgetErrors();
    m_pStream = StreamOf(m_hFile, nOpenFlags);
    if (m_pStream == nullptr) {
        const int error = errno;
        m_hFile = hFileNull; // closed already
        m_strFileName.Empty();
        if (pError != nullptr) {
            pError->m_cause = CFileException::ErrnoToException(error);
            pError->m_lOsError = static_cast<LONG>(_doserrno);
            pError->m_strFileName = lpszFileName;
        }
        return FALSE;
    }
    return TRUE;
}

void CStdioFile::WriteString(LPCWSTR lpsz)
{
    if (lpsz == nullptr)
        AfxThrowInvalidArgException();
    const std::string bytes = vafx::detail::Narrow(lpsz, std::wcslen(lpsz));
    Write(bytes.data(), static_cast<UINT>(bytes.size()));
}

BOOL CStdioFile::ReadString(CStringW& rString)
{
    rString.Empty();
    if (m_pStream == nullptr)
        return FALSE;
    // fgets does not tell how much it read, and the line may hold zeros: the buffer is filled with LF first,
    // so that the first one left tells where the text ends.
    constexpr int piece = 512;
    char buffer[piece];
    std::string longLine;
    for (;;) {
        std::memset(buffer, '\n', sizeof buffer);
        ForgetErrors();
        if (std::fgets(buffer, piece, m_pStream) == nullptr) {
            if (std::ferror(m_pStream) != 0) {
                std::clearerr(m_pStream);
                ThrowStreamError(m_strFileName);
            }
            if (longLine.empty())
                return FALSE;
            break;
        }
        const auto* const lf = static_cast<const char*>(std::memchr(buffer, '\n', sizeof buffer));
        const bool ends = lf != nullptr && lf + 1 < buffer + piece && lf[1] == '\0';
        // Without a line's end the last byte is the zero that fgets added.
        const char* const textEnd = ends ? lf : (lf != nullptr ? lf : buffer + piece) - 1;
        const auto count = static_cast<std::size_t>(textEnd - buffer);
        if (ends && longLine.empty()) {
            rString = CStringW(buffer, static_cast<int>(count));
            return TRUE;
        }
        longLine.append(buffer, count);
        if (lf != nullptr)
            break;
    }
    rString = CStringW(longLine.data(), static_cast<int>(longLine.size()));
    return TRUE;
}

UINT CStdioFile::Read(void* lpBuf, UINT nCount)
{
    ForgetErrors();
    const std::size_t got = std::fread(lpBuf, 1, nCount, m_pStream);
    if (got < nCount && std::ferror(m_pStream) != 0) {
        std::clearerr(m_pStream);
        ThrowStreamError(m_strFileName);
    }
    return static_cast<UINT>(got);
}

void CStdioFile::Write(const void* lpBuf, UINT nCount)
{
    ForgetErrors();
    if (std::fwrite(lpBuf, 1, nCount, m_pStream) != nCount)
        ThrowStreamError(m_strFileName);
}

ULONGLONG CStdioFile::Seek(LONGLONG lOff, UINT nFrom)
{
    ForgetErrors();
    if (_fseeki64(m_pStream, lOff, static_cast<int>(nFrom)) != 0)
        AfxThrowFileException(CFileException::badSeek, static_cast<LONG>(_doserrno), m_strFileName);
    return GetPosition();
}

ULONGLONG CStdioFile::GetPosition() const
{
    const auto position = _ftelli64(m_pStream);
    if (position < 0)
        AfxThrowFileException(CFileException::invalidFile, static_cast<LONG>(_doserrno), m_strFileName);
    return static_cast<ULONGLONG>(position);
}

ULONGLONG CStdioFile::GetLength() const
{
    ForgetErrors();
    if (std::fflush(m_pStream) != 0)
        ThrowStreamError(m_strFileName);
    return CFile::GetLength();
}

void CStdioFile::SetLength(ULONGLONG dwNewLen)
{
    Flush();
    const errno_t error = _chsize_s(_fileno(m_pStream), static_cast<long long>(dwNewLen));
    if (error != 0)
        CFileException::ThrowErrno(error, m_strFileName);
    Seek(0, end);
}

void CStdioFile::Flush()
{
    if (m_pStream == nullptr)
        return;
    ForgetErrors();
    if (std::fflush(m_pStream) != 0)
        ThrowStreamError(m_strFileName);
}

void CStdioFile::Close()
{
    FILE* const stream = m_pStream;
    const CStringW name = m_strFileName;
    m_pStream = nullptr;
    m_hFile = hFileNull; // closed with the stream
    m_strFileName.Empty();
    if (stream == nullptr)
        return;
    // fclose alone does not everywhere tell that the last of the text found no room.
    ForgetErrors();
    const bool flushed = std::fflush(stream) == 0;
    const int error = errno;
    const unsigned long systemError = _doserrno;
    const bool closed = std::fclose(stream) == 0;
    if (!flushed) {
        errno = error;
        _doserrno = systemError;
    }
    if (!flushed || !closed)
        ThrowStreamError(name);
}

void CStdioFile::Abort()
{
    if (m_pStream != nullptr)
        std::fclose(m_pStream);
    m_pStream = nullptr;
    m_hFile = hFileNull;
    m_strFileName.Empty();
}
