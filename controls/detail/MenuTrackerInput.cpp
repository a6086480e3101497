// MenuTracker: mouse, keyboard and timers.
#include "controls/detail/MenuTracker.h"

#include "controls/CEMenu.h"
#include "controls/detail/Accel.h"
#include "controls/detail/MouseMessages.h"

#include <algorithm>
#include <cstdlib>

namespace vant::detail
{

namespace
{

constexpr UINT scrollPeriod = 60; // milliseconds

/** How long the mouse rests on an entry before its sub-menu opens, milliseconds. */
UINT SubDelay()
{
    DWORD delay = 400;
    ::SystemParametersInfoW(SPI_GETMENUSHOWDELAY, 0, &delay, 0);
    return std::max(static_cast<UINT>(delay), UINT{USER_TIMER_MINIMUM});
}

bool IsMove(UINT message) noexcept
{
    return message == WM_MOUSEMOVE || message == WM_NCMOUSEMOVE;
}

bool IsRelease(UINT message) noexcept
{
    switch (message) {
    case WM_LBUTTONUP:
    case WM_RBUTTONUP:
    case WM_MBUTTONUP:
    case WM_XBUTTONUP:
    case WM_NCLBUTTONUP:
    case WM_NCRBUTTONUP:
    case WM_NCMBUTTONUP:
    case WM_NCXBUTTONUP:
        return true;
    default:
        return false;
    }
}

/** Where a message of the mouse took place, on the screen. */
CPoint PlaceOf(const MSG& msg)
{
    CPoint at(static_cast<short>(LOWORD(msg.lParam)), static_cast<short>(HIWORD(msg.lParam)));
    const bool isClient = msg.message >= WM_MOUSEFIRST && msg.message <= WM_MOUSELAST &&
                          msg.message != WM_MOUSEWHEEL && msg.message != WM_MOUSEHWHEEL;
    if (isClient)
        ::ClientToScreen(msg.hwnd, &at);
    return at;
}

wchar_t FirstLetter(const CString& text)
{
    return text.IsEmpty() ? L'\0' : text.Left(1).MakeUpper().GetAt(0);
}

} // namespace

/** Whether the window that the menu belongs to is still the one in use. */
bool MenuTracker::IsThere() const
{
    return ::GetActiveWindow() == m_active && (!m_owner || ::IsWindowVisible(m_owner));
}

/** Uses up a message that is the menu's. */
bool MenuTracker::Takes(const MSG& msg)
{
    const UINT message = msg.message;
    if (message == WM_TIMER && msg.hwnd == m_open.front()->m_hWnd) {
        OnTimer(msg.wParam);
        return true;
    }
    if (IsMove(message)) {
        OnMove(PlaceOf(msg));
        return true;
    }
    if (IsMousePress(message))
        return OnPress(PlaceOf(msg));
    if (IsRelease(message)) {
        OnRelease(PlaceOf(msg));
        return true;
    }
    if (message == WM_MOUSEWHEEL) {
        OnWheel(static_cast<short>(HIWORD(msg.wParam)));
        return true;
    }
    if (message == WM_KEYDOWN || message == WM_SYSKEYDOWN) {
        // Letters come as characters.
        ::TranslateMessage(&msg);
        OnKey(static_cast<UINT>(msg.wParam));
        return true;
    }
    if (message == WM_CHAR || message == WM_SYSCHAR) {
        OnLetter(static_cast<wchar_t>(msg.wParam));
        return true;
    }
    return message >= WM_KEYFIRST && message <= WM_KEYLAST;
}

void MenuTracker::OnTimer(UINT_PTR timer)
{
    CPoint at;
    ::GetCursorPos(&at);
    switch (timer) {
    case watchTimer:
        if (!IsThere())
            CloseAll();
        break;
    case settleTimer:
        m_open.front()->KillTimer(settleTimer);
        if (const std::size_t level = LevelAt(at); level < m_open.size())
            Settle(level);
        break;
    case scrollTimer:
        ScrollAt(at);
        break;
    default:
        break;
    }
}

CPoint MenuTracker::Units(std::size_t level, CPoint at) const
{
    m_open[level]->ScreenToClient(&at);
    return m_dpi.ToUnits(at);
}

std::size_t MenuTracker::LevelAt(CPoint at) const
{
    // The one that opened last is on top.
    for (std::size_t level = m_open.size(); level-- > 0;) {
        CRect place;
        m_open[level]->GetWindowRect(&place);
        if (place.PtInRect(at))
            return level;
    }
    return m_open.size();
}

int MenuTracker::RowAt(std::size_t level, CPoint at) const
{
    return m_open[level]->m_rows.RowAt(Units(level, at).y - CEMenu::frameW);
}

void MenuTracker::OnMove(CPoint at)
{
    const CPoint way = at - m_start;
    if (std::abs(way.x) >= ::GetSystemMetrics(SM_CXDRAG) || std::abs(way.y) >= ::GetSystemMetrics(SM_CYDRAG))
        m_armed = true;
    const std::size_t level = LevelAt(at);
    if (level == m_open.size())
        return;
    CEMenu& menu = *m_open[level];
    if (menu.m_rows.ArrowAt(Units(level, at).y - CEMenu::frameW)) {
        m_open.front()->SetTimer(scrollTimer, scrollPeriod);
        return;
    }
    MarkWayTo(level);
    const int row = RowAt(level, at);
    const CEMEnt* const ent = menu.EntOf(row);
    if (!ent || ent->IsSeparator() || row == menu.m_current)
        return;
    menu.SetCurrent(row);
    m_open.front()->SetTimer(settleTimer, SubDelay());
}

/** Makes the entries current that have led to a menu: on its way there the mouse comes by others. */
void MenuTracker::MarkWayTo(std::size_t level)
{
    for (std::size_t outer = 0; outer < level; ++outer) {
        CEMenu& menu = *m_open[outer];
        for (int row = 0; row < menu.m_rows.Count(); ++row) {
            if (menu.EntOf(row)->sub.get() == m_open[outer + 1])
                menu.SetCurrent(row);
        }
    }
}

/** Opens the sub-menu of the entry that the mouse rests on, and closes those of others. */
void MenuTracker::Settle(std::size_t level)
{
    const CEMenu& menu = *m_open[level];
    const CEMEnt* const ent = menu.EntOf(menu.m_current);
    const bool isOpen = ent && ent->sub && m_open.size() > level + 1 && m_open[level + 1] == ent->sub.get();
    if (isOpen)
        return;
    CloseTo(level + 1);
    OpenSub(level, false);
}

void MenuTracker::ScrollAt(CPoint at)
{
    const std::size_t level = LevelAt(at);
    CEMenu* const menu = level < m_open.size() ? m_open[level] : nullptr;
    const int by = menu ? menu->m_rows.ArrowAt(Units(level, at).y - CEMenu::frameW) : 0;
    if (!by) {
        m_open.front()->KillTimer(scrollTimer);
        return;
    }
    CloseTo(level + 1);
    if (menu->m_rows.ScrollTo(menu->m_rows.First() + by))
        menu->Invalidate(FALSE);
}

/** The button went down. @return whether that was meant for the menu */
bool MenuTracker::OnPress(CPoint at)
{
    const std::size_t level = LevelAt(at);
    if (level == m_open.size()) {
        const bool isButton = m_beside.PtInRect(at) != FALSE;
        CloseAll();
        return isButton;
    }
    m_armed = true;
    OnMove(at);
    Settle(level);
    return true;
}

void MenuTracker::OnRelease(CPoint at)
{
    const std::size_t level = LevelAt(at);
    if (!m_armed || level == m_open.size())
        return;
    const CEMEnt* const ent = m_open[level]->EntOf(RowAt(level, at));
    if (!ent || ent != m_open[level]->EntOf(m_open[level]->m_current))
        return;
    if (ent->sub)
        return Settle(level);
    CloseTo(level + 1);
    Activate();
}

void MenuTracker::OnWheel(int delta)
{
    const int rows = m_wheel.Take(delta);
    if (rows && Innermost().m_rows.ScrollTo(Innermost().m_rows.First() - rows))
        Innermost().Invalidate(FALSE);
}

/** Makes the next entry behind a row, or before it, the current one; lines are passed over, and after the
 * last one comes the first. */
void MenuTracker::Step(int from, int by)
{
    CEMenu& menu = Innermost();
    const int count = menu.m_rows.Count();
    int row = from;
    for (int tried = 0; tried < count; ++tried) {
        row += by;
        if (row < 0)
            row = count - 1;
        else if (row >= count)
            row = 0;
        if (!menu.EntOf(row)->IsSeparator())
            return menu.SetCurrent(row);
    }
}

/** Chooses the current entry, or opens its sub-menu. */
void MenuTracker::Activate()
{
    CEMenu& menu = Innermost();
    CEMEnt* const ent = menu.EntOf(menu.m_current);
    if (!ent)
        return;
    if (ent->sub)
        return OpenSub(m_open.size() - 1, true);
    if (!ent->IsChoosable())
        return;
    m_chosen = ent;
    CloseAll();
}

void MenuTracker::OnKey(UINT key)
{
    const CEMenu& menu = Innermost();
    const int count = menu.m_rows.Count();
    switch (key) {
    case VK_DOWN:
        return Step(menu.m_current, 1);
    case VK_UP:
        return Step(menu.m_current < 0 ? count : menu.m_current, -1);
    case VK_HOME:
    case VK_PRIOR:
        return Step(-1, 1);
    case VK_END:
    case VK_NEXT:
        return Step(count, -1);
    case VK_RIGHT:
        return OpenSub(m_open.size() - 1, true);
    case VK_LEFT:
        if (m_open.size() > 1)
            CloseTo(m_open.size() - 1);
        return;
    case VK_ESCAPE:
        if (m_open.size() > 1)
            CloseTo(m_open.size() - 1);
        else
            CloseAll();
        return;
    case VK_RETURN:
        return Activate();
    case VK_MENU:
    case VK_F10:
        return CloseAll();
    default:
        return;
    }
}

void MenuTracker::OnLetter(wchar_t letter)
{
    if (m_open.empty() || letter <= L' ')
        return;
    CEMenu& menu = Innermost();
    const wchar_t wanted = CString(letter).MakeUpper().GetAt(0);
    std::vector<int> rows;
    for (int row = 0; row < menu.m_rows.Count(); ++row) {
        const CString label = menu.EntOf(row)->Label();
        const wchar_t mnemonic =
            MnemonicOf(std::wstring_view(label, static_cast<std::size_t>(label.GetLength())));
        if ((mnemonic ? mnemonic : FirstLetter(label)) == wanted)
            rows.push_back(row);
    }
    if (rows.empty())
        return;
    const auto behind = std::find_if(rows.begin(), rows.end(), [&](int row) { return row > menu.m_current; });
    menu.SetCurrent(behind != rows.end() ? *behind : rows.front());
    if (rows.size() == 1)
        Activate();
}

} // namespace vant::detail
