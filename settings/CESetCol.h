#pragma once

#include "core/CLstMgd.h"
#include "core/VantApi.h"
#include "settings/CESetObj.h"

#include <afx.h>

class CESet;

/** A named collection of the settings tree: a list of objects. */
class VANT_API CESetCol : public CLstMgd<CESetObj>
{
public:
    /** A collection outside any tree; it counts as loading. */
    CESetCol() = default;
    /** @param set  the owning tree, which must outlive the collection; may be null */
    CESetCol(const CString& name, CESet* set)
        : m_name(name)
        , m_set(set)
    {
    }
    /** Copies name and objects; the copy belongs to the same tree, without being in it. */
    CESetCol(const CESetCol& other);
    /** Copies name and objects; this collection stays in its own tree. */
    CESetCol& operator=(const CESetCol& other);
    ~CESetCol() override = default;

    /** The flag of the tree that the collection belongs to. */
    int IsStoring() const noexcept;
    /** The negation of IsStoring. */
    int IsLoading() const noexcept { return !IsStoring(); }

    /** Appends a new object, whether or not the name exists. @return the object, which the collection owns */
    CESetObj* AddObj(CString name, CString type);
    /** @return the first object with exactly that name, or null */
    CESetObj* GetObj(CString name) const;

    CString m_name; ///< key of the collection in its tree; no blanks

private:
    friend class CESet;

    void Adopt() noexcept;

    CESet* m_set = nullptr;
};
