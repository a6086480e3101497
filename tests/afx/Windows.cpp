// A module of its own that makes windows and asks for others'.
#include <afxwin.h>

namespace
{

class Doubler : public CWnd
{
protected:
    LRESULT OnDouble(WPARAM w, LPARAM) { return static_cast<LRESULT>(w * 2); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Doubler, CWnd)
    ON_MESSAGE(WM_APP, &Doubler::OnDouble)
END_MESSAGE_MAP()

} // namespace

extern "C" __declspec(dllexport) CWnd* ObjectOf(HWND window)
{
    return CWnd::FromHandlePermanent(window);
}

extern "C" __declspec(dllexport) CWnd* OpenWindow()
{
    auto* window = new Doubler;
    window->CreateEx(0, ::AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 9, 9), nullptr, 0);
    return window;
}
