#pragma once

#include "vafx/MessageMap.h"

/** @file
 *  Message-map macros for the system's messages. Each calls the member of CWnd, or of the derived class,
 * whose name follows from the message's: ON_WM_LBUTTONDOWN calls OnLButtonDown. */

class CDC;
class CPoint;
class CScrollBar;
class CWnd;

namespace vafx
{

VAFX_API CPoint Point(LPARAM packed) noexcept;
/** The possibly temporary objects of the handles in a message; null for a null handle. */
VAFX_API CWnd* Window(ULONG_PTR handle);
VAFX_API CWnd* Window(LPARAM handle);
VAFX_API CDC* DeviceContext(WPARAM handle);
VAFX_API CScrollBar* ScrollBar(LPARAM handle);

/** Signed halves: coordinates left of or above the origin are negative. */
constexpr int X(LPARAM packed) noexcept
{
    return static_cast<short>(LOWORD(packed));
}
constexpr int Y(LPARAM packed) noexcept
{
    return static_cast<short>(HIWORD(packed));
}

template <class T>
T* Pointer(LPARAM value) noexcept
{
    return reinterpret_cast<T*>(value);
}

} // namespace vafx

#define VAFX_WM(message, name, params, args)                                                                 \
    VAFX_ENTRY(message, 0, 0, 0, nullptr, VAFX_CALL(void, &ThisClass::name, params, args))

#define VAFX_WM_RESULT(message, R, name, params, args)                                                       \
    VAFX_ENTRY(message, 0, 0, 0, nullptr, d.Set(VAFX_CALL(R, &ThisClass::name, params, args)))

/** @name Life */
///@{
#define ON_WM_CREATE()                                                                                       \
    VAFX_WM_RESULT(WM_CREATE, int, OnCreate, (LPCREATESTRUCT), (vafx::Pointer<CREATESTRUCT>(d.lParam)))
#define ON_WM_NCCREATE()                                                                                     \
    VAFX_WM_RESULT(WM_NCCREATE, BOOL, OnNcCreate, (LPCREATESTRUCT), (vafx::Pointer<CREATESTRUCT>(d.lParam)))
#define ON_WM_DESTROY() VAFX_WM(WM_DESTROY, OnDestroy, (), ())
#define ON_WM_NCDESTROY() VAFX_WM(WM_NCDESTROY, OnNcDestroy, (), ())
#define ON_WM_CLOSE() VAFX_WM(WM_CLOSE, OnClose, (), ())
#define ON_WM_QUERYENDSESSION() VAFX_WM_RESULT(WM_QUERYENDSESSION, BOOL, OnQueryEndSession, (), ())
#define ON_WM_ENDSESSION() VAFX_WM(WM_ENDSESSION, OnEndSession, (BOOL), (static_cast<BOOL>(d.wParam)))
///@}

/** @name Place, size, activation */
///@{
#define ON_WM_MOVE() VAFX_WM(WM_MOVE, OnMove, (int, int), (vafx::X(d.lParam), vafx::Y(d.lParam)))
#define ON_WM_SIZE()                                                                                         \
    VAFX_WM(WM_SIZE, OnSize, (UINT, int, int),                                                               \
            (static_cast<UINT>(d.wParam), vafx::X(d.lParam), vafx::Y(d.lParam)))
#define ON_WM_MOVING()                                                                                       \
    VAFX_WM(WM_MOVING, OnMoving, (UINT, LPRECT), (static_cast<UINT>(d.wParam), vafx::Pointer<RECT>(d.lParam)))
#define ON_WM_SIZING()                                                                                       \
    VAFX_WM(WM_SIZING, OnSizing, (UINT, LPRECT), (static_cast<UINT>(d.wParam), vafx::Pointer<RECT>(d.lParam)))
#define ON_WM_ENTERSIZEMOVE() VAFX_WM(WM_ENTERSIZEMOVE, OnEnterSizeMove, (), ())
#define ON_WM_EXITSIZEMOVE() VAFX_WM(WM_EXITSIZEMOVE, OnExitSizeMove, (), ())
#define ON_WM_GETMINMAXINFO()                                                                                \
    VAFX_WM(WM_GETMINMAXINFO, OnGetMinMaxInfo, (MINMAXINFO*), (vafx::Pointer<MINMAXINFO>(d.lParam)))
