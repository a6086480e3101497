#pragma once

#include "values/CEVal.h"
#include "values/detail/ValueType.h"

class CELEnt;

namespace vant::detail
{

/** What a bound variable holds, to find the entry of a list that stands for it. */
class EntryKey
{
public:
    /** Reads the variable, under its mutex. */
    explicit EntryKey(const CEVal& val);

    /** Whether choosing the entry would store just this. */
    bool Fits(const CELEnt& ent) const;
    bool operator==(const EntryKey&) const = default;

private:
    ValueType m_type;
    double m_num = 0;
    void* m_item = nullptr;
    CString m_text;
};

/** Stores what an entry stands for: its item, its text, or its number or else its place in the list. */
void StoreEntry(CEVal& val, const CELEnt& ent);

} // namespace vant::detail
