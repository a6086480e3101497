#pragma once

#include "core/CLstMgd.h"
#include "core/VantApi.h"
#include "settings/CESetItm.h"

#include <afx.h>
#include <type_traits>
#include <utility>

class CESetCol;
class CMat;
class CV3;

/** A named and typed object of the settings tree: a list of items, and free data lines.
 *
 *  A persistent class has one function that takes a CESetObj and calls Item for each of its variables. That
 *  function both writes and reads, because the tree's storing flag decides the direction:
 *  @code
 *  void CPlan::Settings(CESetObj& obj)
 *  {
 *      obj.Item(L"Scale", m_scale);
 *      obj.Item(L"Origin", m_origin);
 *  }
 *  @endcode
 *
 *  Reading goes by name. It is quickest in the order of writing, where each item is found at the first
 *  comparison; any order works. Items that nobody asks for are ignored, and a variable whose item is missing
 * or does not parse keeps its value.
 *
 *  What a file cannot keep: values with a quotation mark, a line break or a per cent sign, empty values
 *  (which are skipped on reading), data lines with a less-than sign, names with blanks, and text beyond 4,095
 *  characters. Not for use by several threads at a time. */
class VANT_API CESetObj : public CLstMgd<CESetItm>
{
public:
    /** An object outside any tree: it neither stores nor has an owner, so it counts as loading. */
    CESetObj() = default;
    /** @param col  the owning collection, which must outlive the object; may be null */
    CESetObj(const CString& name, const CString& type, CESetCol* col)
        : m_name(name)
        , m_type(type)
        , m_col(col)
    {
    }
    /** Copies name, type, items and data lines; the copy belongs to the same collection, without being in it.
     */
    CESetObj(const CESetObj& other);
    /** Copies name, type, items and data lines; this object stays in its own collection. */
    CESetObj& operator=(const CESetObj& other);
    ~CESetObj() override = default;

    /** The flag of the tree that the object belongs to: non-zero when it is being filled in order to be
     * saved. */
    int IsStoring() const noexcept;
    /** The negation of IsStoring. */
    int IsLoading() const noexcept { return !IsStoring(); }

    /** Formats a value like CString::Format and appends it as an item; items of that name may exist already.
     *  A format without arguments must not hold a per cent sign other than in pairs. */
    void Add(const CString& name, CString fmt, ...);

    /** Formats a text like CString::Format and appends it as a data line. */
    void Data(CString fmt, ...);

    /** Looks an item up by its exact name, from behind the last one found on, all around the list.
     *  @return 1 and the value, or 0 with `value` untouched */
    int GetItm(const CString& name, CString& value);

    /** @name Exchange of a variable
     *  When storing, append the variable as an item of that name. When loading, replace the variable if the
     *  item exists and the whole of its text parses; leave it alone otherwise. Text is read as scanf does:
     *  white space before a number is skipped, while anything behind it, even a blank, spoils it.
     *
     *  An integer that is too large for its variable keeps its low bits, and unsigned ones accept a minus
     *  sign, -1 being the largest value, as scanf has it. Floating numbers are written with six significant
     *  digits and always with a point, whatever the locale. A file brings in no value that is not a finite
     *  number: "inf", "nan", a hexadecimal fraction and a number too large for its type do not parse. A
     *  variable that is infinite or NaN is stored as "inf", "-inf" or "nan", and so keeps its default when
     *  it is loaded. @{ */
    /** An integer from 0 to 255. */
    void Item(const CString& name, unsigned char& v);
    /** One character of the system's code page; a blank is one too. */
    void Item(const CString& name, char& v);
    /** Hexadecimal: "0xff". The prefix is required. */
    void Item(const CString& name, unsigned long& v);
    void Item(const CString& name, short& v);
    void Item(const CString& name, unsigned short& v);
    void Item(const CString& name, int& v);
    void Item(const CString& name, unsigned int& v);
    void Item(const CString& name, float& v);
    void Item(const CString& name, double& v);
    /** The text as it is, not a format. */
    void Item(const CString& name, CString& v);
    /** "x, y, z". Text behind the third number does no harm, deliberately unlike a single number. */
    void Item(const CString& name, CV3& v);
    /** The twelve values row by row. Text behind the last does no harm. */
    void Item(const CString& name, CMat& v);
    /** @} */

    /** Exchanges a reference to another object by its key. Acts only when loading: an item that is empty or
     *  "NULL" makes the pointer null, any other makes it what `factory` gives for the text; without the item
     * the pointer stays. When storing the caller adds the key (or "NULL") itself.
     *  @param factory  called with the item's text (const CString&); returns a pointer, owned as it sees fit
     */
    template <class Factory>
    void Item(const CString& name, void*& p, Factory&& factory)
    {
        static_assert(std::is_invocable_r_v<void*, Factory&, const CString&>);
        CString key;
        if (IsLoading() && GetItm(name, key))
            p = key.IsEmpty() || key == L"NULL" ? nullptr : static_cast<void*>(factory(std::as_const(key)));
    }

    /** @name Removing items
     *  Each does what it does in the list (CLstMgd), and the next search begins at the head. Do not call the
     * base class's own on an object: the search may stand on the node that goes. @{ */
    void RemoveHead() { Rewound().RemoveHead(); }
    void RemoveTail() { Rewound().RemoveTail(); }
    void RemoveAt(CVantPtr* pos) { Rewound().RemoveAt(pos); }
    void RemoveBefore(CVantPtr* pos) { Rewound().RemoveBefore(pos); }
    void RemoveAfter(CVantPtr* pos) { Rewound().RemoveAfter(pos); }
    void Remove(CESetItm* item) { Rewound().Remove(item); }
    void RemoveAll() { Rewound().RemoveAll(); }
    void SetSize(unsigned count) { Rewound().SetSize(count); }
    void Grow(int count) { Rewound().Grow(count); }
    CESetObj& operator=(const CLstPtr<CESetItm*>& items)
    {
        Rewound() = items;
        return *this;
    }
    /** @} */

    CString m_name; ///< key of the object in its collection
    CString m_type; ///< what kind of object it is, for the application

private:
    friend class CESetCol;

    CLstMgd<CESetItm>& Rewound() noexcept
    {
        m_cursor = nullptr;
        return *this;
    }

    CESetCol* m_col = nullptr;
    CVantPtr* m_cursor = nullptr; // where the next search begins; null: at the head

public:
    CLstMgd<CString> m_data; /**< the data lines */
};