#define ON_WM_WINDOWPOSCHANGING()                                                                            \
    VAFX_WM(WM_WINDOWPOSCHANGING, OnWindowPosChanging, (WINDOWPOS*), (vafx::Pointer<WINDOWPOS>(d.lParam)))
#define ON_WM_WINDOWPOSCHANGED()                                                                             \
    VAFX_WM(WM_WINDOWPOSCHANGED, OnWindowPosChanged, (WINDOWPOS*), (vafx::Pointer<WINDOWPOS>(d.lParam)))
#define ON_WM_SHOWWINDOW()                                                                                   \
    VAFX_WM(WM_SHOWWINDOW, OnShowWindow, (BOOL, UINT),                                                       \
            (static_cast<BOOL>(d.wParam), static_cast<UINT>(d.lParam)))
#define ON_WM_ENABLE() VAFX_WM(WM_ENABLE, OnEnable, (BOOL), (static_cast<BOOL>(d.wParam)))
#define ON_WM_ACTIVATE()                                                                                     \
    VAFX_WM(WM_ACTIVATE, OnActivate, (UINT, CWnd*, BOOL),                                                    \
            (LOWORD(d.wParam), vafx::Window(d.lParam), HIWORD(d.wParam)))
#define ON_WM_ACTIVATEAPP()                                                                                  \
    VAFX_WM(WM_ACTIVATEAPP, OnActivateApp, (BOOL, DWORD),                                                    \
            (static_cast<BOOL>(d.wParam), static_cast<DWORD>(d.lParam)))
#define ON_WM_SETFOCUS() VAFX_WM(WM_SETFOCUS, OnSetFocus, (CWnd*), (vafx::Window(d.wParam)))
#define ON_WM_KILLFOCUS() VAFX_WM(WM_KILLFOCUS, OnKillFocus, (CWnd*), (vafx::Window(d.wParam)))
#define ON_WM_CHILDACTIVATE() VAFX_WM(WM_CHILDACTIVATE, OnChildActivate, (), ())
#define ON_WM_PARENTNOTIFY()                                                                                 \
    VAFX_WM(WM_PARENTNOTIFY, OnParentNotify, (UINT, LPARAM), (static_cast<UINT>(d.wParam), d.lParam))
///@}

/** @name Painting and the system */
///@{
#define ON_WM_PAINT() VAFX_WM(WM_PAINT, OnPaint, (), ())
#define ON_WM_ERASEBKGND()                                                                                   \
    VAFX_WM_RESULT(WM_ERASEBKGND, BOOL, OnEraseBkgnd, (CDC*), (vafx::DeviceContext(d.wParam)))
#define ON_WM_SETCURSOR()                                                                                    \
    VAFX_WM_RESULT(WM_SETCURSOR, BOOL, OnSetCursor, (CWnd*, UINT, UINT),                                     \
                   (vafx::Window(d.wParam), LOWORD(d.lParam), HIWORD(d.lParam)))
#define ON_WM_SYSCOLORCHANGE() VAFX_WM(WM_SYSCOLORCHANGE, OnSysColorChange, (), ())
#define ON_WM_SETTINGCHANGE()                                                                                \
    VAFX_WM(WM_SETTINGCHANGE, OnSettingChange, (UINT, LPCTSTR),                                              \
            (static_cast<UINT>(d.wParam), vafx::Pointer<const wchar_t>(d.lParam)))
#define ON_WM_TIMECHANGE() VAFX_WM(WM_TIMECHANGE, OnTimeChange, (), ())
#define ON_WM_DEVICECHANGE()                                                                                 \
    VAFX_WM_RESULT(WM_DEVICECHANGE, BOOL, OnDeviceChange, (UINT, DWORD_PTR),                                 \
                   (static_cast<UINT>(d.wParam), static_cast<DWORD_PTR>(d.lParam)))
#define ON_WM_POWERBROADCAST()                                                                               \
    VAFX_WM_RESULT(WM_POWERBROADCAST, UINT, OnPowerBroadcast, (UINT, LPARAM),                                \
                   (static_cast<UINT>(d.wParam), d.lParam))
