#pragma once

#include "vafx/CCmdTarget.h"
#include "vafx/CPoint.h"
#include "vafx/CRect.h"
#include "vafx/CStringW.h"
#include "vafx/MessageMapReflect.h"

#include <shellapi.h>

class CDC;
class CFont;
class CScrollBar;
struct CCreateContext;

namespace vafx
{
struct ModalLoop;
struct WndAccess;
} // namespace vafx

/** A window: of one's own class, or a control of the system whose messages this object handles.
 *
 *  A CWnd is made in two steps, the object and then its window (Create). Its messages go through WindowProc
 * to the message map of the object's class, then to those of its bases, and at last to the window procedure
 * that the system gave the window. The object belongs to the thread that made the window; the destructor
 * destroys a window that is still there. A handler may destroy its own window, and a class that frees itself
 * does so in PostNcDestroy; the rest of such a handler must not touch the object.
 *
 *  Members that do no more than the function of the system with the same name are not described again. */
class VAFX_API CWnd : public CCmdTarget
{
    DECLARE_DYNCREATE(CWnd)

public:
    HWND m_hWnd; ///< The window; null while there is none.

    CWnd() noexcept;
    ~CWnd() override;

    operator HWND() const noexcept { return m_hWnd; }
    /** @return The handle; null also when this is null. */
    HWND GetSafeHwnd() const noexcept;
    BOOL operator==(const CWnd& wnd) const noexcept { return m_hWnd == wnd.m_hWnd; }
    BOOL operator!=(const CWnd& wnd) const noexcept { return m_hWnd != wnd.m_hWnd; }

    /** @name Objects and handles */
    ///@{
    /** @return The object of the window, or a temporary one that lasts until the thread is idle. */
    static CWnd* PASCAL FromHandle(HWND hWnd);
    /** @return The object of the window; null when it has none. Any thread may ask. */
    static CWnd* PASCAL FromHandlePermanent(HWND hWnd);
    /** Frees the thread's temporary objects. */
    static void PASCAL DeleteTempMap();
    /** Ties a window that has no object to this one, without seeing its messages. A window that was tied to
     * it before is let go and lives on. */
    BOOL Attach(HWND hWndNew);
    /** Unties object and window. @return The window, which lives on. */
    HWND Detach();
    /** Ties an existing window to this object, which handles its messages from now on. */
    BOOL SubclassWindow(HWND hWnd);
    /** The same for a control of a dialog. */
    BOOL SubclassDlgItem(UINT nID, CWnd* pParent);
    /** Undoes SubclassWindow. @return The window. */
    HWND UnsubclassWindow();
    ///@}

