// CVantWnd: scrolling what is taller than the window.
#include "controls/CVantWnd.h"

#include "controls/detail/ScrollStrip.h"

#include <algorithm>

/** How far down the content reaches, unscrolled. */
int CVantWnd::ContentHeight() const
{
    int reached = ctrls.IsEmpty() ? 0 : y + Bottom();
    int column = org.y + OwnHeight();
    for (const CVantPtr* pos = m_cats.GetHeadPos(); pos; pos = pos->next) {
        const CCtrlCat& cat = *m_cats.GetAt(pos);
        if (cat.kind == kindStacked) {
            const int shown = cat.expanded ? cat.hdrH + cat.Bottom() : cat.hdrH;
            reached = std::max(reached, column + shown);
            column += cat.GetCtrlHeight();
        } else if (!cat.IsAnchored()) {
            reached = std::max(reached, cat.y + (cat.hasHdr ? cat.hdrH : 0) + cat.Bottom());
        }
    }
    return reached;
}

/** Shows, sets or removes the scroll bar, and keeps the offset inside the content. */
void CVantWnd::UpdateScrollBar()
{
    const int page = ClientRc().Height();
    if (page <= 0)
        return;
    const int content = ContentHeight();
    const bool isNeeded = content > page;
    m_scrollY = std::clamp(m_scrollY, 0, std::max(0, content - page));
    m_scrolls = isNeeded;
    if (isNeeded)
        m_strip->Show(content, page, m_scrollY);
    else
        m_strip->Hide();
}

LRESULT CVantWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (m_strip->Takes(message, lParam))
        return message == WM_NCHITTEST ? HTBORDER : 0;
    const LRESULT result = CWnd::WindowProc(message, wParam, lParam);
    // After any other message the object may be gone.
    if (message == WM_NCCALCSIZE)
        m_strip->TakeRoom(*reinterpret_cast<RECT*>(lParam));
    else if (message == WM_NCPAINT)
        m_strip->Redraw();
    return result;
}

void CVantWnd::ScrollTo(int toY)
{
    const int before = m_scrollY;
    m_scrollY = std::clamp(toY, 0, std::max(0, ContentHeight() - ClientRc().Height()));
    if (m_scrollY != before)
        LayoutWnd(1);
}

void CVantWnd::ScrollIntoView(CWnd* child)
{
    if (!m_scrolls || !child || !IsChild(child))
        return;
    CRect place;
    child->GetWindowRect(&place);
    ScreenToClient(&place);
    place = Dpi().ToUnits(place);
    const int page = ClientRc().Height();
    if (place.top < 0 || place.Height() > page)
        ScrollTo(m_scrollY + place.top);
    else if (place.bottom > page)
        ScrollTo(m_scrollY + place.bottom - page);
}

void CVantWnd::ScrollAllIntoView(CWnd* child)
{
    const auto isChild = [](HWND wnd) { return (::GetWindowLongPtrW(wnd, GWL_STYLE) & WS_CHILD) != 0; };
    HWND wnd = child->GetSafeHwnd();
    while (wnd && isChild(wnd)) {
        wnd = ::GetAncestor(wnd, GA_PARENT);
        if (auto* const outer = dynamic_cast<CVantWnd*>(FromHandlePermanent(wnd)))
            outer->ScrollIntoView(child);
    }
}

void CVantWnd::OnVScroll(UINT code, UINT pos, CScrollBar* bar)
{
    if (bar || !m_scrolls) {
        CWnd::OnVScroll(code, pos, bar);
        return;
    }
    const int page = ClientRc().Height() - hdrH;
    switch (code) {
    case SB_LINEUP:
        return ScrollTo(m_scrollY - hdrH);
    case SB_LINEDOWN:
        return ScrollTo(m_scrollY + hdrH);
    case SB_PAGEUP:
        return ScrollTo(m_scrollY - page);
    case SB_PAGEDOWN:
        return ScrollTo(m_scrollY + page);
    case SB_TOP:
        return ScrollTo(0);
    case SB_BOTTOM:
        return ScrollTo(ContentHeight());
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
        return ScrollTo(static_cast<int>(pos));
    default:
        break;
    }
}

BOOL CVantWnd::OnMouseWheel(UINT flags, short delta, CPoint point)
{
    if (!m_scrolls)
        return CWnd::OnMouseWheel(flags, delta, point);
    UINT lines = 3;
    ::SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    const int page = ClientRc().Height();
    const int perNotch = lines == WHEEL_PAGESCROLL ? page : std::min(page, static_cast<int>(lines) * hdrH);
    m_wheel += delta * perNotch;
    const int step = m_wheel / WHEEL_DELTA;
    m_wheel %= WHEEL_DELTA;
    ScrollTo(m_scrollY - step);
    return TRUE;
}

void CVantWnd::OnKeyDown(UINT key, UINT repeats, UINT flags)
{
    static constexpr struct {
        UINT key;
        UINT code;
    } keys[] = {
        {VK_UP, SB_LINEUP},     {VK_DOWN, SB_LINEDOWN}, {VK_PRIOR, SB_PAGEUP},
        {VK_NEXT, SB_PAGEDOWN}, {VK_HOME, SB_TOP},      {VK_END, SB_BOTTOM},
    };
    if (m_scrolls) {
        for (const auto& entry : keys) {
            if (entry.key == key)
                return OnVScroll(entry.code, 0, nullptr);
        }
    }
    CWnd::OnKeyDown(key, repeats, flags);
}