///@}

/** @name Outside the client area */
///@{
#define ON_WM_NCPAINT() VAFX_WM(WM_NCPAINT, OnNcPaint, (), ())
#define ON_WM_NCACTIVATE()                                                                                   \
    VAFX_WM_RESULT(WM_NCACTIVATE, BOOL, OnNcActivate, (BOOL), (static_cast<BOOL>(d.wParam)))
#define ON_WM_NCCALCSIZE()                                                                                   \
    VAFX_WM(WM_NCCALCSIZE, OnNcCalcSize, (BOOL, NCCALCSIZE_PARAMS*),                                         \
            (static_cast<BOOL>(d.wParam), vafx::Pointer<NCCALCSIZE_PARAMS>(d.lParam)))
#define ON_WM_NCHITTEST()                                                                                    \
    VAFX_WM_RESULT(WM_NCHITTEST, LRESULT, OnNcHitTest, (CPoint), (vafx::Point(d.lParam)))
#define ON_WM_NCMOUSEMOVE()                                                                                  \
    VAFX_WM(WM_NCMOUSEMOVE, OnNcMouseMove, (UINT, CPoint),                                                   \
            (static_cast<UINT>(d.wParam), vafx::Point(d.lParam)))
#define ON_WM_NCLBUTTONDOWN()                                                                                \
    VAFX_WM(WM_NCLBUTTONDOWN, OnNcLButtonDown, (UINT, CPoint),                                               \
            (static_cast<UINT>(d.wParam), vafx::Point(d.lParam)))
#define ON_WM_NCLBUTTONUP()                                                                                  \
    VAFX_WM(WM_NCLBUTTONUP, OnNcLButtonUp, (UINT, CPoint),                                                   \
            (static_cast<UINT>(d.wParam), vafx::Point(d.lParam)))
#define ON_WM_NCLBUTTONDBLCLK()                                                                              \
    VAFX_WM(WM_NCLBUTTONDBLCLK, OnNcLButtonDblClk, (UINT, CPoint),                                           \
            (static_cast<UINT>(d.wParam), vafx::Point(d.lParam)))
#define ON_WM_NCRBUTTONDOWN()                                                                                \
    VAFX_WM(WM_NCRBUTTONDOWN, OnNcRButtonDown, (UINT, CPoint),                                               \
            (static_cast<UINT>(d.wParam), vafx::Point(d.lParam)))
#define ON_WM_NCRBUTTONUP()                                                                                  \
    VAFX_WM(WM_NCRBUTTONUP, OnNcRButtonUp, (UINT, CPoint),                                                   \
            (static_cast<UINT>(d.wParam), vafx::Point(d.lParam)))
///@}

/** @name Mouse */
///@{
#define ON_WM_MOUSEMOVE()                                                                                    \
    VAFX_WM(WM_MOUSEMOVE, OnMouseMove, (UINT, CPoint), (static_cast<UINT>(d.wParam), vafx::Point(d.lParam)))
#define ON_WM_LBUTTONDOWN()                                                                                  \
    VAFX_WM(WM_LBUTTONDOWN, OnLButtonDown, (UINT, CPoint),                                                   \
            (static_cast<UINT>(d.wParam), vafx::Point(d.lParam)))
#define ON_WM_LBUTTONUP()                                                                                    \
    VAFX_WM(WM_LBUTTONUP, OnLButtonUp, (UINT, CPoint), (static_cast<UINT>(d.wParam), vafx::Point(d.lParam)))
#define ON_WM_LBUTTONDBLCLK()                                                                                \
    VAFX_WM(WM_LBUTTONDBLCLK, OnLButtonDblClk, (UINT, CPoint),                                               \
            (static_cast<UINT>(d.wParam), vafx::Point(d.lParam)))
#define ON_WM_RBUTTONDOWN()                                                                                  \
    VAFX_WM(WM_RBUTTONDOWN, OnRButtonDown, (UINT, CPoint),                                                   \
            (static_cast<UINT>(d.wParam), vafx::Point(d.lParam)))