    /** @name Life
     *  Creating functions return FALSE on failure; PostNcDestroy has then been called. An object that has a
     * window keeps it: creating another one returns FALSE and does nothing. */
    ///@{
    /** Makes a child window. @param lpszClassName A registered class; null: a plain one without background.
     */
    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                        CWnd* pParentWnd, UINT nID, CCreateContext* pContext = nullptr);
    /** Makes any window. @param nIDorHMenu A child's identifier or a menu handle. */
    virtual BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                          const RECT& rect, CWnd* pParentWnd, UINT nID, LPVOID lpParam = nullptr);
    virtual BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                          int x, int y, int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu,
                          LPVOID lpParam = nullptr);
    virtual BOOL DestroyWindow();
    /** May change what is about to be created. @return FALSE to refuse. */
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
    /** Called when object and window have just been tied, before the window gets a message. */
    virtual void PreSubclassWindow();
    ///@}

    /** @name State */
    ///@{
    DWORD GetStyle() const;
    DWORD GetExStyle() const;
    /** @param nFlags When not 0, SetWindowPos is called with them. @return TRUE when the style changed. */
    BOOL ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    BOOL ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    BOOL IsWindowVisible() const;
    BOOL IsWindowEnabled() const;
    BOOL EnableWindow(BOOL bEnable = TRUE);
    BOOL ShowWindow(int nCmdShow);
    BOOL IsIconic() const;
    BOOL IsZoomed() const;
    BOOL SetForegroundWindow();
    static CWnd* PASCAL GetForegroundWindow();
    CWnd* SetActiveWindow();
    static CWnd* PASCAL GetActiveWindow();
    CWnd* SetFocus();
    static CWnd* PASCAL GetFocus();
    CWnd* SetCapture();
    static CWnd* PASCAL GetCapture();
    int SetWindowRgn(HRGN hRgn, BOOL bRedraw);
    HICON SetIcon(HICON hIcon, BOOL bBigIcon);
    HICON GetIcon(BOOL bBigIcon) const;
    void DragAcceptFiles(BOOL bAccept = TRUE);
    ///@}

    /** @name Text and font */
    ///@{
    void SetWindowText(LPCTSTR lpszString);
    int GetWindowText(LPTSTR lpszStringBuf, int nMaxCount) const;
    void GetWindowText(CString& rString) const;
    int GetWindowTextLength() const;
    void SetFont(CFont* pFont, BOOL bRedraw = TRUE);
    CFont* GetFont() const;
    ///@}

    /** @name Place and size */
    ///@{
    void MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint = TRUE);
    void MoveWindow(LPCRECT lpRect, BOOL bRepaint = TRUE);
    /** @param pWndInsertAfter A window, or one of wndTop, wndBottom, wndTopMost, wndNoTopMost. */
    BOOL SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags);
    static const CWnd wndTop;
    static const CWnd wndBottom;
    static const CWnd wndTopMost;
    static const CWnd wndNoTopMost;
    void BringWindowToTop();
    BOOL GetWindowPlacement(WINDOWPLACEMENT* lpwndpl) const;
    BOOL SetWindowPlacement(const WINDOWPLACEMENT* lpwndpl);
    void GetWindowRect(LPRECT lpRect) const;
    void GetClientRect(LPRECT lpRect) const;
    /** Centres the window in its parent or owner, or in @p pAlternateOwner, within the work area. */
    void CenterWindow(CWnd* pAlternateOwner = nullptr);
    void ClientToScreen(LPPOINT lpPoint) const;
    void ClientToScreen(LPRECT lpRect) const;
    void ScreenToClient(LPPOINT lpPoint) const;
    void ScreenToClient(LPRECT lpRect) const;
    void MapWindowPoints(CWnd* pwndTo, LPPOINT lpPoint, UINT nCount) const;
    void MapWindowPoints(CWnd* pwndTo, LPRECT lpRect) const;
    /** Enlarges a client rectangle by the frame of this window's styles. */
    virtual void CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType = adjustBorder);
    enum AdjustType { adjustBorder = 0, adjustOutside = 1 };
    ///@}

    /** @name Painting */
    ///@{
    CDC* BeginPaint(LPPAINTSTRUCT lpPaint);
    void EndPaint(LPPAINTSTRUCT lpPaint);
    CDC* GetDC();
    CDC* GetWindowDC();
    int ReleaseDC(CDC* pDC);
    void Invalidate(BOOL bErase = TRUE);
    void InvalidateRect(LPCRECT lpRect, BOOL bErase = TRUE);
    void ValidateRect(LPCRECT lpRect);
    void UpdateWindow();
    BOOL GetUpdateRect(LPRECT lpRect, BOOL bErase = FALSE);
    void SetRedraw(BOOL bRedraw = TRUE);
    BOOL RedrawWindow(LPCRECT lpRectUpdate = nullptr, HRGN hrgnUpdate = nullptr,
                      UINT flags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
    int ScrollWindowEx(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, HRGN hrgnUpdate,
                       LPRECT lpRectUpdate, UINT flags);
    void ScrollWindow(int xAmount, int yAmount, LPCRECT lpRect = nullptr, LPCRECT lpClipRect = nullptr);
    ///@}

    /** @name Relatives
     *  Null when there is no such window; the objects may be temporary. */
    ///@{
    CWnd* GetParent() const;
    CWnd* SetParent(CWnd* pWndNewParent);
    /** The outermost window that this one is a child of, or this window. */
    CWnd* GetTopLevelParent() const;
    /** The window that gets the commands: what SetOwner named, else the parent. */
    CWnd* GetOwner() const;
    void SetOwner(CWnd* pOwnerWnd) noexcept;
    CWnd* GetWindow(UINT nCmd) const;
    CWnd* GetTopWindow() const;
    CWnd* GetLastActivePopup() const;
    BOOL IsChild(const CWnd* pWnd) const;
    CWnd* ChildWindowFromPoint(POINT point) const;
    CWnd* ChildWindowFromPoint(POINT point, UINT nFlags) const;
    static CWnd* PASCAL WindowFromPoint(POINT point);
    static CWnd* PASCAL FindWindow(LPCTSTR lpszClassName, LPCTSTR lpszWindowName);
    static CWnd* PASCAL GetDesktopWindow();
    ///@}

    /** @name Controls of this window, by identifier */
    ///@{
    CWnd* GetDlgItem(int nID) const;
    void GetDlgItem(int nID, HWND* phWnd) const;
    int GetDlgCtrlID() const;
    int SetDlgCtrlID(int nID);
    void SetDlgItemText(int nID, LPCTSTR lpszString);
    int GetDlgItemText(int nID, LPTSTR lpStr, int nMaxCount) const;
    int GetDlgItemText(int nID, CString& rString) const;
    void SetDlgItemInt(int nID, UINT nValue, BOOL bSigned = TRUE);
    UINT GetDlgItemInt(int nID, BOOL* lpTrans = nullptr, BOOL bSigned = TRUE) const;
    void CheckDlgButton(int nIDButton, UINT nCheck);
    UINT IsDlgButtonChecked(int nIDButton) const;
    void CheckRadioButton(int nIDFirstButton, int nIDLastButton, int nIDCheckButton);
    LRESULT SendDlgItemMessage(int nID, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    CWnd* GetNextDlgTabItem(CWnd* pWndCtl, BOOL bPrevious = FALSE) const;
    ///@}

    /** @name Scroll bars of the window itself (SB_HORZ, SB_VERT) */
    ///@{
    int GetScrollPos(int nBar) const;
    int SetScrollPos(int nBar, int nPos, BOOL bRedraw = TRUE);
    void GetScrollRange(int nBar, LPINT lpMinPos, LPINT lpMaxPos) const;
    void SetScrollRange(int nBar, int nMinPos, int nMaxPos, BOOL bRedraw = TRUE);
    BOOL SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE);
    BOOL GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask = SIF_ALL);
    int GetScrollLimit(int nBar);
    void ShowScrollBar(UINT nBar, BOOL bShow = TRUE);
    BOOL EnableScrollBar(int nSBFlags, UINT nArrowFlags = ESB_ENABLE_BOTH);
    ///@}

    /** @name Messages, timers, caret, clipboard */
    ///@{
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    void SendMessageToDescendants(UINT message, WPARAM wParam = 0, LPARAM lParam = 0, BOOL bDeep = TRUE,
                                  BOOL bOnlyPerm = FALSE);
    int MessageBox(LPCTSTR lpszText, LPCTSTR lpszCaption = nullptr, UINT nType = MB_OK);
    UINT_PTR SetTimer(UINT_PTR nIDEvent, UINT nElapse,
                      void(CALLBACK* lpfnTimer)(HWND, UINT, UINT_PTR, DWORD) = nullptr);
    BOOL KillTimer(UINT_PTR nIDEvent);
    void CreateSolidCaret(int nWidth, int nHeight);
    void ShowCaret();
    void HideCaret();
    static void PASCAL SetCaretPos(POINT point);
    BOOL OpenClipboard();
    ///@}

    /** Gives the window's thread's PreTranslateMessage chain a message before it is translated.
     *  @return TRUE when the message needs no more. */
    virtual BOOL PreTranslateMessage(MSG* pMsg);

    /** @name Modal loops
     *  RunModalLoop pumps messages until EndModalLoop or WM_QUIT and returns the result given to it. */
    ///@{
    int RunModalLoop(DWORD dwFlags = 0);
    virtual BOOL ContinueModal();
    virtual void EndModalLoop(int nResult);
    ///@}

    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

