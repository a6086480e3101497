#include "detail/Handles.h"
#include "detail/WindowText.h"
#include "vafx/CWnd.h"

#include <algorithm>

using vafx::detail::ReadText;

namespace
{

void SendToDescendants(HWND window, UINT message, WPARAM wParam, LPARAM lParam, BOOL deep, BOOL onlyPermanent)
{
    for (HWND child = ::GetTopWindow(window); child != nullptr;) {
        // The message may destroy the child.
        const HWND next = ::GetWindow(child, GW_HWNDNEXT);
        if (deep)
            SendToDescendants(child, message, wParam, lParam, deep, onlyPermanent);
        if (!onlyPermanent || CWnd::FromHandlePermanent(child) != nullptr)
            ::SendMessageW(child, message, wParam, lParam);
        child = next;
    }
}

} // namespace

CWnd* CWnd::GetParent() const
{
    return FromHandle(::GetParent(m_hWnd));
}

CWnd* CWnd::SetParent(CWnd* pWndNewParent)
{
    return FromHandle(::SetParent(m_hWnd, vafx::detail::HandleOf(pWndNewParent)));
}

CWnd* CWnd::GetTopLevelParent() const
{
    return FromHandle(::GetAncestor(m_hWnd, GA_ROOT));
}

CWnd* CWnd::GetOwner() const
{
    return m_owner != nullptr ? FromHandle(m_owner) : GetParent();
}

void CWnd::SetOwner(CWnd* pOwnerWnd) noexcept
{
    m_owner = vafx::detail::HandleOf(pOwnerWnd);
}

CWnd* CWnd::GetWindow(UINT nCmd) const
{
    return FromHandle(::GetWindow(m_hWnd, nCmd));
}

CWnd* CWnd::GetTopWindow() const
{
    return FromHandle(::GetTopWindow(m_hWnd));
}

CWnd* CWnd::GetLastActivePopup() const
{
    return FromHandle(::GetLastActivePopup(m_hWnd));
}

BOOL CWnd::IsChild(const CWnd* pWnd) const
{
    return ::IsChild(m_hWnd, vafx::detail::HandleOf(pWnd));
}

CWnd* CWnd::ChildWindowFromPoint(POINT point) const
{
    return FromHandle(::ChildWindowFromPoint(m_hWnd, point));
}

CWnd* CWnd::ChildWindowFromPoint(POINT point, UINT nFlags) const
{
    return FromHandle(::ChildWindowFromPointEx(m_hWnd, point, nFlags));
}

CWnd* PASCAL CWnd::WindowFromPoint(POINT point)
{
    return FromHandle(::WindowFromPoint(point));
}

CWnd* PASCAL CWnd::FindWindow(LPCTSTR lpszClassName, LPCTSTR lpszWindowName)
{
    return FromHandle(::FindWindowW(lpszClassName, lpszWindowName));
}

CWnd* PASCAL CWnd::GetDesktopWindow()
{
    return FromHandle(::GetDesktopWindow());
}

CWnd* CWnd::GetDlgItem(int nID) const
{
    return FromHandle(::GetDlgItem(m_hWnd, nID));
}

void CWnd::GetDlgItem(int nID, HWND* phWnd) const
{
    *phWnd = ::GetDlgItem(m_hWnd, nID);
}

int CWnd::GetDlgCtrlID() const
{
    return ::GetDlgCtrlID(m_hWnd);
}

int CWnd::SetDlgCtrlID(int nID)
{
    return static_cast<int>(::SetWindowLongPtrW(m_hWnd, GWLP_ID, nID));
}

void CWnd::SetDlgItemText(int nID, LPCTSTR lpszString)
{
    ::SetDlgItemTextW(m_hWnd, nID, lpszString);
}

int CWnd::GetDlgItemText(int nID, LPTSTR lpStr, int nMaxCount) const
{
    return static_cast<int>(::GetDlgItemTextW(m_hWnd, nID, lpStr, nMaxCount));
}

int CWnd::GetDlgItemText(int nID, CString& rString) const
{
    return ReadText(::GetDlgItem(m_hWnd, nID), rString);
}

void CWnd::SetDlgItemInt(int nID, UINT nValue, BOOL bSigned)
{
    ::SetDlgItemInt(m_hWnd, nID, nValue, bSigned);
}

UINT CWnd::GetDlgItemInt(int nID, BOOL* lpTrans, BOOL bSigned) const
{
    return ::GetDlgItemInt(m_hWnd, nID, lpTrans, bSigned);
}

