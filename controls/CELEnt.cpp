#include "controls/CELEnt.h"

CELEnt::CELEnt(const CString& entryText)
    : CStrVal(entryText, 0.0)
{
}

CELEnt::CELEnt(const CString& entryText, void* entryItem)
    : CStrVal(entryText, 0.0)
    , kind(kindItem)
    , item(entryItem)
{
}

CELEnt::CELEnt(const CString& entryText, double entryValue)
    : CStrVal(entryText, entryValue)
    , kind(kindNum)
{
}

CELEnt::CELEnt(const CStrVal& pair)
    : CStrVal(pair)
    , kind(kindNum)
{
}

CELEnt::CELEnt(const CELEnt& other)
    : CStrVal(other)
    , kind(other.kind)
    , item(other.item)
{
}

CELEnt& CELEnt::operator=(const CELEnt& other)
{
    CStrVal::operator=(other);
    kind = other.kind;
    item = other.item;
    return *this;
}
