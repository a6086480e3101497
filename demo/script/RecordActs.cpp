#include "demo/script/Acts.h"
#include "platform/Vant.h"
#include "windows/CConsole.h"

#include <cmath>
#include <iterator>

namespace demo
{
namespace
{

constexpr int fewestFrames = 25; // half a second of video

/** Whether a status line of the consoles has a text in it. */
bool IsStatus(const wchar_t* part)
{
    const CSingleLock guard(&Vant::status.entryLock, TRUE);
    for (CVantPtr* pos = Vant::status.entries.GetHeadPos(); pos;)
        if (Vant::status.entries.GetNext(pos)->text.Find(part) >= 0)
            return true;
    return false;
}

const Act acts[] = {
    {L"V records a video of the orbit view",
     [](Stage& s) {
         s.bridge.SetFocus();
         s.hands.Type(L"v");
     },
     [](const Stage& s) { return s.session.recording && s.video.Frames() > 0; }},

    {L"the boat keeps to the planned route", [](Stage&) {},
     [](const Stage& s) {
         return !IsMissing(s.session.crossTrack) && std::abs(s.session.crossTrack) < PlannedRoute::corridor;
     }},

    {L"the log's clock is fitted to the time base", [](Stage&) {},
     [](const Stage& s) {
         double slope = 0;
         double intercept = 0;
         return IsStatus(L"Log ") && IsStatus(L"PC Clock ") && s.session.clock.GetMC(slope, intercept) &&
                std::abs(slope / s.session.rate - 1) < 0.5;
     }},

    {L"the video is complete", [](Stage&) {},
     [](const Stage& s) { return !s.session.recording && s.video.Frames() >= fewestFrames; },
     L"step-video.png", true},
};

} // namespace

std::vector<Act> RecordActs()
{
    return {std::begin(acts), std::end(acts)};
}

} // namespace demo
