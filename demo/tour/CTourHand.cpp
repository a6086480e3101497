#include "demo/tour/CTourHand.h"

#include "demo/script/CInput.h"
#include "demo/script/Find.h"

#include <cmath>

namespace demo
{
namespace
{

/** @name Seconds from one deed to the next, as of a calm user @{ */
constexpr double letterPace = 0.16;
constexpr double keyPace = 0.06;
constexpr double notchPace = 0.3;
constexpr double clickPace = 0.12;
/** @} */

CPoint PixelOf(Point at)
{
    return {static_cast<int>(std::lround(at.x)), static_cast<int>(std::lround(at.y))};
}

} // namespace

void CTourHand::Reach(const CWnd& wnd)
{
    Reach(wnd, [&wnd] { return Middle(wnd); });
}

void CTourHand::Click(const CWnd& wnd)
{
    Click(wnd, [&wnd] { return Middle(wnd); });
}

void CTourHand::Click(const CWnd& wnd, Where where)
{
    Reach(wnd, std::move(where));
    Press();
    Release();
}

void CTourHand::Turn(int notches)
{
    for (int i = 0; i < std::abs(notches); ++i)
        m_queue.emplace_back(Notch{notches > 0 ? 1 : -1});
}

void CTourHand::Key(UINT key, int times)
{
    for (int i = 0; i < times; ++i)
        m_queue.emplace_back(Stroke{key});
}

void CTourHand::Type(std::wstring_view text)
{
    for (const wchar_t c : text)
        m_queue.emplace_back(c);
}

void CTourHand::Step(double t)
{
    if (m_queue.empty() || t < m_ready)
        return;
    if (std::visit([&](const auto& deed) { return Do(deed, t); }, m_queue.front())) {
        m_queue.pop_front();
        m_moving = false;
    }
}

bool CTourHand::Do(const Way& way, double t)
{
    CPoint to = way.where();
    way.wnd->ClientToScreen(&to);
    const Point target{static_cast<double>(to.x), static_cast<double>(to.y)};
    if (!m_moving)
        m_glide = Glide::Between(m_at, target, t);
    m_moving = true;
    m_glide.to = target;
    m_at = m_glide.At(t);
    m_over = way.wnd;
    return m_glide.IsOver(t);
}

bool CTourHand::Do(const Down&, double t)
{
    const HWND wnd = CInput::WindowAt(::GetAncestor(m_over->m_hWnd, GA_ROOT), PixelOf(m_at));
    if (!wnd || (wnd != m_over->m_hWnd && !::IsChild(m_over->m_hWnd, wnd)))
        return false; // it is covered for now
    m_held = wnd;
    m_pressedAt = t;
    m_ready = t + clickPace;
    Post(WM_MOUSEMOVE, 0);
    Post(WM_LBUTTONDOWN, MK_LBUTTON);
    return true;
}

bool CTourHand::Do(const Move& move, double t)
{
    if (!m_moving)
        m_glide = {m_at, {m_at.x + move.by.cx, m_at.y + move.by.cy}, t, move.seconds};
    m_moving = true;
    m_at = m_glide.At(t);
    Post(WM_MOUSEMOVE, MK_LBUTTON);
    return m_glide.IsOver(t);
}

bool CTourHand::Do(const Up&, double t)
{
    Post(WM_LBUTTONUP, 0);
    Post(WM_MOUSELEAVE, 0);
    m_held = nullptr;
    m_ready = t + clickPace;
    return true;
}

bool CTourHand::Do(const Notch& notch, double t)
{
    const CPoint at = PixelOf(m_at);
    ::PostMessageW(m_over->m_hWnd, WM_MOUSEWHEEL, MAKEWPARAM(0, notch.direction * WHEEL_DELTA),
                   MAKELPARAM(at.x, at.y));
    m_ready = t + notchPace;
    return true;
}

bool CTourHand::Do(const Stroke& stroke, double t)
{
    m_ready = t + keyPace;
    return CInput::Stroke(stroke.key);
}

bool CTourHand::Do(wchar_t character, double t)
{
    m_ready = t + letterPace;
    return CInput::Letter(character);
}

/** Sends the window that has the button a message of the mouse. */
void CTourHand::Post(UINT message, WPARAM held) const
{
    CPoint at = PixelOf(m_at);
    ::ScreenToClient(m_held, &at);
    ::PostMessageW(m_held, message, held, message == WM_MOUSELEAVE ? 0 : MAKELPARAM(at.x, at.y));
}

} // namespace demo
