#pragma once

#include "core/VantApi.h"
#include "values/CEVal.h"

#include <afx.h>

#include <memory>

class CEMenu;

/** An entry of a menu: its text, and what choosing it does.
 *
 *  In the text an ampersand stands before the letter that chooses the entry from the keyboard, and a tab
 * before the key that chooses it without the menu: "&Save\tCtrl+S". Made by CEMenu, and belongs to it. */
class VANT_API CEMEnt
{
public:
    /** Values of #mark. */
    enum Mark {
        markNone = 0,   ///< none
        markCheck = 1,  ///< a check mark
        markBullet = 2, ///< the mark of one choice out of several
    };

    CEMEnt();
    CEMEnt(const CEMEnt&) = delete;
    CEMEnt& operator=(const CEMEnt&) = delete;
    ~CEMEnt();

    /** @name Fields */
    ///@{
    CString text;              ///< with its mnemonic and its key; empty for a line between entries
    int enabled = 1;           ///< 0: greyed, and cannot be chosen
    int mark = markNone;       ///< Mark; a bound variable goes before it
    int info = 0;              ///< message that the platform windows get (CVantWnd::InfoMsg()); 0 for none
    void* data = nullptr;      ///< sent with it, and given to a callback that takes a pointer. Not owned.
    CObject* pCbObj = nullptr; ///< target of the callbacks; must outlive the menu
    CEVal::CbNone pCbNone = nullptr; ///< called without an argument
    CEVal::CbPtr pCbPtr = nullptr;   ///< called with #data
    int* pVar = nullptr;             ///< variable of Check() or Choice(); null for none. Not owned.
    int varVal = 1;                  ///< its bits, or its value
    int oneOf = 0;                   ///< non-zero: the variable holds one of several values, else bits
    std::unique_ptr<CEMenu> sub;     ///< the menu that opens beside the entry; null for none
    /** @} */

    /** @name Setting, in a row: `menu.Add(L"&Grid", infoGrid)->Check(m_grid)->Enable(m_hasGrid)` */
    ///@{
    /** Greys the entry, or not any more. */
    CEMEnt* Enable(int on);
    /** Sets #mark. */
    CEMEnt* SetMark(int newMark);
    /** Lets a bit of an int be set, and toggled before anything is called; it must outlive the menu. */
    CEMEnt* Check(int& var, int bits = 1);
    /** Lets an int have a value, and be given it before anything is called. */
    CEMEnt* Choice(int& var, int value);
    /** @} */

    /** Whether it is a line between entries. */
    bool IsSeparator() const { return text.IsEmpty() && !sub; }
    /** Whether the entry does something when it is chosen: neither greyed, nor a line or a sub-menu. */
    bool IsChoosable() const { return enabled && !IsSeparator() && !sub; }
    /** The mark that is shown, Mark. */
    int ShownMark() const;
    /** The part of the text before the tab. */
    CString Label() const;
    /** The part of the text behind the tab, which names a key; empty without one. */
    CString Key() const;

    /** Does what choosing the entry does: the variable, the callbacks, the message. The menu may be gone
     * then. */
    void Run();
};
