#pragma once

#include "core/VantApi.h"
#include "values/CStrVal.h"

class CEList;

/** An entry of a list or combo box: a text, and what it stands for: an item of the application or a number.
 *
 *  An entry with neither stands for its text, and for its place in the list where a number is asked for. The
 * item is never followed or freed. Entries in a list belong to it. */
class VANT_API CELEnt : public CStrVal
{
public:
    /** Values of #kind. */
    enum Kind {
        kindText = 0, ///< no more than a text
        kindItem = 1, ///< stands for #item
        kindNum = 2,  ///< stands for #value
    };

    CELEnt() = default;
    /** An entry with a text: alone, with an item of the application, or with a number. */
    explicit CELEnt(const CString& entryText);
    CELEnt(const CString& entryText, void* entryItem);
    CELEnt(const CString& entryText, double entryValue);
    explicit CELEnt(const CStrVal& pair);
    /** A copy is in no list, and an assignment leaves an entry at its place. */
    CELEnt(const CELEnt& other);
    CELEnt& operator=(const CELEnt& other);

    int kind = kindText;  ///< what it stands for, Kind
    void* item = nullptr; ///< the application's; may be null in an entry of kindItem too. Not owned.

    /** Place in its list, from 0; -1 outside a list. */
    int Index() const noexcept { return m_index; }

private:
    friend class CEList;

    int m_index = -1;
};
