#include "detail/Handles.h"
#include "detail/MessageBox.h"
#include "vafx/CWinApp.h"

namespace
{

/** Its owner must take no input meanwhile, and another popup over it must stay above it. */
HWND OwnerOfMessageBox()
{
    const HWND main = vafx::detail::HandleOf(::AfxGetMainWnd());
    return main != nullptr ? ::GetLastActivePopup(::GetAncestor(main, GA_ROOT)) : ::GetActiveWindow();
}

/** A style without an icon gets the one that fits its buttons. */
UINT WithIcon(UINT type)
{
    if ((type & MB_ICONMASK) != 0)
        return type;
    switch (type & MB_TYPEMASK) {
    case MB_OK:
    case MB_OKCANCEL:
        return type | MB_ICONEXCLAMATION;
    case MB_YESNO:
    case MB_YESNOCANCEL:
        return type | MB_ICONQUESTION;
    default:
        return type;
    }
}

} // namespace

int vafx::detail::ShowMessageBox(LPCWSTR text, UINT type, LPCWSTR title)
{
    return ::MessageBoxW(OwnerOfMessageBox(), text, title, WithIcon(type));
}

int AFXAPI AfxMessageBox(LPCTSTR lpszText, UINT nType, UINT nIDHelp)
{
    if (CWinApp* app = ::AfxGetApp())
        return app->DoMessageBox(lpszText, nType, nIDHelp);
    return vafx::detail::ShowMessageBox(lpszText, nType, nullptr);
}

int AFXAPI AfxMessageBox(UINT nIDPrompt, UINT nType, UINT nIDHelp)
{
    CString text;
    if (!text.LoadString(nIDPrompt))
        return 0;
    return ::AfxMessageBox(text, nType, nIDHelp == static_cast<UINT>(-1) ? nIDPrompt : nIDHelp);
}