void CWnd::CheckDlgButton(int nIDButton, UINT nCheck)
{
    ::CheckDlgButton(m_hWnd, nIDButton, nCheck);
}

UINT CWnd::IsDlgButtonChecked(int nIDButton) const
{
    return ::IsDlgButtonChecked(m_hWnd, nIDButton);
}

void CWnd::CheckRadioButton(int nIDFirstButton, int nIDLastButton, int nIDCheckButton)
{
    ::CheckRadioButton(m_hWnd, nIDFirstButton, nIDLastButton, nIDCheckButton);
}

LRESULT CWnd::SendDlgItemMessage(int nID, UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::SendDlgItemMessageW(m_hWnd, nID, message, wParam, lParam);
}

CWnd* CWnd::GetNextDlgTabItem(CWnd* pWndCtl, BOOL bPrevious) const
{
    return FromHandle(::GetNextDlgTabItem(m_hWnd, vafx::detail::HandleOf(pWndCtl), bPrevious));
}

int CWnd::GetScrollPos(int nBar) const
{
    return ::GetScrollPos(m_hWnd, nBar);
}

int CWnd::SetScrollPos(int nBar, int nPos, BOOL bRedraw)
{
    return ::SetScrollPos(m_hWnd, nBar, nPos, bRedraw);
}

void CWnd::GetScrollRange(int nBar, LPINT lpMinPos, LPINT lpMaxPos) const
{
    ::GetScrollRange(m_hWnd, nBar, lpMinPos, lpMaxPos);
}

void CWnd::SetScrollRange(int nBar, int nMinPos, int nMaxPos, BOOL bRedraw)
{
    ::SetScrollRange(m_hWnd, nBar, nMinPos, nMaxPos, bRedraw);
}

BOOL CWnd::SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw)
{
    lpScrollInfo->cbSize = sizeof(SCROLLINFO);
    ::SetScrollInfo(m_hWnd, nBar, lpScrollInfo, bRedraw);
    return TRUE;
}

BOOL CWnd::GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask)
{
    lpScrollInfo->cbSize = sizeof(SCROLLINFO);
    lpScrollInfo->fMask = nMask;
    return ::GetScrollInfo(m_hWnd, nBar, lpScrollInfo);
}

int CWnd::GetScrollLimit(int nBar)
{
    SCROLLINFO info{};
    if (!GetScrollInfo(nBar, &info, SIF_PAGE | SIF_RANGE))
        return 0;
    return info.nMax - std::max(static_cast<int>(info.nPage) - 1, 0);
}

void CWnd::ShowScrollBar(UINT nBar, BOOL bShow)
{
    ::ShowScrollBar(m_hWnd, static_cast<int>(nBar), bShow);
}

BOOL CWnd::EnableScrollBar(int nSBFlags, UINT nArrowFlags)
{
    return ::EnableScrollBar(m_hWnd, static_cast<UINT>(nSBFlags), nArrowFlags);
}

LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::SendMessageW(m_hWnd, message, wParam, lParam);
}

BOOL CWnd::PostMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::PostMessageW(m_hWnd, message, wParam, lParam);
}

int CWnd::MessageBox(LPCTSTR lpszText, LPCTSTR lpszCaption, UINT nType)
{
    return ::MessageBoxW(m_hWnd, lpszText, lpszCaption, nType);
}

UINT_PTR CWnd::SetTimer(UINT_PTR nIDEvent, UINT nElapse,
                        void(CALLBACK* lpfnTimer)(HWND, UINT, UINT_PTR, DWORD))
{
    return ::SetTimer(m_hWnd, nIDEvent, nElapse, lpfnTimer);
}

BOOL CWnd::KillTimer(UINT_PTR nIDEvent)
{
    return ::KillTimer(m_hWnd, nIDEvent);
}

void CWnd::CreateSolidCaret(int nWidth, int nHeight)
{
    ::CreateCaret(m_hWnd, nullptr, nWidth, nHeight);
}

void CWnd::ShowCaret()
{
    ::ShowCaret(m_hWnd);
}

void CWnd::HideCaret()
{
    ::HideCaret(m_hWnd);
}

void PASCAL CWnd::SetCaretPos(POINT point)
{
    ::SetCaretPos(point.x, point.y);
}

BOOL CWnd::OpenClipboard()
{
    return ::OpenClipboard(m_hWnd);
}

void CWnd::SendMessageToDescendants(UINT message, WPARAM wParam, LPARAM lParam, BOOL bDeep, BOOL bOnlyPerm)
{
    SendToDescendants(m_hWnd, message, wParam, lParam, bDeep, bOnlyPerm);
}
