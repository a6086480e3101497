#pragma once

#include "vafx/api.h"

#include <type_traits>
#include <windows.h>

/** @file
 *  Message maps: the table of a class's handlers, and the macros that fill it for commands, notifications and
 *  messages of one's own. The macros for the system's messages are in MessageMapWnd.h, those for reflected
 *  messages in MessageMapReflect.h.
 *
 *  An entry holds a small function that unpacks the message and calls the member function. The member's type
 *  is checked against the documented one where the map is compiled, and the tables are constant data. */

class CCmdTarget;

#define afx_msg

/** A command, as opposed to a control's notification, in CCmdTarget::OnCmdMsg. */
constexpr int CN_COMMAND = 0;

/** What CCmdTarget::OnCmdMsg fills in, instead of calling the handler, when it is only asked for one. */
struct AFX_CMDHANDLERINFO {
    CCmdTarget* pTarget; ///< The object that would handle the command.
};

/** What accompanies a WM_NOTIFY code in CCmdTarget::OnCmdMsg. */
struct AFX_NOTIFY {
    LRESULT* pResult;
    NMHDR* pNMHDR;
};

namespace vafx
{

/** A message on its way to a handler. */
struct Dispatch {
    WPARAM wParam = 0;
    LPARAM lParam = 0;
    UINT ident = 0;           ///< Command or control identifier; kind of control for WM_CTLCOLOR.
    NMHDR* notify = nullptr;  ///< Set for WM_NOTIFY.
    LRESULT result = 0;       ///< Set by the handler.
    LRESULT* reply = &result; ///< Where a handler of WM_NOTIFY writes its answer.
    bool handled = true;      ///< Cleared by an extended handler that passes the message on.

    template <class T>
    void Set(T value) noexcept
    {
        if constexpr (std::is_pointer_v<T>)
            result = reinterpret_cast<LRESULT>(value);
        else
            result = static_cast<LRESULT>(value);
    }
};

/** Stands in an entry's message for "the value of this registered message". */
constexpr UINT registeredMessage = 0xC000;

/** All WM_CTLCOLOR... messages share one entry, under the number of their 16-bit ancestor. */
constexpr UINT ctlColorMessage = 0x0019;

/** Added to a message that a parent hands back to the control it came from. */
constexpr UINT reflectBase = 0xBC00;

} // namespace vafx

struct AFX_MSGMAP_ENTRY {
    UINT nMessage;
    UINT nCode;
    UINT nID;
    UINT nLastID;
    void (*pfn)(CCmdTarget* target, vafx::Dispatch& d);
    const UINT* pRegistered;
};

struct AFX_MSGMAP {
    const AFX_MSGMAP*(PASCAL* pfnGetBaseMap)();
    const AFX_MSGMAP_ENTRY* lpEntries;
};

/** Stands at the end of the declaration of a class that has a message map. */
#define DECLARE_MESSAGE_MAP()                                                                                \
protected:                                                                                                   \
    static const AFX_MSGMAP* PASCAL GetThisMessageMap();                                                     \
    virtual const AFX_MSGMAP* GetMessageMap() const;

