#include "controls/detail/ScrollStrip.h"
#include "windows/CConsole.h"

#include <algorithm>

/** @file
 *  Mouse and keyboard of a console. */

namespace
{

using vant::detail::ScrollStrip;

constexpr int columnStep = 8;

/** How many rows a notch of the wheel scrolls, as the user has it. */
int WheelRows(int page)
{
    UINT lines = 3;
    ::SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    return static_cast<int>(std::min<UINT>(lines, static_cast<UINT>(page)));
}

bool IsInside(HWND wnd, HWND parent)
{
    return wnd && ::IsChild(parent, wnd);
}

} // namespace

BEGIN_MESSAGE_MAP(CConsole, CVantWnd)
    ON_WM_PAINT()
    ON_WM_SIZE()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_KEYDOWN()
    ON_WM_GETDLGCODE()
    ON_WM_MOUSEWHEEL()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_LBUTTONUP()
    ON_WM_MOUSEMOVE()
    ON_WM_CAPTURECHANGED()
END_MESSAGE_MAP()

BOOL CConsole::PreCreateWindow(CREATESTRUCT& cs)
{
    if (!cs.lpszName || !*cs.lpszName)
        cs.lpszName = title;
    return CVantWnd::PreCreateWindow(cs);
}

BOOL CConsole::PreTranslateMessage(MSG* msg)
{
    if (msg->message == WM_KEYDOWN && msg->wParam == VK_ESCAPE && IsInside(::GetFocus(), m_hWnd)) {
        SetFocus();
        return TRUE;
    }
    return CVantWnd::PreTranslateMessage(msg);
}

void CConsole::LayoutWnd(int quiet)
{
    ArrangeLevels();
    CVantWnd::LayoutWnd(quiet);
    SyncPage();
    // The entries move with the section above them.
    if (m_hWnd)
        Invalidate(FALSE);
}

/** Adapts the page to the room; a list that is at its end stays there. */
void CConsole::SyncPage()
{
    m_scroll.SetPage(ListRc().Height() / RowH());
    if (m_follow)
        m_scroll.ScrollTo(m_scroll.MaxFirst());
}

void CConsole::OnSize(UINT type, int cx, int cy)
{
    CVantWnd::OnSize(type, cx, cy);
    SyncPage();
    RedrawList();
}

void CConsole::OnSetFocus(CWnd* old)
{
    CVantWnd::OnSetFocus(old);
    RedrawList();
}

void CConsole::OnKillFocus(CWnd* other)
{
    CVantWnd::OnKillFocus(other);
    RedrawList();
}

UINT CConsole::OnGetDlgCode()
{
    return CVantWnd::OnGetDlgCode() | DLGC_WANTARROWS;
}

/** Scrolls for the user. @return whether anything moved */
bool CConsole::ScrollList(int first)
{
    const int before = m_scroll.First();
    m_scroll.ScrollTo(first);
    m_follow = m_scroll.AtEnd();
    if (m_scroll.First() == before)
        return false;
    RedrawList();
    return true;
}

void CConsole::ShowLine(int line)
{
    const int before = m_scroll.First();
    m_scroll.Show(line);
    if (m_scroll.First() != before)
        RedrawList();
}

bool CConsole::ShiftColumns(int columns)
{
    int longest = 0;
    for (const CECEntry& line : Lines())
        longest = std::max(longest, line.text.GetLength());
    const int column = std::clamp(m_column + columns, 0, std::max(longest - 1, 0) / columnStep * columnStep);
    if (column == m_column)
        return false;
    m_column = column;
    RedrawList();
    return true;
}

bool CConsole::OnListKey(UINT key)
{
    switch (key) {
    case VK_UP:
        return ScrollList(m_scroll.First() - 1);
    case VK_DOWN:
        return ScrollList(m_scroll.First() + 1);
    case VK_PRIOR:
        return ScrollList(m_scroll.First() - m_scroll.Page());
    case VK_NEXT:
        return ScrollList(m_scroll.First() + m_scroll.Page());
    case VK_HOME:
        return ScrollList(0);
    case VK_END:
        return ScrollList(m_scroll.MaxFirst());
    case VK_LEFT:
        return ShiftColumns(-columnStep);
    case VK_RIGHT:
        return ShiftColumns(columnStep);
    default:
        return false;
    }
}

void CConsole::OnKeyDown(UINT key, UINT repeats, UINT flags)
{
    if (!OnListKey(key))
        CVantWnd::OnKeyDown(key, repeats, flags);
}

BOOL CConsole::OnMouseWheel(UINT flags, short delta, CPoint point)
{
    CPoint at = point;
    ScreenToClient(&at);
    const bool overList = ListRc().PtInRect(Dpi().ToUnits(at));
    m_wheelRest += delta;
    const int notches = m_wheelRest / WHEEL_DELTA;
    if (overList && (flags & MK_SHIFT)) {
        m_wheelRest -= notches * WHEEL_DELTA;
        ShiftColumns(-notches * columnStep);
        return TRUE;
    }
    if (overList && m_scroll.MaxFirst() > 0) {
        m_wheelRest -= notches * WHEEL_DELTA;
        ScrollList(m_scroll.First() - notches * WheelRows(m_scroll.Page()));
        return TRUE;
    }
    m_wheelRest = 0;
    return CVantWnd::OnMouseWheel(flags, delta, point);
}

/** The left button went down; `twice`: for the second time in a double click. */
void CConsole::Press(CPoint point, bool twice)
{
    if (::GetFocus() != m_hWnd)
        SetFocus();
    const CRect bar = BarRc();
    if (!bar.PtInRect(point)) {
        const int line = LineAt(point);
        if (line >= 0)
            OnLineClick(line, point - RowRc(line).TopLeft(), twice);
        return;
    }
    const auto thumb = m_scroll.Thumb(bar.Height(), ScrollStrip::leastThumb);
    const int at = point.y - bar.top;
    if (at < thumb.from) {
        ScrollList(m_scroll.First() - m_scroll.Page());
    } else if (at >= thumb.from + thumb.length) {
        ScrollList(m_scroll.First() + m_scroll.Page());
    } else {
        m_grip = at - thumb.from;
        SetCapture();
        RedrawList();
    }
}

void CConsole::OnLineClick(int, CPoint, bool) {}

void CConsole::OnLButtonDown(UINT, CPoint point)
{
    Press(Dpi().ToUnits(point), false);
}

void CConsole::OnLButtonDblClk(UINT, CPoint point)
{
    Press(Dpi().ToUnits(point), true);
}

void CConsole::OnLButtonUp(UINT flags, CPoint point)
{
    if (m_grip >= 0)
        ::ReleaseCapture();
    else
        CVantWnd::OnLButtonUp(flags, point);
}

void CConsole::OnMouseMove(UINT flags, CPoint point)
{
    if (m_grip < 0)
        return CVantWnd::OnMouseMove(flags, point);
    const CRect bar = BarRc();
    ScrollList(
        m_scroll.FirstAt(Dpi().ToUnits(point).y - bar.top - m_grip, bar.Height(), ScrollStrip::leastThumb));
}

void CConsole::OnCaptureChanged(CWnd* other)
{
    m_grip = -1;
    RedrawList();
    CVantWnd::OnCaptureChanged(other);
}
