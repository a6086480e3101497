#include "detail/Handles.h"
#include "detail/WindowText.h"
#include "vafx/CDC.h"
#include "vafx/CFont.h"
#include "vafx/CWnd.h"

#include <algorithm>

using vafx::detail::ReadText;

namespace
{

BOOL Modify(HWND window, int index, DWORD remove, DWORD add, UINT flags)
{
    const auto old = static_cast<DWORD>(::GetWindowLongPtrW(window, index));
    const DWORD style = (old & ~remove) | add;
    if (style == old)
        return FALSE;
    ::SetWindowLongPtrW(window, index, static_cast<LONG_PTR>(style));
    if (flags != 0)
        ::SetWindowPos(window, nullptr, 0, 0, 0, 0,
                       SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | flags);
    return TRUE;
}

void MapRect(HWND from, HWND to, LPRECT rect)
{
    // Two points told to be a rectangle stay in order between mirrored windows.
    ::MapWindowPoints(from, to, reinterpret_cast<LPPOINT>(rect), 2);
}

RECT WorkAreaOf(HWND window)
{
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    ::GetMonitorInfoW(::MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &monitor);
    return monitor.rcWork;
}

} // namespace

DWORD CWnd::GetStyle() const
{
    return static_cast<DWORD>(::GetWindowLongPtrW(m_hWnd, GWL_STYLE));
}

DWORD CWnd::GetExStyle() const
{
    return static_cast<DWORD>(::GetWindowLongPtrW(m_hWnd, GWL_EXSTYLE));
}

BOOL CWnd::ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags)
{
    return Modify(m_hWnd, GWL_STYLE, dwRemove, dwAdd, nFlags);
}

BOOL CWnd::ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags)
{
    return Modify(m_hWnd, GWL_EXSTYLE, dwRemove, dwAdd, nFlags);
}

BOOL CWnd::IsWindowVisible() const
{
    return ::IsWindowVisible(m_hWnd);
}

BOOL CWnd::IsWindowEnabled() const
{
    return ::IsWindowEnabled(m_hWnd);
}

BOOL CWnd::EnableWindow(BOOL bEnable)
{
    return ::EnableWindow(m_hWnd, bEnable);
}

BOOL CWnd::ShowWindow(int nCmdShow)
{
    return ::ShowWindow(m_hWnd, nCmdShow);
}

BOOL CWnd::IsIconic() const
{
    return ::IsIconic(m_hWnd);
}

BOOL CWnd::IsZoomed() const
{
    return ::IsZoomed(m_hWnd);
}

BOOL CWnd::SetForegroundWindow()
{
    return ::SetForegroundWindow(m_hWnd);
}

CWnd* PASCAL CWnd::GetForegroundWindow()
{
    return FromHandle(::GetForegroundWindow());
}

CWnd* CWnd::SetActiveWindow()
{
    return FromHandle(::SetActiveWindow(m_hWnd));
}

CWnd* PASCAL CWnd::GetActiveWindow()
{
    return FromHandle(::GetActiveWindow());
}

CWnd* CWnd::SetFocus()
{
    return FromHandle(::SetFocus(m_hWnd));
}

CWnd* PASCAL CWnd::GetFocus()
{
    return FromHandle(::GetFocus());
}

CWnd* CWnd::SetCapture()
{
    return FromHandle(::SetCapture(m_hWnd));
}

CWnd* PASCAL CWnd::GetCapture()
{
    return FromHandle(::GetCapture());
}

int CWnd::SetWindowRgn(HRGN hRgn, BOOL bRedraw)
{
    return ::SetWindowRgn(m_hWnd, hRgn, bRedraw);
}

HICON CWnd::SetIcon(HICON hIcon, BOOL bBigIcon)
{
    const LRESULT old =
        ::SendMessageW(m_hWnd, WM_SETICON, bBigIcon ? ICON_BIG : ICON_SMALL, reinterpret_cast<LPARAM>(hIcon));
    return reinterpret_cast<HICON>(old);
}

