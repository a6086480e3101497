#include "controls/CEMEnt.h"

#include "controls/CEMenu.h"
#include "controls/CVantWnd.h"

CEMEnt::CEMEnt() = default;
CEMEnt::~CEMEnt() = default;

CEMEnt* CEMEnt::Enable(int on)
{
    enabled = on;
    return this;
}

CEMEnt* CEMEnt::SetMark(int newMark)
{
    mark = newMark;
    return this;
}

CEMEnt* CEMEnt::Check(int& var, int bits)
{
    pVar = &var;
    varVal = bits;
    oneOf = 0;
    return this;
}

CEMEnt* CEMEnt::Choice(int& var, int value)
{
    pVar = &var;
    varVal = value;
    oneOf = 1;
    return this;
}

int CEMEnt::ShownMark() const
{
    if (!pVar)
        return mark;
    if (oneOf)
        return *pVar == varVal ? markBullet : markNone;
    return (*pVar & varVal) != 0 ? markCheck : markNone;
}

CString CEMEnt::Label() const
{
    const int tab = text.Find(L'\t');
    return tab < 0 ? text : text.Left(tab);
}

CString CEMEnt::Key() const
{
    const int tab = text.Find(L'\t');
    return tab < 0 ? CString() : text.Mid(tab + 1);
}

void CEMEnt::Run()
{
    // The callbacks may change the menu.
    CObject* const target = pCbObj;
    const CEVal::CbNone none = pCbNone;
    const CEVal::CbPtr ptr = pCbPtr;
    const int message = info;
    void* const sent = data;
    if (pVar && oneOf)
        *pVar = varVal;
    else if (pVar)
        *pVar = (*pVar & varVal) != 0 ? *pVar & ~varVal : *pVar | varVal;
    if (target && none)
        (target->*none)();
    if (target && ptr)
        (target->*ptr)(sent);
    if (message)
        CVantWnd::InfoMsg(message, sent);
}
