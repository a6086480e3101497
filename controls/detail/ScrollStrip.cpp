#include "controls/detail/ScrollStrip.h"

#include "controls/CVantWnd.h"
#include "controls/detail/PaintBuffer.h"
#include "platform/Vant.h"

#include <algorithm>

namespace vant::detail
{

namespace
{

CPoint PointOf(LPARAM lParam) noexcept
{
    return {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
}

constexpr int thumbMargin = 2; // to both sides

void DrawThumb(CDC& dc, CRect r, ScrollStrip::Look look)
{
    dc.FillSolidRect(r, look == ScrollStrip::Look::Normal ? Vant::med : Vant::cyan);
    if (look != ScrollStrip::Look::Hover)
        return;
    r.DeflateRect(1, 1);
    dc.FillSolidRect(r, Vant::med);
}

} // namespace

void ScrollStrip::Draw(CDC& dc, const CRect& bar, RowScroll::Span thumb, Look look)
{
    dc.FillSolidRect(bar, Vant::slate);
    DrawThumb(dc,
              {bar.left + thumbMargin, bar.top + thumb.from, bar.right - thumbMargin,
               bar.top + thumb.from + thumb.length},
              look);
}

void ScrollStrip::DrawAcross(CDC& dc, const CRect& bar, RowScroll::Span thumb, Look look)
{
    dc.FillSolidRect(bar, Vant::slate);
    DrawThumb(dc,
              {bar.left + thumb.from, bar.top + thumbMargin, bar.left + thumb.from + thumb.length,
               bar.bottom - thumbMargin},
              look);
}

void ScrollStrip::Show(int content, int page, int first)
{
    const RowScroll before = m_scroll;
    m_scroll.SetRows(content);
    m_scroll.SetPage(page);
    m_scroll.ScrollTo(first);
    SetRoom(m_wnd.Dpi().ToPx(width));
    if (m_scroll != before)
        Redraw();
}

void ScrollStrip::Hide()
{
    if (m_grip >= 0 && ::GetCapture() == m_wnd.m_hWnd)
        ::ReleaseCapture();
    m_grip = -1;
    m_look = Look::Normal;
    SetRoom(0);
}

void ScrollStrip::SetRoom(int px)
{
    if (px == m_room)
        return;
    m_room = px;
    if (m_wnd.m_hWnd)
        m_wnd.SetWindowPos(nullptr, 0, 0, 0, 0,
                           SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void ScrollStrip::TakeRoom(RECT& client)
{
    m_taken = std::clamp(static_cast<int>(client.right - client.left), 0, m_room);
    client.right -= m_taken;
}

/** Where the bar is, pixels of the screen. */
CRect ScrollStrip::ScreenRc() const
{
    CRect r;
    m_wnd.GetClientRect(&r);
    m_wnd.ClientToScreen(&r);
    return {r.right, r.top, r.right + m_taken, r.bottom};
}

int ScrollStrip::Length() const
{
    return m_wnd.ClientRc().Height();
}

int ScrollStrip::UnitsBelowTop(CPoint screen) const
{
    return m_wnd.Dpi().ToUnits(static_cast<int>(screen.y - ScreenRc().top));
}

RowScroll::Span ScrollStrip::Thumb() const
{
    return m_scroll.Thumb(Length(), leastThumb);
}

void ScrollStrip::Redraw()
{
    if (!m_taken)
        return;
    const CRect bar = ScreenRc();
    if (bar.IsRectEmpty())
        return;
    CRect frame;
    m_wnd.GetWindowRect(&frame);
    CWindowDC dc(&m_wnd);
    dc.SetViewportOrg(bar.left - frame.left, bar.top - frame.top);
    const CDpi dpi = m_wnd.Dpi();
    PaintBuffer buffer(dc, bar.Size(), dpi, Vant::slate);
    Draw(buffer.Dc(), CRect(0, 0, dpi.ToUnits(m_taken), Length()), Thumb(), m_look);
    buffer.Show();
}

void ScrollStrip::SetLook(Look look)
{
    if (look == m_look)
        return;
    m_look = look;
    Redraw();
}

void ScrollStrip::Press(int at)
{
    const RowScroll::Span thumb = Thumb();
    if (at >= thumb.from && at < thumb.from + thumb.length) {
        m_wnd.SetCapture();
        m_grip = at - thumb.from;
        SetLook(Look::Held);
        return;
    }
    m_wnd.SendMessage(WM_VSCROLL, at < thumb.from ? SB_PAGEUP : SB_PAGEDOWN);
}

void ScrollStrip::Drag(CPoint screen)
{
    m_wnd.ScrollTo(m_scroll.FirstAt(UnitsBelowTop(screen) - m_grip, Length(), leastThumb));
}

bool ScrollStrip::Takes(UINT message, LPARAM lParam)
{
    if (!m_taken)
        return false;
    CPoint point = PointOf(lParam);
    switch (message) {
    case WM_NCHITTEST:
        return ScreenRc().PtInRect(point);
    case WM_NCMOUSEMOVE: {
        const RowScroll::Span thumb = Thumb();
        const int at = UnitsBelowTop(point) - thumb.from;
        const bool over = ScreenRc().PtInRect(point) && at >= 0 && at < thumb.length;
        if (over && m_look == Look::Normal) {
            TRACKMOUSEEVENT track{sizeof track, TME_LEAVE | TME_NONCLIENT, m_wnd.m_hWnd, 0};
            ::TrackMouseEvent(&track);
        }
        SetLook(over ? Look::Hover : Look::Normal);
        return false;
    }
    case WM_NCLBUTTONDOWN:
    case WM_NCLBUTTONDBLCLK:
        if (!ScreenRc().PtInRect(point))
            return false;
        Press(UnitsBelowTop(point));
        return true;
    case WM_NCMOUSELEAVE:
        if (m_grip < 0)
            SetLook(Look::Normal);
        return false;
    case WM_MOUSEMOVE:
        if (m_grip < 0) {
            SetLook(Look::Normal);
            return false;
        }
        m_wnd.ClientToScreen(&point);
        Drag(point);
        return true;
    case WM_LBUTTONUP:
        if (m_grip < 0)
            return false;
        ::ReleaseCapture();
        return true;
    case WM_CAPTURECHANGED:
        m_grip = -1;
        SetLook(Look::Normal);
        return false;
    default:
        return false;
    }
}

} // namespace vant::detail
