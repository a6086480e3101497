#pragma once

#include "demo/detail/Playback.h"
#include "demo/session/ShownValues.h"

#include <cstddef>
#include <string_view>

namespace demo
{

/** What the panels show at a moment, and how the user wants to see it. Valid while the session is unchanged.
 */
struct Readout {
    const Playback& playback;
    const ShownValues& values; ///< of the moment that is shown
    double duration = 0.0;     ///< of the tape, seconds
    double rate = 1.0;         ///< seconds of the tape in a second
    bool paused = false;
    std::wstring_view source; ///< name of the log and of the instrument that it comes from
    bool headingUp = true;    ///< the compass card turns under the bow; else the needle turns on the card
    double depthSpan = 120.0; ///< seconds of soundings in the depth graph
    std::size_t alarms = 0;   ///< how many have begun
    /** Of the boat beside the planned route, metres, positive to starboard; missing without one. */
    double crossTrack = missing;
    bool recording = false; ///< a video
};

} // namespace demo