/** Opens the message map of @p theClass; what it does not handle goes to the map of @p baseClass. */
#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                               \
    const AFX_MSGMAP* theClass::GetMessageMap() const                                                        \
    {                                                                                                        \
        return GetThisMessageMap();                                                                          \
    }                                                                                                        \
    const AFX_MSGMAP* PASCAL theClass::GetThisMessageMap()                                                   \
    {                                                                                                        \
        using ThisClass [[maybe_unused]] = theClass;                                                         \
        using TheBaseClass = baseClass;                                                                      \
        static const AFX_MSGMAP_ENTRY entries[] = {

/** The same for a class template with one parameter, named @p type_name. */
#define BEGIN_TEMPLATE_MESSAGE_MAP(theClass, type_name, baseClass)                                           \
    template <typename type_name>                                                                            \
    const AFX_MSGMAP* theClass<type_name>::GetMessageMap() const                                             \
    {                                                                                                        \
        return GetThisMessageMap();                                                                          \
    }                                                                                                        \
    template <typename type_name>                                                                            \
    const AFX_MSGMAP* PASCAL theClass<type_name>::GetThisMessageMap()                                        \
    {                                                                                                        \
        using ThisClass [[maybe_unused]] = theClass<type_name>;                                              \
        using TheBaseClass = baseClass;                                                                      \
        static const AFX_MSGMAP_ENTRY entries[] = {

#define END_MESSAGE_MAP()                                                                                    \
    {                                                                                                        \
        0, 0, 0, 0, nullptr, nullptr                                                                         \
    }                                                                                                        \
    }                                                                                                        \
    ;                                                                                                        \
    static const AFX_MSGMAP map = {&TheBaseClass::GetThisMessageMap, entries};                               \
    return &map;                                                                                             \
    }

/** A call of a handler of the type @p R @p params with @p args. */
#define VAFX_CALL(R, memberFxn, params, args)                                                                \
    (static_cast<ThisClass*>(target)->*static_cast<R(ThisClass::*) params>(memberFxn)) args

/** An entry whose handler does, with `target` and `d`, what @p body says. */
#define VAFX_ENTRY(message, code, id, lastId, registered, body)                                              \
    {message,                                                                                                \
     static_cast<UINT>(code),                                                                                \
     static_cast<UINT>(id),                                                                                  \
     static_cast<UINT>(lastId),                                                                              \
     [](CCmdTarget* target, [[maybe_unused]] vafx::Dispatch& d) { body; },                                   \
     registered},

/** `void memberFxn()` for the command @p id of a menu, an accelerator or a button. */
#define ON_COMMAND(id, memberFxn)                                                                            \
    VAFX_ENTRY(WM_COMMAND, CN_COMMAND, id, id, nullptr, VAFX_CALL(void, memberFxn, (), ()))

/** `BOOL memberFxn(UINT id)`: FALSE passes the command on. */
#define ON_COMMAND_EX(id, memberFxn)                                                                         \
    VAFX_ENTRY(WM_COMMAND, CN_COMMAND, id, id, nullptr,                                                      \
               d.handled = VAFX_CALL(BOOL, memberFxn, (UINT), (d.ident)) != FALSE)

/** `void memberFxn(UINT id)` for the commands from @p id to @p idLast. */
#define ON_COMMAND_RANGE(id, idLast, memberFxn)                                                              \
    VAFX_ENTRY(WM_COMMAND, CN_COMMAND, id, idLast, nullptr, VAFX_CALL(void, memberFxn, (UINT), (d.ident)))

/** `void memberFxn()` for the notification @p wNotifyCode (a high word of WM_COMMAND) of the control @p id.
 */
#define ON_CONTROL(wNotifyCode, id, memberFxn)                                                               \
    VAFX_ENTRY(WM_COMMAND, wNotifyCode, id, id, nullptr, VAFX_CALL(void, memberFxn, (), ()))

/** `void memberFxn(UINT id)` for that notification of the controls from @p id to @p idLast. */
#define ON_CONTROL_RANGE(wNotifyCode, id, idLast, memberFxn)                                                 \
    VAFX_ENTRY(WM_COMMAND, wNotifyCode, id, idLast, nullptr, VAFX_CALL(void, memberFxn, (UINT), (d.ident)))

/** `void memberFxn(NMHDR*, LRESULT*)` for a WM_NOTIFY of the control @p id. */
#define ON_NOTIFY(wNotifyCode, id, memberFxn)                                                                \
    VAFX_ENTRY(WM_NOTIFY, wNotifyCode, id, id, nullptr,                                                      \
               VAFX_CALL(void, memberFxn, (NMHDR*, LRESULT*), (d.notify, d.reply)))

/** `BOOL memberFxn(UINT id, NMHDR*, LRESULT*)`: FALSE passes the notification on. */
#define ON_NOTIFY_EX(wNotifyCode, id, memberFxn)                                                             \
    VAFX_ENTRY(WM_NOTIFY, wNotifyCode, id, id, nullptr,                                                      \
               d.handled = VAFX_CALL(BOOL, memberFxn, (UINT, NMHDR*, LRESULT*),                              \
                                     (d.ident, d.notify, d.reply)) != FALSE)

/** `void memberFxn(UINT id, NMHDR*, LRESULT*)` for a WM_NOTIFY of the controls from @p id to @p idLast. */
#define ON_NOTIFY_RANGE(wNotifyCode, id, idLast, memberFxn)                                                  \
    VAFX_ENTRY(WM_NOTIFY, wNotifyCode, id, idLast, nullptr,                                                  \
               VAFX_CALL(void, memberFxn, (UINT, NMHDR*, LRESULT*), (d.ident, d.notify, d.reply)))

/** `LRESULT memberFxn(WPARAM, LPARAM)` for a message that has no macro of its own. */
#define ON_MESSAGE(message, memberFxn)                                                                       \
    VAFX_ENTRY(message, 0, 0, 0, nullptr,                                                                    \
               d.result = VAFX_CALL(LRESULT, memberFxn, (WPARAM, LPARAM), (d.wParam, d.lParam)))

/** The same for a message from RegisterWindowMessage; @p nMessageVariable is the UINT that holds its number.
 */
#define ON_REGISTERED_MESSAGE(nMessageVariable, memberFxn)                                                   \
    VAFX_ENTRY(vafx::registeredMessage, 0, 0, 0, &nMessageVariable,                                          \
               d.result = VAFX_CALL(LRESULT, memberFxn, (WPARAM, LPARAM), (d.wParam, d.lParam)))

/** @name Notifications of the standard controls, `void memberFxn()` */
///@{
#define ON_BN_CLICKED(id, memberFxn) ON_CONTROL(BN_CLICKED, id, memberFxn)
#define ON_BN_DOUBLECLICKED(id, memberFxn) ON_CONTROL(BN_DOUBLECLICKED, id, memberFxn)
#define ON_BN_SETFOCUS(id, memberFxn) ON_CONTROL(BN_SETFOCUS, id, memberFxn)
#define ON_BN_KILLFOCUS(id, memberFxn) ON_CONTROL(BN_KILLFOCUS, id, memberFxn)
#define ON_STN_CLICKED(id, memberFxn) ON_CONTROL(STN_CLICKED, id, memberFxn)
#define ON_EN_SETFOCUS(id, memberFxn) ON_CONTROL(EN_SETFOCUS, id, memberFxn)
#define ON_EN_KILLFOCUS(id, memberFxn) ON_CONTROL(EN_KILLFOCUS, id, memberFxn)
#define ON_EN_CHANGE(id, memberFxn) ON_CONTROL(EN_CHANGE, id, memberFxn)
#define ON_EN_UPDATE(id, memberFxn) ON_CONTROL(EN_UPDATE, id, memberFxn)
#define ON_EN_ERRSPACE(id, memberFxn) ON_CONTROL(EN_ERRSPACE, id, memberFxn)
#define ON_EN_MAXTEXT(id, memberFxn) ON_CONTROL(EN_MAXTEXT, id, memberFxn)
#define ON_EN_HSCROLL(id, memberFxn) ON_CONTROL(EN_HSCROLL, id, memberFxn)
#define ON_EN_VSCROLL(id, memberFxn) ON_CONTROL(EN_VSCROLL, id, memberFxn)
///@}
