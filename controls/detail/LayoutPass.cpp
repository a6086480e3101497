#include "controls/detail/LayoutPass.h"

namespace vant::detail
{

namespace
{

constexpr UINT quietly = SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOREDRAW | SWP_NOCOPYBITS;

bool IsShown(HWND wnd) noexcept
{
    return (::GetWindowLongPtrW(wnd, GWL_STYLE) & WS_VISIBLE) != 0;
}

} // namespace

LayoutPass::LayoutPass(HWND wnd, LayoutPass*& current)
    : m_wnd(wnd)
    , m_dpi(CDpi::Of(wnd))
    , m_current(current)
    , m_outermost(current ? current->m_outermost : *this)
{
    current = &m_outermost;
}

LayoutPass::~LayoutPass()
{
    if (&m_outermost != this)
        return;
    m_current = nullptr;
    if (m_changed)
        ::RedrawWindow(m_wnd, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void LayoutPass::Place(HWND child, const CRect& place, bool show)
{
    if (!child)
        return;
    const CRect wanted = m_dpi.ToPx(place);
    CRect present;
    ::GetWindowRect(child, &present);
    ::MapWindowPoints(nullptr, m_wnd, reinterpret_cast<POINT*>(&present), 2);
    const bool appears = show && !IsShown(child);
    if (wanted == present && !appears)
        return;
    ::SetWindowPos(child, nullptr, wanted.left, wanted.top, wanted.Width(), wanted.Height(),
                   quietly | (appears ? SWP_SHOWWINDOW : 0));
    m_outermost.m_changed = true;
}

void LayoutPass::Show(HWND child)
{
    if (!child || IsShown(child))
        return;
    ::SetWindowPos(child, nullptr, 0, 0, 0, 0, quietly | SWP_NOMOVE | SWP_NOSIZE | SWP_SHOWWINDOW);
    m_outermost.m_changed = true;
}

void LayoutPass::Hide(HWND child, HWND focusTo)
{
    if (!child || !IsShown(child))
        return;
    if (HasFocus(child))
        ::SetFocus(focusTo);
    ::SetWindowPos(child, nullptr, 0, 0, 0, 0, quietly | SWP_NOMOVE | SWP_NOSIZE | SWP_HIDEWINDOW);
    m_outermost.m_changed = true;
}

bool LayoutPass::HasFocus(HWND child) const noexcept
{
    const HWND focus = ::GetFocus();
    return focus && (focus == child || ::IsChild(child, focus));
}

} // namespace vant::detail