HICON CWnd::GetIcon(BOOL bBigIcon) const
{
    return reinterpret_cast<HICON>(::SendMessageW(m_hWnd, WM_GETICON, bBigIcon ? ICON_BIG : ICON_SMALL, 0));
}

void CWnd::DragAcceptFiles(BOOL bAccept)
{
    ::DragAcceptFiles(m_hWnd, bAccept);
}

void CWnd::SetWindowText(LPCTSTR lpszString)
{
    ::SetWindowTextW(m_hWnd, lpszString);
}

int CWnd::GetWindowText(LPTSTR lpszStringBuf, int nMaxCount) const
{
    return ::GetWindowTextW(m_hWnd, lpszStringBuf, nMaxCount);
}

void CWnd::GetWindowText(CString& rString) const
{
    ReadText(m_hWnd, rString);
}

int CWnd::GetWindowTextLength() const
{
    return ::GetWindowTextLengthW(m_hWnd);
}

void CWnd::SetFont(CFont* pFont, BOOL bRedraw)
{
    ::SendMessageW(m_hWnd, WM_SETFONT, reinterpret_cast<WPARAM>(vafx::detail::HandleOf(pFont)), bRedraw);
}

CFont* CWnd::GetFont() const
{
    return CFont::FromHandle(reinterpret_cast<HFONT>(::SendMessageW(m_hWnd, WM_GETFONT, 0, 0)));
}

void CWnd::MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint)
{
    ::MoveWindow(m_hWnd, x, y, nWidth, nHeight, bRepaint);
}

void CWnd::MoveWindow(LPCRECT lpRect, BOOL bRepaint)
{
    MoveWindow(lpRect->left, lpRect->top, lpRect->right - lpRect->left, lpRect->bottom - lpRect->top,
               bRepaint);
}

BOOL CWnd::SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags)
{
    return ::SetWindowPos(m_hWnd, vafx::detail::HandleOf(pWndInsertAfter), x, y, cx, cy, nFlags);
}

void CWnd::BringWindowToTop()
{
    ::BringWindowToTop(m_hWnd);
}

BOOL CWnd::GetWindowPlacement(WINDOWPLACEMENT* lpwndpl) const
{
    lpwndpl->length = sizeof(WINDOWPLACEMENT);
    return ::GetWindowPlacement(m_hWnd, lpwndpl);
}

BOOL CWnd::SetWindowPlacement(const WINDOWPLACEMENT* lpwndpl)
{
    WINDOWPLACEMENT placement = *lpwndpl;
    placement.length = sizeof placement;
    return ::SetWindowPlacement(m_hWnd, &placement);
}

void CWnd::GetWindowRect(LPRECT lpRect) const
{
    ::GetWindowRect(m_hWnd, lpRect);
}

void CWnd::GetClientRect(LPRECT lpRect) const
{
    ::GetClientRect(m_hWnd, lpRect);
}

void CWnd::ClientToScreen(LPPOINT lpPoint) const
{
    ::ClientToScreen(m_hWnd, lpPoint);
}

void CWnd::ClientToScreen(LPRECT lpRect) const
{
    MapRect(m_hWnd, HWND_DESKTOP, lpRect);
}

void CWnd::ScreenToClient(LPPOINT lpPoint) const
{
    ::ScreenToClient(m_hWnd, lpPoint);
}

void CWnd::ScreenToClient(LPRECT lpRect) const
{
    MapRect(HWND_DESKTOP, m_hWnd, lpRect);
}

void CWnd::MapWindowPoints(CWnd* pwndTo, LPPOINT lpPoint, UINT nCount) const
{
    ::MapWindowPoints(m_hWnd, vafx::detail::HandleOf(pwndTo), lpPoint, nCount);
}

void CWnd::MapWindowPoints(CWnd* pwndTo, LPRECT lpRect) const
{
    MapRect(m_hWnd, vafx::detail::HandleOf(pwndTo), lpRect);
}

