#include "demo/script/CInput.h"

namespace demo
{
namespace
{

/** Turns the wheel over the window that has scrolled a point of `wnd` out of sight. */
void ScrollTowards(const CWnd& wnd, POINT screen)
{
    RECT seen{};
    const HWND parent = ::GetParent(wnd.m_hWnd);
    ::GetWindowRect(parent, &seen);
    const int notches = screen.y < seen.top ? 1 : screen.y >= seen.bottom ? -1 : 0;
    if (notches != 0)
        ::PostMessageW(parent, WM_MOUSEWHEEL, MAKEWPARAM(0, notches * WHEEL_DELTA),
                       MAKELPARAM(seen.left, seen.top));
}

/** What comes with a key's message: one repetition and the key's scan code. */
LPARAM KeyData(UINT key)
{
    return 1 | static_cast<LPARAM>(::MapVirtualKeyW(key, MAPVK_VK_TO_VSC)) << 16;
}

} // namespace

HWND CInput::WindowAt(HWND top, POINT screen)
{
    HWND at = top;
    for (;;) {
        POINT point = screen;
        ::ScreenToClient(at, &point);
        const HWND child = ::ChildWindowFromPointEx(at, point, CWP_SKIPINVISIBLE | CWP_SKIPDISABLED);
        if (!child || child == at)
            return child ? at : nullptr;
        at = child;
    }
}

void CInput::Click(CWnd& wnd)
{
    CRect client;
    wnd.GetClientRect(&client);
    Click(wnd, client.CenterPoint());
}

void CInput::Key(UINT key, int times)
{
    for (int i = 0; i < times; ++i)
        m_queue.push_back(Pushed{key});
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
    if (std::visit([](const auto& action) { return Do(action); }, m_queue.front()))
        m_queue.pop_front();
    return true;
}

bool CInput::Do(const Press& press)
{
    POINT screen = press.from;
    press.wnd->ClientToScreen(&screen);
    const HWND wnd = WindowAt(::GetAncestor(press.wnd->m_hWnd, GA_ROOT), screen);
    if (!wnd || (wnd != press.wnd->m_hWnd && !::IsChild(press.wnd->m_hWnd, wnd))) {
        ScrollTowards(*press.wnd, screen);
        return false;
    }
    POINT points[] = {press.from, press.to};
    ::MapWindowPoints(press.wnd->m_hWnd, wnd, points, 2);
    const LPARAM from = MAKELPARAM(points[0].x, points[0].y);
    const LPARAM to = MAKELPARAM(points[1].x, points[1].y);
    const bool isLeft = press.button == Button::Left;
    const WPARAM held = isLeft ? MK_LBUTTON : MK_RBUTTON;
    ::PostMessageW(wnd, WM_MOUSEMOVE, 0, from);
    ::PostMessageW(wnd, isLeft ? WM_LBUTTONDOWN : WM_RBUTTONDOWN, held, from);
    if (to != from)
        ::PostMessageW(wnd, WM_MOUSEMOVE, held, to);
    ::PostMessageW(wnd, isLeft ? WM_LBUTTONUP : WM_RBUTTONUP, 0, to);
    ::PostMessageW(wnd, WM_MOUSELEAVE, 0, 0); // the hand goes on to the next thing
    return true;
}

bool CInput::Do(const Turn& turn)
{
    CRect place;
    turn.wnd->GetWindowRect(&place);
    const CPoint middle = place.CenterPoint();
    ::PostMessageW(turn.wnd->m_hWnd, WM_MOUSEWHEEL, MAKEWPARAM(0, turn.notches * WHEEL_DELTA),
                   MAKELPARAM(middle.x, middle.y));
    return true;
}

bool CInput::Do(const Rest& rest)
{
    CRect place;
    rest.wnd->GetWindowRect(&place);
    const CPoint middle = place.CenterPoint();
    if (::WindowFromPoint(middle) == rest.wnd->m_hWnd)
        return ::SetCursorPos(middle.x, middle.y) != FALSE;
    ScrollTowards(*rest.wnd, middle);
    return false;
}

bool CInput::Stroke(UINT key)
{
    constexpr LPARAM released = static_cast<LPARAM>(0xC0000000U); // the key was down and is going up
    const HWND focus = ::GetFocus();
    if (!focus)
        return false;
    ::PostMessageW(focus, WM_KEYDOWN, key, KeyData(key));
    ::PostMessageW(focus, WM_KEYUP, key, KeyData(key) | released);
    return true;
}

bool CInput::Letter(wchar_t character)
{
    const HWND focus = ::GetFocus();
    if (!focus)
        return false;
    ::PostMessageW(focus, WM_CHAR, character, 1);
    return true;
}

} // namespace demo
