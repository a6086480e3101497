#include "controls/WndTools.h"

#include "support/MessagePump.h"

using vant::test::PumpPending;

namespace
{

constexpr LPARAM once = 1;
constexpr LPARAM wasDown = 1 << 30;
constexpr LPARAM released = static_cast<LPARAM>(0xC0000000u);

COLORREF PixelIn(HWND window, HDC dc, int x, int y)
{
    const COLORREF colour = ::GetPixel(dc, x, y);
    ::ReleaseDC(window, dc);
    return colour;
}

} // namespace

void Send(CWnd& wnd, UINT message, WPARAM flags, int x, int y)
{
    wnd.SendMessage(message, flags, MAKELPARAM(x, y));
}

void Press(CWnd& wnd, int x, int y)
{
    Send(wnd, WM_LBUTTONDOWN, MK_LBUTTON, x, y);
}

void Release(CWnd& wnd, int x, int y)
{
    Send(wnd, WM_LBUTTONUP, 0, x, y);
}

void Click(CWnd& wnd, int x, int y)
{
    Press(wnd, x, y);
    Release(wnd, x, y);
}

void KeyDown(CWnd& wnd, UINT key, bool repeated)
{
    wnd.SendMessage(WM_KEYDOWN, key, repeated ? once | wasDown : once);
}

void KeyUp(CWnd& wnd, UINT key)
{
    wnd.SendMessage(WM_KEYUP, key, once | released);
}

HeldKeys::HeldKeys(const std::vector<UINT>& keys, BYTE state)
{
    ::GetKeyboardState(m_before);
    BYTE now[256] = {};
    for (const UINT key : keys)
        now[key] = state;
    ::SetKeyboardState(now);
}

HeldKeys::~HeldKeys()
{
    ::SetKeyboardState(m_before);
}

void PressKey(HWND window, UINT virtualKey, const std::vector<UINT>& held)
{
    const HeldKeys keys(held);
    const LPARAM scanCode = static_cast<LPARAM>(::MapVirtualKeyW(virtualKey, MAPVK_VK_TO_VSC)) << 16;
    ::PostMessageW(window, WM_KEYDOWN, virtualKey, scanCode | once);
    PumpPending();
    ::PostMessageW(window, WM_KEYUP, virtualKey, scanCode | once | released);
    PumpPending();
}

void PressKey(UINT virtualKey)
{
    PressKey(::GetFocus(), virtualKey);
}

void Type(HWND window, const std::wstring& characters)
{
    for (const wchar_t character : characters)
        ::PostMessageW(window, WM_CHAR, character, once);
    PumpPending();
}

COLORREF PixelOf(HWND window, int x, int y)
{
    ::UpdateWindow(window);
    return PixelIn(window, ::GetDC(window), x, y);
}

COLORREF FramePixelOf(HWND window, int x, int y)
{
    ::UpdateWindow(window);
    return PixelIn(window, ::GetWindowDC(window), x, y);
}

std::wstring TextOf(const CWnd& window)
{
    CString text;
    window.GetWindowText(text);
    return static_cast<LPCWSTR>(text);
}

CRect ScreenPlaceOf(const CWnd& wnd)
{
    CRect place;
    wnd.GetWindowRect(&place);
    return place;
}

CRect PlaceOf(const CWnd& child)
{
    CRect place = ScreenPlaceOf(child);
    ::MapWindowPoints(nullptr, ::GetParent(child.m_hWnd), reinterpret_cast<POINT*>(&place), 2);
    return place;
}

bool IsShown(const CWnd& wnd)
{
    return (wnd.GetStyle() & WS_VISIBLE) != 0;
}
