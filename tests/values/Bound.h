#pragma once

#include "values/CEVal.h"

/** A value bound to a variable. */
template <class T>
CEVal Bound(T& variable)
{
    CEVal value;
    value.Init(variable);
    return value;
}
