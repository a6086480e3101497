#include "vafx/CFileDialog.h"

#include "detail/Handles.h"
#include "vafx/CWinApp.h"

#include <algorithm>
#include <vector>

IMPLEMENT_DYNAMIC(CCommonDialog, CDialog)
IMPLEMENT_DYNAMIC(CFileDialog, CCommonDialog)

namespace
{

/** Room for the names of many files, with OFN_ALLOWMULTISELECT. */
constexpr DWORD namesSize = 32768;

wchar_t* Names(POSITION pos) noexcept
{
    return reinterpret_cast<wchar_t*>(pos);
}

POSITION At(wchar_t* name) noexcept
{
    return reinterpret_cast<POSITION>(name);
}

} // namespace

struct CFileDialog::State {
    OPENFILENAME ofn{};
    std::vector<wchar_t> names = std::vector<wchar_t>(namesSize);
    std::vector<wchar_t> filter;
    CString defaultExtension;
    CWnd* parent = nullptr;
    bool open = true;
};

CCommonDialog::CCommonDialog(CWnd* pParentWnd)
    : CDialog(0U, pParentWnd)
{
}

CFileDialog::CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt, LPCTSTR lpszFileName, DWORD dwFlags,
                         LPCTSTR lpszFilter, CWnd* pParentWnd, DWORD, BOOL)
    : CCommonDialog(pParentWnd)
    , m_state(std::make_unique<State>())
    , m_ofn(m_state->ofn)
{
    m_state->open = bOpenFileDialog != FALSE;
    m_state->parent = pParentWnd;
    if (lpszFileName != nullptr)
        ::lstrcpynW(m_state->names.data(), lpszFileName, static_cast<int>(namesSize));
    m_ofn.lStructSize = sizeof m_ofn;
    m_ofn.lpstrFile = m_state->names.data();
    m_ofn.nMaxFile = namesSize;
    m_ofn.Flags = dwFlags | OFN_EXPLORER;
    if (lpszDefExt != nullptr) {
        m_state->defaultExtension = lpszDefExt;
        m_ofn.lpstrDefExt = m_state->defaultExtension;
    }
    if (lpszFilter != nullptr) {
        // The parts end with zeros and the list with one more.
        m_state->filter.assign(lpszFilter, lpszFilter + ::lstrlenW(lpszFilter));
        std::replace(m_state->filter.begin(), m_state->filter.end(), L'|', L'\0');
        m_state->filter.insert(m_state->filter.end(), 2, L'\0');
        m_ofn.lpstrFilter = m_state->filter.data();
    }
}

CFileDialog::~CFileDialog() = default;

INT_PTR CFileDialog::DoModal()
{
    if (m_ofn.hwndOwner == nullptr) {
        const CWnd* parent = m_state->parent != nullptr ? m_state->parent : ::AfxGetMainWnd();
        m_ofn.hwndOwner = vafx::detail::HandleOf(parent);
    }
    const BOOL chosen = m_state->open ? ::GetOpenFileNameW(&m_ofn) : ::GetSaveFileNameW(&m_ofn);
    return chosen ? IDOK : IDCANCEL;
}

CString CFileDialog::GetPathName() const
{
    POSITION first = GetStartPosition();
    return first != nullptr ? GetNextPathName(first) : CString();
}

CString CFileDialog::GetFileName() const
{
    const CString path = GetPathName();
    return path.Mid(path.ReverseFind(L'\\') + 1);
}

CString CFileDialog::GetFileExt() const
{
    const CString name = GetFileName();
    const int dot = name.ReverseFind(L'.');
    return dot >= 0 ? name.Mid(dot + 1) : CString();
}

CString CFileDialog::GetFileTitle() const
{
    const CString name = GetFileName();
    const int dot = name.ReverseFind(L'.');
    return dot >= 0 ? name.Left(dot) : name;
}

CString CFileDialog::GetFolderPath() const
{
    const CString path = GetPathName();
    return path.Left(std::max(path.ReverseFind(L'\\'), 0));
}

BOOL CFileDialog::GetReadOnlyPref() const noexcept
{
    return (m_ofn.Flags & OFN_READONLY) != 0;
}

POSITION CFileDialog::GetStartPosition() const noexcept
{
    return *m_ofn.lpstrFile != 0 ? At(m_ofn.lpstrFile) : nullptr;
}

CString CFileDialog::GetNextPathName(POSITION& pos) const
{
    wchar_t* const start = m_ofn.lpstrFile;
    wchar_t* const behindFirst = start + ::lstrlenW(start) + 1;
    const bool several = (m_ofn.Flags & OFN_ALLOWMULTISELECT) != 0 && *behindFirst != 0;
    if (!several) {
        pos = nullptr;
        return start;
    }
    // The folder comes first, then the names in it.
    wchar_t* const name = Names(pos) == start ? behindFirst : Names(pos);
    wchar_t* const next = name + ::lstrlenW(name) + 1;
    pos = *next != 0 ? At(next) : nullptr;
    CString path(start);
    if (path.Right(1) != L"\\")
        path += L'\\';
    return path + name;
}
