#include "demo/screen/PopupFrame.h"

#include "controls/CVantWnd.h"
#include "demo/screen/Focus.h"
#include "demo/screen/ScreenPlace.h"
#include "platform/Vant.h"

namespace demo
{
namespace
{

constexpr DWORD popupStyle = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_CLIPCHILDREN;

} // namespace

bool PopupFrame::Open(const wchar_t* title, CWnd& owner, const Box& first)
{
    const bool isSaved = m_place.box.Width() > 0 && m_place.box.Height() > 0;
    const Box box = isSaved ? PlaceAgain(m_place.box) : first;
    if (!m_wnd.CreateEx(0, Vant::wndClass, title, popupStyle, RectOf(box), &owner, 0))
        return false;
    const CDpi dpi = CDpi::Of(m_wnd.m_hWnd);
    if (DpiThatFits(m_wnd.m_hWnd, dpi) != dpi)
        m_wnd.SendMessage(WM_DPICHANGED, MAKEWPARAM(dpi.Dpi(), dpi.Dpi()), 0);
    return true;
}

WPARAM PopupFrame::FittingDpi(WPARAM asked) const
{
    const int fits = DpiThatFits(m_wnd.m_hWnd, CDpi(HIWORD(asked))).Dpi();
    return MAKEWPARAM(fits, fits);
}

void PopupFrame::ShowAsSet()
{
    if ((m_place.open != 0) == (m_wnd.IsWindowVisible() != FALSE))
        return;
    const bool hadFocus = HoldsFocus(m_wnd.m_hWnd);
    // The keyboard stays where it is.
    m_wnd.ShowWindow(m_place.open ? SW_SHOWNA : SW_HIDE);
    if (!m_place.open && hadFocus)
        m_wnd.GetParent()->SetFocus();
    NotePlace();
}

void PopupFrame::NotePlace()
{
    if (!m_wnd.m_hWnd || !m_wnd.IsWindowVisible() || m_wnd.IsIconic())
        return;
    CRect rect;
    m_wnd.GetWindowRect(&rect);
    m_place.box = BoxOf(rect);
}

void PopupFrame::Close()
{
    m_place.open = 0;
    CVantWnd::InfoMsg(sessionInfo, &m_session);
}

} // namespace demo
