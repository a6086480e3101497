#pragma once

#include "demo/detail/Playback.h"
#include "demo/detail/Tape.h"
#include "demo/run/CRunLog.h"
#include "demo/session/CLogClock.h"
#include "demo/session/DemoSettings.h"
#include "demo/session/Readout.h"
#include "demo/session/ShownValues.h"

#include <afxwin.h>

#include <cstddef>
#include <string>
#include <vector>

namespace demo
{

/** What a run is made of. Everything outlives the windows, whose controls are bound to it. */
struct Session {
    const Tape& tape;
    Playback& playback;
    DemoSettings& settings;
    CRunLog& log;
    CLogClock& clock;
    std::wstring source;   ///< name of the log
    double seconds = 0.0;  ///< how long the window stays open; 0 until it is closed
    double rate = 1.0;     ///< seconds of the tape in a second
    bool scripted = false; ///< the program tries its own controls
    CString outDir;        ///< where pictures go, with a backslash at the end
    CString boatFile;      ///< the boat's model
    bool keeps = true;     ///< #outDir can be written; otherwise nothing of the run is kept
    bool pbuffers = true;  ///< see Options

    ShownValues values{};
    std::wstring origin{};       ///< where the sentences come from, as it is shown
    double crossTrack = missing; ///< see Scene::CrossTrack()
    bool touring = false;        ///< the program shows itself, and films that
    int paused = 0;
    std::size_t alarms = 0; ///< how many have begun
    std::size_t frames = 0;
    bool recording = false;               ///< a video of the orbit view is being made
    bool failed = false;                  ///< the script did
    bool picturesSaved = true;            ///< every one that was to be left at the end
    std::vector<std::wstring> pictures{}; ///< names of those that were

    /** What the panels show now. */
    Readout Now() const;

    /** Lets the settings act: on the unit system, the alarms, the sounder and the sounds. */
    void Apply();
};

/** @name Pictures that are left at the end: the bridge, everything on the screen, and the views that are open
 *  @{ */
inline constexpr const wchar_t* pictureName = L"demo.png";
inline constexpr const wchar_t* screenName = L"screen.png";
inline constexpr const wchar_t* chartName = L"chart.png";
inline constexpr const wchar_t* orbitName = L"orbit.png";
inline constexpr const wchar_t* videoName = L"orbit.avi";
inline constexpr const wchar_t* filmName = L"tour.avi"; ///< of the tour
/** @} */

/** Information message: the session or its settings have changed. Its data is the session. */
inline constexpr int sessionInfo = 7001;

} // namespace demo
