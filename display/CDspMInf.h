#pragma once

#include "core/CLstPtr.h"
#include "core/VantApi.h"
#include "display/CDspMHit.h"

#include <memory>

/** What the user picked in a display: everything under the pick, nearest first, and the pick itself. */
class VANT_API CDspMInf
{
public:
    CDspMInf() = default;
    /** Frees the hits. */
    ~CDspMInf() { ClearHits(); }
    CDspMInf(const CDspMInf&) = delete;
    CDspMInf& operator=(const CDspMInf&) = delete;

    CLstPtr<CDspMHit*> hits; ///< owned; by depth, and those of the same depth in the order in which they came
    int count = 0;           ///< of the hits
    /** Points in display coordinates, three numbers each: where the pick enters what the view shows, where it
     * leaves it, and the nearest hit. */
    double ray[9] = {};
    /** The view at the time of the pick: from display coordinates to the eye's, row by row as in CMat. */
    double view[12] = {};

    /** Takes a hit in, at its place by depth. */
    void AddHit(std::unique_ptr<CDspMHit> hit);

    /** Frees every hit; the pick's numbers stay. */
    void ClearHits();
};
