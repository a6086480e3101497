// CArchive: bytes, buffer and texts. Objects and classes are in CArchiveObjects.cpp.
#include <afx.h>

#include "detail/ObjectMap.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>

namespace
{

constexpr int minBuffer = 128;

// A text's length: one byte below its limit, then two, four and eight bytes, each behind the mark that the
// shorter form ran out. The same two-byte form with unicodeMark tells that 16-bit units follow.
constexpr BYTE byteLimit = 0xFF;
constexpr WORD unicodeMark = 0xFFFE;
constexpr WORD wordLimit = 0xFFFF;
constexpr DWORD dwordLimit = 0xFFFFFFFF;

void WriteTextLength(CArchive& ar, DWORD length)
{
    if (length < byteLimit) {
        ar << static_cast<BYTE>(length);
        return;
    }
    ar << byteLimit;
    if (length < unicodeMark)
        ar << static_cast<WORD>(length);
    else
        ar << wordLimit << length;
}

/** @return The length in units; @p unitSize becomes 2 when the text is marked as wide. */
ULONGLONG ReadTextLength(CArchive& ar, UINT& unitSize)
{
    BYTE small = 0;
    ar >> small;
    if (small < byteLimit)
        return small;
    WORD medium = 0;
    ar >> medium;
    if (medium == unicodeMark) {
        if (unitSize == sizeof(wchar_t)) // a second mark
            AfxThrowArchiveException(CArchiveException::badIndex, ar.GetFile()->GetFilePath());
        unitSize = sizeof(wchar_t);
        return ReadTextLength(ar, unitSize);
    }
    if (medium != wordLimit)
        return medium;
    DWORD large = 0;
    ar >> large;
    if (large != dwordLimit)
        return large;
    ULONGLONG huge = 0;
    ar >> huge;
    return huge;
}

} // namespace

CArchive::CArchive(CFile* pFile, UINT nMode, int nBufSize, void* lpBuf)
    : m_file(pFile)
    , m_mode(nMode)
    , m_size(static_cast<UINT>(std::max(nBufSize, minBuffer)))
    , m_buffer(static_cast<BYTE*>(lpBuf))
{
    if (m_buffer == nullptr || nBufSize < minBuffer) {
        m_ownBuffer.reset(new BYTE[m_size]);
        m_buffer = m_ownBuffer.get();
    }
}

CArchive::~CArchive()
{
    if (m_file == nullptr || (m_mode & bNoFlushOnDelete) != 0)
        return;
    try {
        Close();
    } catch (CException* e) {
        e->Delete();
    }
}

void CArchive::Throw(int cause) const
{
    AfxThrowArchiveException(cause, m_file != nullptr ? m_file->GetFilePath().GetString() : nullptr);
}

BOOL CArchive::IsBufferEmpty() const noexcept
{
    return m_at == m_filled ? TRUE : FALSE;
}

UINT CArchive::Read(void* lpBuf, UINT nMax)
{
    if (IsStoring())
        Throw(CArchiveException::writeOnly);
    auto* to = static_cast<BYTE*>(lpBuf);
    UINT done = 0;
    while (done < nMax) {
        if (m_at == m_filled) {
            if (m_file == nullptr)
                break;
            // What is larger than the buffer need not go through it.
            if (nMax - done >= m_size) {
                const UINT got = m_file->Read(to + done, nMax - done);
                if (got == 0)
                    break;
                done += got;
                continue;
            }
            m_at = m_filled = 0;
            m_filled = m_file->Read(m_buffer, m_size);
            if (m_filled == 0)
                break;
        }
        const UINT part = std::min(nMax - done, m_filled - m_at);
        std::memcpy(to + done, m_buffer + m_at, part);
        m_at += part;
        done += part;
    }
    return done;
}

void CArchive::EnsureRead(void* lpBuf, UINT nCount)
{
    if (Read(lpBuf, nCount) != nCount)
        Throw(CArchiveException::endOfFile);
}

void CArchive::Write(const void* lpBuf, UINT nMax)
{
    if (IsLoading())
        Throw(CArchiveException::readOnly);
    if (nMax == 0)
        return;
    if (nMax > m_size - m_at)
        EmptyBuffer();
    if (nMax >= m_size) {
        if (m_file == nullptr)
            Throw(CArchiveException::genericException);
        m_file->Write(lpBuf, nMax);
        return;
    }
    std::memcpy(m_buffer + m_at, lpBuf, nMax);
    m_at += nMax;
}

void CArchive::EmptyBuffer()
{
    if (m_at == 0)
        return;
    if (m_file == nullptr)
        Throw(CArchiveException::genericException);
    const UINT count = m_at;
    m_at = 0; // what the file refused once is not written again
    m_file->Write(m_buffer, count);
}

void CArchive::Flush()
{
    if (m_file == nullptr)
        return;
    if (IsStoring()) {
        EmptyBuffer();
    } else if (m_at != m_filled) {
        m_file->Seek(-static_cast<LONGLONG>(m_filled - m_at), CFile::current);
        m_at = m_filled = 0;
    }
}

void CArchive::Close()
{
    Flush();
    m_file = nullptr;
}

void CArchive::Abort() noexcept
{
    m_file = nullptr;
    m_at = m_filled = 0;
}

CArchive& CArchive::operator>>(bool& b)
{
    BYTE value = 0;
    *this >> value;
    b = value != 0;
    return *this;
}

CArchive& operator<<(CArchive& ar, const CStringW& text)
{
    ar << byteLimit << unicodeMark;
    const auto length = static_cast<DWORD>(text.GetLength());
    WriteTextLength(ar, length);
    ar.Write(text.GetString(), length * static_cast<UINT>(sizeof(wchar_t)));
    return ar;
}

CArchive& operator>>(CArchive& ar, CStringW& text)
{
    UINT unitSize = sizeof(char);
    ULONGLONG left = ReadTextLength(ar, unitSize);
    // In pieces, so that a damaged length costs no more memory than there are bytes in the file.
    constexpr UINT piece = 4096;
    CStringW read;
    if (unitSize == sizeof(wchar_t)) {
        wchar_t units[piece];
        for (; left > 0; left -= std::min<ULONGLONG>(left, piece)) {
            const auto count = static_cast<UINT>(std::min<ULONGLONG>(left, piece));
            ar.EnsureRead(units, count * unitSize);
            read.Append(units, static_cast<int>(count));
        }
    } else {
        std::string bytes;
        char units[piece];
        for (; left > 0; left -= std::min<ULONGLONG>(left, piece)) {
            const auto count = static_cast<UINT>(std::min<ULONGLONG>(left, piece));
            ar.EnsureRead(units, count);
            bytes.append(units, count);
        }
        read = CStringW(bytes.data(), static_cast<int>(bytes.size()));
    }
    text = std::move(read);
    return ar;
}
