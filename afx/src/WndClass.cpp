#include "detail/SlimLock.h"
#include "vafx/CSimpleException.h"
#include "vafx/CWinApp.h"
#include "vafx/resources.h"

#include <set>
#include <string>

namespace
{

/** Class names live as long as the process: windows are created by them at any time. */
LPCTSTR KeepName(const CString& name)
{
    static SRWLOCK lock = SRWLOCK_INIT;
    static auto& names = *new std::set<std::wstring>;
    const vafx::detail::ExclusiveLock locked(lock);
    return names.emplace(name.GetString()).first->c_str();
}

} // namespace

BOOL AFXAPI AfxRegisterClass(WNDCLASS* lpWndClass)
{
    WNDCLASS known;
    if (::GetClassInfoW(lpWndClass->hInstance, lpWndClass->lpszClassName, &known))
        return TRUE;
    return ::RegisterClassW(lpWndClass) != 0 || ::GetLastError() == ERROR_CLASS_ALREADY_EXISTS;
}

LPCTSTR AFXAPI AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor, HBRUSH hbrBackground, HICON hIcon)
{
    const HINSTANCE module = ::AfxGetInstanceHandle();
    // Equal properties make an equal name, so that a class is registered once.
    CString name;
    name.Format(L"Afx:%p:%x:%p:%p:%p", module, nClassStyle, hCursor, hbrBackground, hIcon);

    WNDCLASS wndClass{};
    wndClass.style = nClassStyle;
    wndClass.lpfnWndProc = ::DefWindowProc;
    wndClass.hInstance = module;
    wndClass.hIcon = hIcon;
    wndClass.hCursor = hCursor;
    wndClass.hbrBackground = hbrBackground;
    wndClass.lpszClassName = name;
    if (!::AfxRegisterClass(&wndClass))
        ::AfxThrowResourceException();
    return KeepName(name);
}
