// A plain program of the system that uses windows of the library: its entry point stays its own, and there is
// no application object. Its exit code is 0 when all went well.
#include <afxwin.h>

int WINAPI WinMain(HINSTANCE instance, HINSTANCE previous, LPSTR, int showCommand)
{
    if (!::AfxWinInit(instance, previous, ::GetCommandLineW(), showCommand))
        return 1;
    CWnd window;
    if (!window.CreateEx(0, ::AfxRegisterWndClass(0), L"window", WS_POPUP, CRect(0, 0, 9, 9), nullptr, 0))
        return 2;
    const bool without = ::AfxGetApp() == nullptr && ::AfxGetMainWnd() == nullptr;
    return without && window.DestroyWindow() ? 0 : 3;
}
