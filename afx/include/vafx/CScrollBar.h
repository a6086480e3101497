#pragma once

#include "vafx/CWnd.h"

/** The system's scroll bar as a control of its own. */
class VAFX_API CScrollBar : public CWnd
{
    DECLARE_DYNAMIC(CScrollBar)

public:
    CScrollBar() noexcept;

    using CWnd::Create;
    /** Makes the control. @param dwStyle WS_ and SBS_ styles. */
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetScrollPos() const;
    int SetScrollPos(int nPos, BOOL bRedraw = TRUE);
    void GetScrollRange(LPINT lpMinPos, LPINT lpMaxPos) const;
    void SetScrollRange(int nMinPos, int nMaxPos, BOOL bRedraw = TRUE);
    BOOL SetScrollInfo(LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE);
    BOOL GetScrollInfo(LPSCROLLINFO lpScrollInfo, UINT nMask = SIF_ALL);
    BOOL EnableScrollBar(UINT nArrowFlags = ESB_ENABLE_BOTH);
};