#define ON_WM_RBUTTONUP()                                                                                    \
    VAFX_WM(WM_RBUTTONUP, OnRButtonUp, (UINT, CPoint), (static_cast<UINT>(d.wParam), vafx::Point(d.lParam)))
#define ON_WM_RBUTTONDBLCLK()                                                                                \
    VAFX_WM(WM_RBUTTONDBLCLK, OnRButtonDblClk, (UINT, CPoint),                                               \
            (static_cast<UINT>(d.wParam), vafx::Point(d.lParam)))
#define ON_WM_MBUTTONDOWN()                                                                                  \
    VAFX_WM(WM_MBUTTONDOWN, OnMButtonDown, (UINT, CPoint),                                                   \
            (static_cast<UINT>(d.wParam), vafx::Point(d.lParam)))
#define ON_WM_MBUTTONUP()                                                                                    \
    VAFX_WM(WM_MBUTTONUP, OnMButtonUp, (UINT, CPoint), (static_cast<UINT>(d.wParam), vafx::Point(d.lParam)))
#define ON_WM_MBUTTONDBLCLK()                                                                                \
    VAFX_WM(WM_MBUTTONDBLCLK, OnMButtonDblClk, (UINT, CPoint),                                               \
            (static_cast<UINT>(d.wParam), vafx::Point(d.lParam)))
#define ON_WM_MOUSEWHEEL()                                                                                   \
    VAFX_WM_RESULT(WM_MOUSEWHEEL, BOOL, OnMouseWheel, (UINT, short, CPoint),                                 \
                   (LOWORD(d.wParam), static_cast<short>(HIWORD(d.wParam)), vafx::Point(d.lParam)))
#define ON_WM_MOUSEHWHEEL()                                                                                  \
    VAFX_WM(WM_MOUSEHWHEEL, OnMouseHWheel, (UINT, short, CPoint),                                            \
            (LOWORD(d.wParam), static_cast<short>(HIWORD(d.wParam)), vafx::Point(d.lParam)))
#define ON_WM_MOUSEHOVER()                                                                                   \
    VAFX_WM(WM_MOUSEHOVER, OnMouseHover, (UINT, CPoint), (static_cast<UINT>(d.wParam), vafx::Point(d.lParam)))
#define ON_WM_MOUSELEAVE() VAFX_WM(WM_MOUSELEAVE, OnMouseLeave, (), ())
#define ON_WM_MOUSEACTIVATE()                                                                                \
    VAFX_WM_RESULT(WM_MOUSEACTIVATE, int, OnMouseActivate, (CWnd*, UINT, UINT),                              \
                   (vafx::Window(d.wParam), LOWORD(d.lParam), HIWORD(d.lParam)))
#define ON_WM_CAPTURECHANGED() VAFX_WM(WM_CAPTURECHANGED, OnCaptureChanged, (CWnd*), (vafx::Window(d.lParam)))
#define ON_WM_CANCELMODE() VAFX_WM(WM_CANCELMODE, OnCancelMode, (), ())
#define ON_WM_CONTEXTMENU()                                                                                  \
    VAFX_WM(WM_CONTEXTMENU, OnContextMenu, (CWnd*, CPoint), (vafx::Window(d.wParam), vafx::Point(d.lParam)))
///@}

/** @name Keyboard */
///@{
#define ON_WM_KEYDOWN()                                                                                      \
    VAFX_WM(WM_KEYDOWN, OnKeyDown, (UINT, UINT, UINT),                                                       \
            (static_cast<UINT>(d.wParam), LOWORD(d.lParam), HIWORD(d.lParam)))
#define ON_WM_KEYUP()                                                                                        \
    VAFX_WM(WM_KEYUP, OnKeyUp, (UINT, UINT, UINT),                                                           \
            (static_cast<UINT>(d.wParam), LOWORD(d.lParam), HIWORD(d.lParam)))
#define ON_WM_CHAR()                                                                                         \
    VAFX_WM(WM_CHAR, OnChar, (UINT, UINT, UINT),                                                             \
            (static_cast<UINT>(d.wParam), LOWORD(d.lParam), HIWORD(d.lParam)))
