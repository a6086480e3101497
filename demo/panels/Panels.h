#pragma once

#include "demo/draw/CPainter.h"
#include "demo/session/Readout.h"

#include <string>
#include <string_view>

namespace demo
{

/** A value as text, with its unit and the state that decides its colour; dashes without a reading. */
struct Shown {
    std::wstring text;
    Freshness state;
    std::wstring unit;

    Figure WithUnit() const noexcept { return {text, unit, state}; }
    Figure Bare() const noexcept { return {text, {}, state}; }
};

/** A quantity in the unit system that is on. */
Shown Show(const Readout& readout, Quantity quantity);

/** The text of a bearing or of another angle that is counted from 000 to 359. */
Shown ShowBearing(const Playback& playback, Quantity quantity);

/** An angle from the bow as 0 to 180 degrees; SideText tells to which side. */
Shown ShowFromBow(const Playback& playback, Quantity quantity);

/** The unit of ShowFromBow: degrees to port or to starboard. */
std::wstring_view SideText(const Playback& playback, Quantity quantity) noexcept;

/** @name One instrument each, in its box */
///@{
void PaintHeader(CPainter& painter, const Box& box, const Readout& readout);
void PaintAlarms(CPainter& painter, const Box& box, const Readout& readout);
void PaintDepth(CPainter& painter, const Box& box, const Readout& readout);
void PaintTrack(CPainter& painter, const Box& box, const Readout& readout);
void PaintHeading(CPainter& painter, const Box& box, const Readout& readout);
void PaintPosition(CPainter& painter, const Box& box, const Readout& readout);
void PaintWind(CPainter& painter, const Box& box, const Readout& readout);
void PaintMotion(CPainter& painter, const Box& box, const Readout& readout);
void PaintFooter(CPainter& painter, const Box& box, const Readout& readout);
///@}

} // namespace demo
