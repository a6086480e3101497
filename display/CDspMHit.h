#pragma once

#include "core/CV3.h"

#include <afx.h>

class CMdl;

/** Something that lies under a pick. */
struct CDspMHit {
    CString text;        ///< for the user
    CMdl* mdl = nullptr; ///< whose part it is; may be null. Not owned: valid while the drawable lives.
    int part = 0;        ///< the drawable's own number of the part
    double depth = 0;    ///< distance from the eye along the pick; the nearest hit comes first
    CV3 pt;              ///< where it was hit, display coordinates
};
