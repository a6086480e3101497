#include <afx.h>

#include <algorithm>
#include <cstring>
#include <exception>
#include <limits>

IMPLEMENT_DYNAMIC(CMemFile, CFile)

CMemFile::CMemFile(UINT nGrowBytes)
    : m_growBytes(nGrowBytes)
{
}

CMemFile::~CMemFile() = default;

UINT CMemFile::Read(void* lpBuf, UINT nCount)
{
    if (m_position >= m_bytes.size())
        return 0;
    const auto count = static_cast<UINT>(std::min<ULONGLONG>(nCount, m_bytes.size() - m_position));
    std::memcpy(lpBuf, m_bytes.data() + m_position, count);
    m_position += count;
    return count;
}

void CMemFile::Resize(ULONGLONG length)
{
    try {
        if (length > m_bytes.capacity())
            m_bytes.reserve(
                std::max<ULONGLONG>({length, m_bytes.capacity() * 2, m_bytes.size() + m_growBytes}));
        m_bytes.resize(length);
    } catch (const std::exception&) { // no memory, or more than can be addressed
        AfxThrowMemoryException();
    }
}

void CMemFile::Write(const void* lpBuf, UINT nCount)
{
    if (nCount == 0)
        return;
    if (m_position + nCount > m_bytes.size())
        Resize(m_position + nCount);
    std::memcpy(m_bytes.data() + m_position, lpBuf, nCount);
    m_position += nCount;
}

ULONGLONG CMemFile::Seek(LONGLONG lOff, UINT nFrom)
{
    constexpr ULONGLONG farthest = std::numeric_limits<LONGLONG>::max();
    const ULONGLONG from = nFrom == begin ? 0 : nFrom == current ? m_position : m_bytes.size();
    // Both are at most `farthest`: where the sum would lie before the beginning it wraps, to above it.
    const ULONGLONG to = from + static_cast<ULONGLONG>(lOff);
    if (to > farthest)
        AfxThrowFileException(CFileException::badSeek);
    return m_position = to;
}

ULONGLONG CMemFile::GetPosition() const
{
    return m_position;
}

ULONGLONG CMemFile::GetLength() const
{
    return m_bytes.size();
}

void CMemFile::SetLength(ULONGLONG dwNewLen)
{
    Resize(dwNewLen);
    m_position = dwNewLen;
}

void CMemFile::Flush() {}

void CMemFile::Close()
{
    m_bytes = {};
    m_position = 0;
}

void CMemFile::Abort()
{
    CMemFile::Close();
}
