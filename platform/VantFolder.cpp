#include "platform/Vant.h"

#include <objbase.h>
#include <shlobj.h>

namespace
{

// Called by the folder dialog; `data` is the text of the folder to start with.
int CALLBACK OnBrowse(HWND dialog, UINT message, LPARAM param, LPARAM data)
{
    wchar_t path[MAX_PATH] = {};
    switch (message) {
    case BFFM_INITIALIZED:
        SendMessageW(dialog, BFFM_SETSELECTIONW, TRUE, data);
        SendMessageW(dialog, BFFM_SETSTATUSTEXTW, 0, data);
        break;
    case BFFM_SELCHANGED:
        if (SHGetPathFromIDListW(reinterpret_cast<PCIDLIST_ABSOLUTE>(param), path))
            SendMessageW(dialog, BFFM_SETSTATUSTEXTW, 0, reinterpret_cast<LPARAM>(path));
        break;
    default:
        break;
    }
    return 0;
}

/** The shell's dialog needs COM on its thread; an application that has it already keeps its own. */
class CComScope
{
public:
    CComScope() noexcept
        : m_result(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE))
    {
    }
    ~CComScope()
    {
        if (SUCCEEDED(m_result))
            CoUninitialize();
    }
    CComScope(const CComScope&) = delete;
    CComScope& operator=(const CComScope&) = delete;

private:
    HRESULT m_result;
};

} // namespace

int Vant::GetDir(CString& dir, bool typed)
{
    const CComScope com;
    const CString start = dir;
    CWnd* const owner = AfxGetMainWnd();
    wchar_t path[MAX_PATH] = {};
    BROWSEINFOW info = {};
    info.hwndOwner = owner ? owner->GetSafeHwnd() : nullptr;
    info.pszDisplayName = path;
    info.ulFlags = BIF_RETURNONLYFSDIRS | BIF_STATUSTEXT | (typed ? BIF_EDITBOX : 0u);
    info.lpfn = OnBrowse;
    info.lParam = reinterpret_cast<LPARAM>(start.GetString());
    const PIDLIST_ABSOLUTE chosen = SHBrowseForFolderW(&info);
    if (!chosen)
        return 0;
    const bool isPath = SHGetPathFromIDListW(chosen, path);
    CoTaskMemFree(chosen); // the shell's allocator
    if (!isPath)
        return 0;
    dir = path;
    return 1;
}
