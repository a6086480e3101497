#pragma once

#include <afx.h>

#include "core/VantApi.h"

/** An entry of a list-like control: what it shows and the number it stands for. */
class VANT_API CStrVal
{
public:
    /** An empty text and 0.0. */
    CStrVal() = default;
    CStrVal(const CString& entryText, double entryValue);

    CString text;       ///< the entry as it is shown
    double value = 0.0; ///< the number that the entry stands for
};
