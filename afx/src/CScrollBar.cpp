#include "vafx/CScrollBar.h"

IMPLEMENT_DYNAMIC(CScrollBar, CWnd)

CScrollBar::CScrollBar() noexcept = default;

BOOL CScrollBar::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create(L"SCROLLBAR", nullptr, dwStyle, rect, pParentWnd, nID);
}

int CScrollBar::GetScrollPos() const
{
    return ::GetScrollPos(m_hWnd, SB_CTL);
}

int CScrollBar::SetScrollPos(int nPos, BOOL bRedraw)
{
    return ::SetScrollPos(m_hWnd, SB_CTL, nPos, bRedraw);
}

void CScrollBar::GetScrollRange(LPINT lpMinPos, LPINT lpMaxPos) const
{
    ::GetScrollRange(m_hWnd, SB_CTL, lpMinPos, lpMaxPos);
}

void CScrollBar::SetScrollRange(int nMinPos, int nMaxPos, BOOL bRedraw)
{
    ::SetScrollRange(m_hWnd, SB_CTL, nMinPos, nMaxPos, bRedraw);
}

BOOL CScrollBar::SetScrollInfo(LPSCROLLINFO lpScrollInfo, BOOL bRedraw)
{
    return CWnd::SetScrollInfo(SB_CTL, lpScrollInfo, bRedraw);
}

BOOL CScrollBar::GetScrollInfo(LPSCROLLINFO lpScrollInfo, UINT nMask)
{
    return CWnd::GetScrollInfo(SB_CTL, lpScrollInfo, nMask);
}

BOOL CScrollBar::EnableScrollBar(UINT nArrowFlags)
{
    return ::EnableScrollBar(m_hWnd, SB_CTL, nArrowFlags);
}