protected:
    /** Sees every message first; by default OnWndMsg, then DefWindowProc. */
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    /** Looks for a handler and calls it. @return TRUE when there was one; *pResult is its answer then. */
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    /** Hands a message to the window procedure that the window had before. */
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    /** The same with the message that is being handled. */
    LRESULT Default();
    /** The message that is being handled. */
    static const MSG* PASCAL GetCurrentMessage();

    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    /** A message that this control sent to its parent. @return TRUE when the parent is not to see it. */
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult);
    /** Looks for a reflection handler in the map. */
    BOOL ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    /** Called last, when the window is gone; a class made with new frees itself here. */
    virtual void PostNcDestroy();

    /** @name Handlers: what the system does by default, unless said otherwise. */
    ///@{
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg BOOL OnNcCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    /** The window is gone: unties the object and calls PostNcDestroy; ends the thread for its main window. */
    afx_msg void OnNcDestroy();
    afx_msg void OnClose();
    afx_msg BOOL OnQueryEndSession();
    afx_msg void OnEndSession(BOOL bEnding);
    afx_msg void OnMove(int x, int y);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnMoving(UINT nSide, LPRECT lpRect);
    afx_msg void OnSizing(UINT nSide, LPRECT lpRect);
    afx_msg void OnEnterSizeMove();
    afx_msg void OnExitSizeMove();
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* lpMMI);
    afx_msg void OnWindowPosChanging(WINDOWPOS* lpwndpos);
    afx_msg void OnWindowPosChanged(WINDOWPOS* lpwndpos);
    afx_msg void OnShowWindow(BOOL bShow, UINT nStatus);
    afx_msg void OnEnable(BOOL bEnable);
    afx_msg void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized);
    afx_msg void OnActivateApp(BOOL bActive, DWORD dwThreadID);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg void OnChildActivate();
    /** Hands the message to the child, if it reflects it. */
    afx_msg void OnParentNotify(UINT message, LPARAM lParam);
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    afx_msg void OnSysColorChange();
    afx_msg void OnSettingChange(UINT uFlags, LPCTSTR lpszSection);
    afx_msg void OnTimeChange();
    afx_msg BOOL OnDeviceChange(UINT nEventType, DWORD_PTR dwData);
    afx_msg UINT OnPowerBroadcast(UINT nPowerEvent, LPARAM nEventData);
    afx_msg void OnNcPaint();
    afx_msg BOOL OnNcActivate(BOOL bActive);
    afx_msg void OnNcCalcSize(BOOL bCalcValidRects, NCCALCSIZE_PARAMS* lpncsp);
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg void OnNcMouseMove(UINT nHitTest, CPoint point);
    afx_msg void OnNcLButtonDown(UINT nHitTest, CPoint point);
    afx_msg void OnNcLButtonUp(UINT nHitTest, CPoint point);
    afx_msg void OnNcLButtonDblClk(UINT nHitTest, CPoint point);
    afx_msg void OnNcRButtonDown(UINT nHitTest, CPoint point);
    afx_msg void OnNcRButtonUp(UINT nHitTest, CPoint point);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnRButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnRButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnRButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnMButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnMButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnMButtonDblClk(UINT nFlags, CPoint point);
    /** The point is in screen coordinates. */
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);
    afx_msg void OnMouseHWheel(UINT nFlags, short zDelta, CPoint pt);
    afx_msg void OnMouseHover(UINT nFlags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg int OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message);
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg void OnCancelMode();
    /** The point is in screen coordinates; (-1, -1) when the keyboard asked. */
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint pos);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSysKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSysKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSysChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnSysCommand(UINT nID, LPARAM lParam);
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    /** Hands the message to the scroll bar, if it is a control that reflects it; so do the following ones. */
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct);
    afx_msg void OnMeasureItem(int nIDCtl, LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    afx_msg void OnDeleteItem(int nIDCtl, LPDELETEITEMSTRUCT lpDeleteItemStruct);
    afx_msg int OnCompareItem(int nIDCtl, LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    afx_msg void OnDropFiles(HDROP hDropInfo);
    afx_msg BOOL OnCopyData(CWnd* pWnd, COPYDATASTRUCT* pCopyDataStruct);
    ///@}

    DECLARE_MESSAGE_MAP()

private:
    friend LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam);
    friend struct vafx::WndAccess;

    explicit CWnd(HWND special) noexcept;
    bool ReflectCurrent(HWND child, LRESULT& result);

    WNDPROC m_super;          ///< What the window's procedure was; null: the system's default.
    HWND m_owner;             ///< Set by SetOwner.
    vafx::ModalLoop* m_modal; ///< The running RunModalLoop, which owns it.
};

/** The window procedure of every window that a CWnd handles. */
VAFX_API LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam);

/** @name Flags of CWnd::RunModalLoop */
///@{
constexpr DWORD MLF_NOIDLEMSG = 0x0001;  ///< Send the parent no WM_ENTERIDLE.
constexpr DWORD MLF_NOKICKIDLE = 0x0002; ///< Has no effect: WM_KICKIDLE is never sent.
constexpr DWORD MLF_SHOWONIDLE = 0x0004; ///< Show the window once the queue is empty.
///@}
