#pragma once

#include "display/CRgb.h"

#include <afx.h>

/** One line of a display's legend: what a drawable has to say about a point. */
struct CLegInf {
    CString name; ///< what the value is: "Depth"
    CString text; ///< the value, with its unit
    CRgb colour;  ///< in which the drawable shows it there
};
