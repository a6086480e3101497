#include "demo/script/CInput.h"

namespace demo
{
namespace
{

/** The visible, enabled window at a point of the screen, inside a main window. */
HWND WindowAt(HWND main, POINT screen)
{
    HWND at = main;
    for (;;) {
        POINT point = screen;
        ::ScreenToClient(at, &point);
        const HWND child = ::ChildWindowFromPointEx(at, point, CWP_SKIPINVISIBLE | CWP_SKIPDISABLED);
        if (!child || child == at)
            return child ? at : nullptr;
        at = child;
    }
}

/** What comes with a key's message: one repetition and the key's scan code. */
LPARAM KeyData(UINT key)
{
    return 1 | static_cast<LPARAM>(::MapVirtualKeyW(key, MAPVK_VK_TO_VSC)) << 16;
}

} // namespace

void CInput::Click(CWnd& wnd)
{
    CRect client;
    wnd.GetClientRect(&client);
    Click(wnd, client.CenterPoint());
}

void CInput::Key(UINT key, int times)
{
    for (int i = 0; i < times; ++i)
        m_queue.push_back(Stroke{key});
}

void CInput::Empty(CWnd& field)
{
    constexpr int longestText = 8; // of the fields that a script empties
    Click(field);
    Key(VK_END);
    Key(VK_BACK, longestText);
}

void CInput::Type(std::wstring_view text)
{
    for (const wchar_t c : text)
        m_queue.push_back(c);
}

bool CInput::Move()
{
    if (m_queue.empty())
        return false;
    if (std::visit([this](const auto& action) { return Do(action); }, m_queue.front()))
        m_queue.pop_front();
    return true;
}

bool CInput::Do(const Press& press) const
{
    POINT screen = press.point;
    press.wnd->ClientToScreen(&screen);
    const HWND wnd = WindowAt(m_main.m_hWnd, screen);
    if (!wnd || (wnd != press.wnd->m_hWnd && !::IsChild(press.wnd->m_hWnd, wnd)))
        return false;
    POINT point = screen;
    ::ScreenToClient(wnd, &point);
    const LPARAM at = MAKELPARAM(point.x, point.y);
    ::PostMessageW(wnd, WM_MOUSEMOVE, 0, at);
    ::PostMessageW(wnd, WM_LBUTTONDOWN, MK_LBUTTON, at);
    ::PostMessageW(wnd, WM_LBUTTONUP, 0, at);
    return true;
}

bool CInput::Do(const Stroke& stroke)
{
    constexpr LPARAM released = static_cast<LPARAM>(0xC0000000U); // the key was down and is going up
    const HWND focus = ::GetFocus();
    if (!focus)
        return false;
    ::PostMessageW(focus, WM_KEYDOWN, stroke.key, KeyData(stroke.key));
    ::PostMessageW(focus, WM_KEYUP, stroke.key, KeyData(stroke.key) | released);
    return true;
}

bool CInput::Do(wchar_t character)
{
    const HWND focus = ::GetFocus();
    if (!focus)
        return false;
    ::PostMessageW(focus, WM_CHAR, character, 1);
    return true;
}

} // namespace demo
