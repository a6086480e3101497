// MenuTracker: opening, closing, and the loop in between.
#include "controls/detail/MenuTracker.h"

#include "controls/CEMenu.h"
#include "controls/detail/DropRect.h"
#include "controls/detail/WorkArea.h"

#include <algorithm>

namespace vant::detail
{

namespace
{

constexpr UINT watchPeriod = 100; // milliseconds

// The menu that is open: one at a time, as there is one mouse.
MenuTracker* tracking = nullptr;

} // namespace

MenuTracker::MenuTracker(CEMenu& menu, HWND owner)
    : m_owner(owner)
    , m_active(::GetActiveWindow())
    , m_dpi(CDpi::Of(owner))
{
    tracking = this;
    m_open.push_back(&menu);
    ::GetCursorPos(&m_start);
}

MenuTracker::~MenuTracker()
{
    CloseAll();
}

CEMEnt* MenuTracker::Track(CEMenu& menu, const CRect& beside, bool isPoint, HWND owner)
{
    if (tracking || menu.IsEmpty())
        return nullptr;
    MenuTracker tracker(menu, owner);
    if (tracker.OpenRoot(beside, isPoint))
        tracker.Loop();
    return tracker.m_chosen;
}

void MenuTracker::Cancel(const CEMenu& menu)
{
    if (tracking &&
        std::find(tracking->m_open.begin(), tracking->m_open.end(), &menu) != tracking->m_open.end())
        tracking->CloseAll();
}

/** Makes the rows of a menu that is to open. @return its size, pixels */
CSize MenuTracker::PrepareSize(CEMenu& menu) const
{
    menu.Prepare();
    return m_dpi.ToPx(CRect(CPoint(0, 0), menu.Size(m_dpi))).Size();
}

bool MenuTracker::OpenRoot(const CRect& beside, bool isPoint)
{
    // What was being dragged is let go of.
    ::ReleaseCapture();
    CEMenu& menu = *m_open.front();
    const CSize size = PrepareSize(menu);
    const CRect area = WorkArea(beside.CenterPoint());
    const int height = std::min<int>(size.cy, area.Height());
    CRect place =
        PlaceDrop(beside, area, Side::Below, {height, std::max<int>(size.cx, beside.Width()), height});
    // Not under the mouse, as far as there is room beside it.
    if (isPoint && beside.left + size.cx > area.right && beside.left - size.cx >= area.left)
        place.OffsetRect(beside.left - place.right, 0);
    if (!isPoint)
        m_beside = beside;
    if (!menu.OpenAt(place, m_owner, m_dpi))
        return false;
    menu.SetTimer(watchTimer, watchPeriod);
    return true;
}

/** Opens the sub-menu of the current row of a menu. @param select  its first entry becomes current */
void MenuTracker::OpenSub(std::size_t level, bool select)
{
    CEMenu& menu = *m_open[level];
    const CEMEnt* const ent = menu.EntOf(menu.m_current);
    if (!ent || !ent->sub || !ent->enabled || ent->sub->IsEmpty())
        return;
    const bool isOpen = m_open.size() > level + 1 && m_open[level + 1] == ent->sub.get();
    if (!isOpen && !OpenBeside(level, *ent->sub))
        return;
    if (select)
        Step(-1, 1);
}

/** Opens a menu beside the current row of another one, in place of what that has opened. */
bool MenuTracker::OpenBeside(std::size_t level, CEMenu& sub)
{
    CloseTo(level + 1);
    const CSize size = PrepareSize(sub);
    CEMenu& menu = *m_open[level];
    CRect row = menu.RowRc(menu.m_current);
    row.InflateRect(0, CEMenu::frameW);
    row = m_dpi.ToPx(row);
    menu.ClientToScreen(&row);
    const CRect area = WorkArea(row.CenterPoint());
    const CRect place =
        PlaceDrop(row, area, m_side, {size.cx, std::min<int>(size.cy, area.Height()), size.cx});
    // Sub-menus of sub-menus go on in the same direction.
    if (place.left >= row.right)
        m_side = Side::Right;
    else if (place.right <= row.left)
        m_side = Side::Left;
    if (!sub.OpenAt(place, m_owner, m_dpi))
        return false;
    m_open.push_back(&sub);
    return true;
}

void MenuTracker::CloseTo(std::size_t levels)
{
    while (m_open.size() > levels) {
        m_open.back()->DestroyWindow();
        m_open.pop_back();
    }
}

void MenuTracker::CloseAll()
{
    if (tracking == this)
        tracking = nullptr;
    CloseTo(0);
}

void MenuTracker::Loop()
{
    MSG msg;
    while (!m_open.empty()) {
        const BOOL got = ::GetMessageW(&msg, nullptr, 0, 0);
        if (got <= 0) {
            CloseAll();
            if (!got)
                ::PostQuitMessage(static_cast<int>(msg.wParam));
            return;
        }
        // The owner's window may have gone with the message before, and the menus' with it.
        if (!m_open.empty() && !m_open.front()->m_hWnd)
            CloseAll();
        // What closes the menu from outside gets its message.
        if ((!m_open.empty() && Takes(msg)) || AfxGetThread()->PreTranslateMessage(&msg))
            continue;
        ::TranslateMessage(&msg);
        ::DispatchMessageW(&msg);
    }
}

} // namespace vant::detail
