#pragma once

#include "demo/detail/Playback.h"
#include "demo/draw/CPainter.h"
#include "demo/session/ShownValues.h"

#include <string>
#include <string_view>

namespace demo
{

/** What the panels show, and how the user wants to see it. */
struct View {
    const Playback& playback;
    const ShownValues& values; ///< of the moment that is shown
    double duration = 0.0;     ///< of the tape, seconds
    double rate = 1.0;         ///< seconds of the tape in a second
    bool paused = false;
    std::wstring_view source; ///< name of the log
    bool headingUp = true;    ///< the compass card turns under the bow; else the needle turns on the card
    double depthSpan = 120.0; ///< seconds of soundings in the depth graph
    std::size_t alarms = 0;   ///< how many have begun
    /** Of the boat beside the planned route, metres, positive to starboard; missing without one. */
    double crossTrack = missing;
    bool recording = false; ///< a video
};

/** A value as text, with its unit and the state that decides its colour; dashes without a reading. */
struct Shown {
    std::wstring text;
    Freshness state;
    std::wstring unit;

    Figure WithUnit() const noexcept { return {text, unit, state}; }
    Figure Bare() const noexcept { return {text, {}, state}; }
};

/** A quantity in the unit system that is on. */
Shown Show(const View& view, Quantity quantity);

/** The text of a bearing or of another angle that is counted from 000 to 359. */
Shown ShowBearing(const Playback& playback, Quantity quantity);

/** An angle from the bow as 0 to 180 degrees; SideText tells to which side. */
Shown ShowFromBow(const Playback& playback, Quantity quantity);

/** The unit of ShowFromBow: degrees to port or to starboard. */
std::wstring_view SideText(const Playback& playback, Quantity quantity) noexcept;

/** @name One instrument each, in its box */
///@{
void PaintHeader(CPainter& painter, const Box& box, const View& view);
void PaintAlarms(CPainter& painter, const Box& box, const View& view);
void PaintDepth(CPainter& painter, const Box& box, const View& view);
void PaintTrack(CPainter& painter, const Box& box, const View& view);
void PaintHeading(CPainter& painter, const Box& box, const View& view);
void PaintPosition(CPainter& painter, const Box& box, const View& view);
void PaintWind(CPainter& painter, const Box& box, const View& view);
void PaintMotion(CPainter& painter, const Box& box, const View& view);
void PaintFooter(CPainter& painter, const Box& box, const View& view);
///@}

} // namespace demo
