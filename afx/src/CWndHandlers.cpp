#include "vafx/CWnd.h"

// The handlers that do nothing of their own: each passes its message on, unchanged.

int CWnd::OnCreate(LPCREATESTRUCT)
{
    return static_cast<int>(Default());
}

BOOL CWnd::OnNcCreate(LPCREATESTRUCT)
{
    return static_cast<BOOL>(Default());
}

void CWnd::OnDestroy()
{
    Default();
}

void CWnd::OnClose()
{
    Default();
}

BOOL CWnd::OnQueryEndSession()
{
    return static_cast<BOOL>(Default());
}

void CWnd::OnEndSession(BOOL)
{
    Default();
}

void CWnd::OnMove(int, int)
{
    Default();
}

void CWnd::OnSize(UINT, int, int)
{
    Default();
}

void CWnd::OnMoving(UINT, LPRECT)
{
    Default();
}

void CWnd::OnSizing(UINT, LPRECT)
{
    Default();
}

void CWnd::OnEnterSizeMove()
{
    Default();
}

void CWnd::OnExitSizeMove()
{
    Default();
}

void CWnd::OnGetMinMaxInfo(MINMAXINFO*)
{
    Default();
}

void CWnd::OnWindowPosChanging(WINDOWPOS*)
{
    Default();
}

void CWnd::OnWindowPosChanged(WINDOWPOS*)
{
    Default();
}

void CWnd::OnShowWindow(BOOL, UINT)
{
    Default();
}

void CWnd::OnEnable(BOOL)
{
    Default();
}

void CWnd::OnActivate(UINT, CWnd*, BOOL)
{
    Default();
}

void CWnd::OnActivateApp(BOOL, DWORD)
{
    Default();
}

void CWnd::OnSetFocus(CWnd*)
{
    Default();
}

void CWnd::OnKillFocus(CWnd*)
{
    Default();
}

void CWnd::OnChildActivate()
{
    Default();
}

void CWnd::OnPaint()
{
    Default();
}

BOOL CWnd::OnEraseBkgnd(CDC*)
{
    return static_cast<BOOL>(Default());
}

BOOL CWnd::OnSetCursor(CWnd*, UINT, UINT)
{
    return static_cast<BOOL>(Default());
}

void CWnd::OnSysColorChange()
{
    Default();
}

void CWnd::OnSettingChange(UINT, LPCTSTR)
{
    Default();
}

void CWnd::OnTimeChange()
{
    Default();
}

BOOL CWnd::OnDeviceChange(UINT, DWORD_PTR)
{
    return static_cast<BOOL>(Default());
}

UINT CWnd::OnPowerBroadcast(UINT, LPARAM)
{
    return static_cast<UINT>(Default());
}

void CWnd::OnNcPaint()
{
    Default();
}

BOOL CWnd::OnNcActivate(BOOL)
{
    return static_cast<BOOL>(Default());
}

void CWnd::OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS*)
{
    Default();
}

LRESULT CWnd::OnNcHitTest(CPoint)
{
    return Default();
}

void CWnd::OnNcMouseMove(UINT, CPoint)
{
    Default();
}

void CWnd::OnNcLButtonDown(UINT, CPoint)
{
    Default();
}

void CWnd::OnNcLButtonUp(UINT, CPoint)
{
    Default();
}

void CWnd::OnNcLButtonDblClk(UINT, CPoint)
{
    Default();
}

void CWnd::OnNcRButtonDown(UINT, CPoint)
{
    Default();
}

void CWnd::OnNcRButtonUp(UINT, CPoint)
{
    Default();
}

void CWnd::OnMouseMove(UINT, CPoint)
{
    Default();
}

void CWnd::OnLButtonDown(UINT, CPoint)
{
    Default();
}

void CWnd::OnLButtonUp(UINT, CPoint)
{
    Default();
}

void CWnd::OnLButtonDblClk(UINT, CPoint)
{
    Default();
}

void CWnd::OnRButtonDown(UINT, CPoint)
{
    Default();
}

void CWnd::OnRButtonUp(UINT, CPoint)
{
    Default();
}

void CWnd::OnRButtonDblClk(UINT, CPoint)
{
    Default();
}

void CWnd::OnMButtonDown(UINT, CPoint)
{
    Default();
}

void CWnd::OnMButtonUp(UINT, CPoint)
{
    Default();
}

void CWnd::OnMButtonDblClk(UINT, CPoint)
{
    Default();
}

BOOL CWnd::OnMouseWheel(UINT, short, CPoint)
{
    return static_cast<BOOL>(Default());
}

void CWnd::OnMouseHWheel(UINT, short, CPoint)
{
    Default();
}

void CWnd::OnMouseHover(UINT, CPoint)
{
    Default();
}

void CWnd::OnMouseLeave()
{
    Default();
}

int CWnd::OnMouseActivate(CWnd*, UINT, UINT)
{
    return static_cast<int>(Default());
}

void CWnd::OnCaptureChanged(CWnd*)
{
    Default();
}

void CWnd::OnCancelMode()
{
    Default();
}

void CWnd::OnContextMenu(CWnd*, CPoint)
{
    Default();
}

void CWnd::OnKeyDown(UINT, UINT, UINT)
{
    Default();
}

void CWnd::OnKeyUp(UINT, UINT, UINT)
{
    Default();
}

void CWnd::OnChar(UINT, UINT, UINT)
{
    Default();
}

void CWnd::OnSysKeyDown(UINT, UINT, UINT)
{
    Default();
}

void CWnd::OnSysKeyUp(UINT, UINT, UINT)
{
    Default();
}

void CWnd::OnSysChar(UINT, UINT, UINT)
{
    Default();
}

UINT CWnd::OnGetDlgCode()
{
    return static_cast<UINT>(Default());
}

void CWnd::OnSysCommand(UINT, LPARAM)
{
    Default();
}

void CWnd::OnTimer(UINT_PTR)
{
    Default();
}

void CWnd::OnDropFiles(HDROP)
{
    Default();
}

BOOL CWnd::OnCopyData(CWnd*, COPYDATASTRUCT*)
{
    return static_cast<BOOL>(Default());
}
