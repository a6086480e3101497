#pragma once

#include "core/CV3.h"

#include <afx.h>

class CMdl;

/** What a drawable tells the display group about itself: for lists of drawables, and for views that are to
 * show all of them. */
struct CMdlInf {
    CMdl* mdl = nullptr; ///< whose information this is; the group sets it
    CString name;        ///< for a user to recognise it by
    CString kind;        ///< what it is: "Model", "Route", ...
    int hasExt = 0;      ///< non-zero: the extents are known
    CV3 lower;           ///< smallest x, y and z, display coordinates
    CV3 upper;           ///< largest x, y and z
};
