#include "values/CStrVal.h"

CStrVal::CStrVal(const CString& entryText, double entryValue)
    : text(entryText)
    , value(entryValue)
{
}