void CWnd::CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType)
{
    DWORD exStyle = GetExStyle();
    if (nAdjustType == adjustBorder)
        exStyle &= ~static_cast<DWORD>(WS_EX_CLIENTEDGE);
    ::AdjustWindowRectEx(lpClientRect, GetStyle(), FALSE, exStyle);
}

CDC* CWnd::BeginPaint(LPPAINTSTRUCT lpPaint)
{
    return CDC::FromHandle(::BeginPaint(m_hWnd, lpPaint));
}

void CWnd::EndPaint(LPPAINTSTRUCT lpPaint)
{
    ::EndPaint(m_hWnd, lpPaint);
}

CDC* CWnd::GetDC()
{
    return CDC::FromHandle(::GetDC(m_hWnd));
}

CDC* CWnd::GetWindowDC()
{
    return CDC::FromHandle(::GetWindowDC(m_hWnd));
}

int CWnd::ReleaseDC(CDC* pDC)
{
    return ::ReleaseDC(m_hWnd, vafx::detail::HandleOf(pDC));
}

void CWnd::Invalidate(BOOL bErase)
{
    ::InvalidateRect(m_hWnd, nullptr, bErase);
}

void CWnd::InvalidateRect(LPCRECT lpRect, BOOL bErase)
{
    ::InvalidateRect(m_hWnd, lpRect, bErase);
}

void CWnd::ValidateRect(LPCRECT lpRect)
{
    ::ValidateRect(m_hWnd, lpRect);
}

void CWnd::UpdateWindow()
{
    ::UpdateWindow(m_hWnd);
}

BOOL CWnd::GetUpdateRect(LPRECT lpRect, BOOL bErase)
{
    return ::GetUpdateRect(m_hWnd, lpRect, bErase);
}

void CWnd::SetRedraw(BOOL bRedraw)
{
    ::SendMessageW(m_hWnd, WM_SETREDRAW, static_cast<WPARAM>(bRedraw), 0);
}

BOOL CWnd::RedrawWindow(LPCRECT lpRectUpdate, HRGN hrgnUpdate, UINT flags)
{
    return ::RedrawWindow(m_hWnd, lpRectUpdate, hrgnUpdate, flags);
}

int CWnd::ScrollWindowEx(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, HRGN hrgnUpdate,
                         LPRECT lpRectUpdate, UINT flags)
{
    return ::ScrollWindowEx(m_hWnd, dx, dy, lpRectScroll, lpRectClip, hrgnUpdate, lpRectUpdate, flags);
}

void CWnd::ScrollWindow(int xAmount, int yAmount, LPCRECT lpRect, LPCRECT lpClipRect)
{
    ::ScrollWindow(m_hWnd, xAmount, yAmount, lpRect, lpClipRect);
}

void CWnd::CenterWindow(CWnd* pAlternateOwner)
{
    const bool isChild = (GetStyle() & WS_CHILD) != 0;
    HWND centre = vafx::detail::HandleOf(pAlternateOwner);
    if (centre == nullptr)
        centre = isChild ? ::GetParent(m_hWnd) : ::GetWindow(m_hWnd, GW_OWNER);

    CRect area;
    CRect around;
    if (isChild) {
        ::GetClientRect(::GetParent(m_hWnd), &area);
        ::GetClientRect(centre, &around);
        MapRect(centre, ::GetParent(m_hWnd), &around);
    } else {
        const bool shown = centre != nullptr && ::IsWindowVisible(centre) && !::IsIconic(centre);
        area = WorkAreaOf(shown ? centre : m_hWnd);
        around = area;
        if (shown)
            ::GetWindowRect(centre, &around);
    }

    CRect own;
    GetWindowRect(&own);
    const int x = (around.left + around.right) / 2 - own.Width() / 2;
    const int y = (around.top + around.bottom) / 2 - own.Height() / 2;
    const int left = std::max<int>(std::min<int>(x, area.right - own.Width()), area.left);
    const int top = std::max<int>(std::min<int>(y, area.bottom - own.Height()), area.top);
    SetWindowPos(nullptr, left, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}
