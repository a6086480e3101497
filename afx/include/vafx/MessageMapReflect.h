#pragma once

#include "vafx/MessageMapWnd.h"

/** @file
 *  Message-map macros for messages that a control sends to its parent and that the parent's CWnd hands back
 * to the control, so that a control can handle them itself. Commands and notifications come to the control
 *  first; the other messages come to it when the parent's own handler, if any, calls the base's. */

/** `void memberFxn()` for the control's own notification; the parent does not see it. */
#define ON_CONTROL_REFLECT(wNotifyCode, memberFxn)                                                           \
    VAFX_ENTRY(vafx::reflectBase + WM_COMMAND, wNotifyCode, 0, 0, nullptr, VAFX_CALL(void, memberFxn, (), ()))

/** `BOOL memberFxn()`: FALSE lets the parent see the notification too. */
#define ON_CONTROL_REFLECT_EX(wNotifyCode, memberFxn)                                                        \
    VAFX_ENTRY(vafx::reflectBase + WM_COMMAND, wNotifyCode, 0, 0, nullptr,                                   \
               d.handled = VAFX_CALL(BOOL, memberFxn, (), ()) != FALSE)

/** `void memberFxn(NMHDR*, LRESULT*)` for the control's own WM_NOTIFY; the parent does not see it. */
#define ON_NOTIFY_REFLECT(wNotifyCode, memberFxn)                                                            \
    VAFX_ENTRY(vafx::reflectBase + WM_NOTIFY, wNotifyCode, 0, 0, nullptr,                                    \
               VAFX_CALL(void, memberFxn, (NMHDR*, LRESULT*), (d.notify, d.reply)))

/** `BOOL memberFxn(NMHDR*, LRESULT*)`: FALSE lets the parent see the notification too. */
#define ON_NOTIFY_REFLECT_EX(wNotifyCode, memberFxn)                                                         \
    VAFX_ENTRY(vafx::reflectBase + WM_NOTIFY, wNotifyCode, 0, 0, nullptr,                                    \
               d.handled = VAFX_CALL(BOOL, memberFxn, (NMHDR*, LRESULT*), (d.notify, d.reply)) != FALSE)

/** `HBRUSH CtlColor(CDC*, UINT nCtlColor)`: a null brush leaves the colours to the parent. */
#define ON_WM_CTLCOLOR_REFLECT()                                                                             \
    VAFX_ENTRY(vafx::reflectBase + vafx::ctlColorMessage, 0, 0, 0, nullptr,                                  \
               d.Set(VAFX_CALL(HBRUSH, &ThisClass::CtlColor, (CDC*, UINT),                                   \
                               (vafx::DeviceContext(d.wParam), d.ident)));                                   \
               d.handled = d.result != 0)

/** `void DrawItem(LPDRAWITEMSTRUCT)` */
#define ON_WM_DRAWITEM_REFLECT()                                                                             \
    VAFX_WM(vafx::reflectBase + WM_DRAWITEM, DrawItem, (LPDRAWITEMSTRUCT),                                   \
            (vafx::Pointer<DRAWITEMSTRUCT>(d.lParam)))

/** `void MeasureItem(LPMEASUREITEMSTRUCT)` */
#define ON_WM_MEASUREITEM_REFLECT()                                                                          \
    VAFX_WM(vafx::reflectBase + WM_MEASUREITEM, MeasureItem, (LPMEASUREITEMSTRUCT),                          \
            (vafx::Pointer<MEASUREITEMSTRUCT>(d.lParam)))

/** `void DeleteItem(LPDELETEITEMSTRUCT)` */
#define ON_WM_DELETEITEM_REFLECT()                                                                           \
    VAFX_WM(vafx::reflectBase + WM_DELETEITEM, DeleteItem, (LPDELETEITEMSTRUCT),                             \
            (vafx::Pointer<DELETEITEMSTRUCT>(d.lParam)))

/** `int CompareItem(LPCOMPAREITEMSTRUCT)` */
#define ON_WM_COMPAREITEM_REFLECT()                                                                          \
    VAFX_WM_RESULT(vafx::reflectBase + WM_COMPAREITEM, int, CompareItem, (LPCOMPAREITEMSTRUCT),              \
                   (vafx::Pointer<COMPAREITEMSTRUCT>(d.lParam)))

/** `void HScroll(UINT nSBCode, UINT nPos)` */
#define ON_WM_HSCROLL_REFLECT()                                                                              \
    VAFX_WM(vafx::reflectBase + WM_HSCROLL, HScroll, (UINT, UINT), (LOWORD(d.wParam), HIWORD(d.wParam)))

/** `void VScroll(UINT nSBCode, UINT nPos)` */
#define ON_WM_VSCROLL_REFLECT()                                                                              \
    VAFX_WM(vafx::reflectBase + WM_VSCROLL, VScroll, (UINT, UINT), (LOWORD(d.wParam), HIWORD(d.wParam)))

/** `void ParentNotify(UINT message, LPARAM lParam)` */
#define ON_WM_PARENTNOTIFY_REFLECT()                                                                         \
    VAFX_WM(vafx::reflectBase + WM_PARENTNOTIFY, ParentNotify, (UINT, LPARAM),                               \
            (static_cast<UINT>(d.wParam), d.lParam))
