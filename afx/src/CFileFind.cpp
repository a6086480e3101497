#include <afx.h>

#include <algorithm>

IMPLEMENT_DYNAMIC(CFileFind, CObject)

CFileFind::CFileFind()
    : m_hContext(INVALID_HANDLE_VALUE)
    , m_found{}
    , m_next{}
    , m_hasFound(false)
    , m_hasNext(false)
{
}

CFileFind::~CFileFind()
{
    Close();
}

void CFileFind::Close()
{
    if (m_hContext != INVALID_HANDLE_VALUE)
        ::FindClose(m_hContext);
    m_hContext = INVALID_HANDLE_VALUE;
    m_hasFound = m_hasNext = false;
    m_strRoot.Empty();
}

BOOL CFileFind::FindFile(LPCWSTR pstrName, DWORD)
{
    Close();
    const CStringW pattern = pstrName != nullptr ? pstrName : L"*.*";
    m_hContext = ::FindFirstFileW(pattern, &m_next);
    if (m_hContext == INVALID_HANDLE_VALUE)
        return FALSE;
    m_hasNext = true;

    CStringW root = pattern.Left(std::max(pattern.ReverseFind(L'\\'), pattern.ReverseFind(L'/')) + 1);
    if (root.IsEmpty())
        root = pattern.GetLength() > 1 && pattern[1] == L':' ? pattern.Left(2) + L'.' : CStringW(L'.');
    const DWORD needed = ::GetFullPathNameW(root, 0, nullptr, nullptr);
    const DWORD length =
        ::GetFullPathNameW(root, needed, m_strRoot.GetBuffer(static_cast<int>(needed)), nullptr);
    m_strRoot.ReleaseBuffer(length < needed ? static_cast<int>(length) : 0);
    if (!m_strRoot.IsEmpty() && m_strRoot[m_strRoot.GetLength() - 1] != L'\\')
        m_strRoot += L'\\';
    return TRUE;
}

BOOL CFileFind::FindNextFile()
{
    if (!m_hasNext)
        return FALSE;
    m_found = m_next;
    m_hasFound = true;
    m_hasNext = ::FindNextFileW(m_hContext, &m_next) != FALSE;
    return m_hasNext ? TRUE : FALSE;
}

ULONGLONG CFileFind::GetLength() const
{
    return m_hasFound ? (static_cast<ULONGLONG>(m_found.nFileSizeHigh) << 32) | m_found.nFileSizeLow : 0;
}

CStringW CFileFind::GetFileName() const
{
    return m_hasFound ? CStringW(m_found.cFileName) : CStringW();
}

CStringW CFileFind::GetFilePath() const
{
    return m_strRoot + GetFileName();
}

CStringW CFileFind::GetFileTitle() const
{
    const CStringW name = GetFileName();
    const int dot = name.ReverseFind(L'.');
    return dot > 0 ? name.Left(dot) : name;
}

CStringW CFileFind::GetRoot() const
{
    return m_strRoot;
}

BOOL CFileFind::GetCreationTime(CTime& refTime) const
{
    if (!m_hasFound)
        return FALSE;
    refTime = CTime(m_found.ftCreationTime);
    return TRUE;
}

BOOL CFileFind::GetLastAccessTime(CTime& refTime) const
{
    if (!m_hasFound)
        return FALSE;
    refTime = CTime(m_found.ftLastAccessTime);
    return TRUE;
}

BOOL CFileFind::GetLastWriteTime(CTime& refTime) const
{
    if (!m_hasFound)
        return FALSE;
    refTime = CTime(m_found.ftLastWriteTime);
    return TRUE;
}

BOOL CFileFind::MatchesMask(DWORD dwMask) const
{
    return m_hasFound && (m_found.dwFileAttributes & dwMask) != 0 ? TRUE : FALSE;
}

BOOL CFileFind::IsDots() const
{
    const CStringW name = GetFileName();
    return name == L"." || name == L".." ? TRUE : FALSE;
}