#define ON_WM_SYSKEYDOWN()                                                                                   \
    VAFX_WM(WM_SYSKEYDOWN, OnSysKeyDown, (UINT, UINT, UINT),                                                 \
            (static_cast<UINT>(d.wParam), LOWORD(d.lParam), HIWORD(d.lParam)))
#define ON_WM_SYSKEYUP()                                                                                     \
    VAFX_WM(WM_SYSKEYUP, OnSysKeyUp, (UINT, UINT, UINT),                                                     \
            (static_cast<UINT>(d.wParam), LOWORD(d.lParam), HIWORD(d.lParam)))
#define ON_WM_SYSCHAR()                                                                                      \
    VAFX_WM(WM_SYSCHAR, OnSysChar, (UINT, UINT, UINT),                                                       \
            (static_cast<UINT>(d.wParam), LOWORD(d.lParam), HIWORD(d.lParam)))
#define ON_WM_GETDLGCODE() VAFX_WM_RESULT(WM_GETDLGCODE, UINT, OnGetDlgCode, (), ())
#define ON_WM_SYSCOMMAND()                                                                                   \
    VAFX_WM(WM_SYSCOMMAND, OnSysCommand, (UINT, LPARAM), (static_cast<UINT>(d.wParam), d.lParam))
///@}

/** @name Timers, controls, transfer */
///@{
#define ON_WM_TIMER() VAFX_WM(WM_TIMER, OnTimer, (UINT_PTR), (d.wParam))
#define ON_WM_HSCROLL()                                                                                      \
    VAFX_WM(WM_HSCROLL, OnHScroll, (UINT, UINT, CScrollBar*),                                                \
            (LOWORD(d.wParam), HIWORD(d.wParam), vafx::ScrollBar(d.lParam)))
#define ON_WM_VSCROLL()                                                                                      \
    VAFX_WM(WM_VSCROLL, OnVScroll, (UINT, UINT, CScrollBar*),                                                \
            (LOWORD(d.wParam), HIWORD(d.wParam), vafx::ScrollBar(d.lParam)))
#define ON_WM_CTLCOLOR()                                                                                     \
    VAFX_WM_RESULT(vafx::ctlColorMessage, HBRUSH, OnCtlColor, (CDC*, CWnd*, UINT),                           \
                   (vafx::DeviceContext(d.wParam), vafx::Window(d.lParam), d.ident))
#define ON_WM_DRAWITEM()                                                                                     \
    VAFX_WM(WM_DRAWITEM, OnDrawItem, (int, LPDRAWITEMSTRUCT),                                                \
            (static_cast<int>(d.wParam), vafx::Pointer<DRAWITEMSTRUCT>(d.lParam)))
#define ON_WM_MEASUREITEM()                                                                                  \
    VAFX_WM(WM_MEASUREITEM, OnMeasureItem, (int, LPMEASUREITEMSTRUCT),                                       \
            (static_cast<int>(d.wParam), vafx::Pointer<MEASUREITEMSTRUCT>(d.lParam)))
#define ON_WM_DELETEITEM()                                                                                   \
    VAFX_WM(WM_DELETEITEM, OnDeleteItem, (int, LPDELETEITEMSTRUCT),                                          \
            (static_cast<int>(d.wParam), vafx::Pointer<DELETEITEMSTRUCT>(d.lParam)))
#define ON_WM_COMPAREITEM()                                                                                  \
    VAFX_WM_RESULT(WM_COMPAREITEM, int, OnCompareItem, (int, LPCOMPAREITEMSTRUCT),                           \
                   (static_cast<int>(d.wParam), vafx::Pointer<COMPAREITEMSTRUCT>(d.lParam)))
#define ON_WM_DROPFILES() VAFX_WM(WM_DROPFILES, OnDropFiles, (HDROP), (reinterpret_cast<HDROP>(d.wParam)))
#define ON_WM_COPYDATA()                                                                                     \
    VAFX_WM_RESULT(WM_COPYDATA, BOOL, OnCopyData, (CWnd*, COPYDATASTRUCT*),                                  \
                   (vafx::Window(d.wParam), vafx::Pointer<COPYDATASTRUCT>(d.lParam)))
///@}
