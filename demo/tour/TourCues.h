#pragma once

#include "demo/script/CScript.h"
#include "demo/tour/CTourHand.h"

#include <span>

namespace demo
{

/** Something that happens at a moment of the tour. */
struct TourCue {
    double at; ///< seconds from the start of the tour
    /** What is to be seen from then on, on the screen; null: as before. */
    Box (*shows)(const Stage&) = nullptr;
    /** Tells the hand what to do; null for nothing. */
    void (*begin)(Stage&, CTourHand&) = nullptr;
    /** What must come of it before the tour ends, for the report; null for nothing. */
    const wchar_t* promise = nullptr;
    bool (*holds)(const Stage&) = nullptr;
    /** File name of a picture of all windows, taken then. */
    const wchar_t* picture = nullptr;
};

/** All of the tour, in its order. */
std::span<const TourCue> TourCues() noexcept;

/** Everything that the tour shows: the bridge and the windows beside it. */
Box WholeStage(const Stage& stage);

/** Brings the program to where the tour begins. */
void SetStage(Stage& stage);

} // namespace demo
