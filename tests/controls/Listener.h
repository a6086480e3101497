#pragma once

#include "values/CEVal.h"

/** Counts what a control reports. */
class Listener : public CObject
{
public:
    void OnNone() { ++calls; }
    int calls = 0;

    static CEVal::CbNone Member() { return static_cast<CEVal::CbNone>(&Listener::OnNone); }
};
