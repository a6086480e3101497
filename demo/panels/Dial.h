#pragma once

#include "demo/draw/CPainter.h"

namespace demo
{

/** A round instrument: where it is, and which bearing its top shows. */
struct Dial {
    Point centre;
    double radius = 0.0; ///< of the outer ring
    double top = 0.0;    ///< the bearing that is up, radians

    /** The largest dial that fits between the corners of a panel's inside. */
    static Dial In(const Box& inside, double margin) noexcept;

    /** A point at a distance of the centre, given in parts of the radius, in a direction of the dial. */
    Point At(double bearing, double part) const noexcept
    {
        return AtBearing(centre, radius * part, bearing - top);
    }
};

/** The face: a disc, its ring, ticks every 10 degrees, longer ones every 30. */
void PaintDialFace(CPainter& painter, const Dial& dial);

/** Whether a text at a bearing of the face would lie under a pointer at `pointer`; demo::missing hides
 * nothing. */
bool IsUnderPointer(double bearing, double pointer) noexcept;

/** A mark on the inside of the ring that points outwards. */
void PaintPointer(CPainter& painter, const Dial& dial, double bearing, COLORREF colour);

/** A triangle outside the ring that points to it. */
void PaintBug(CPainter& painter, const Dial& dial, double bearing, COLORREF colour);

} // namespace demo
