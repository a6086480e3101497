#include "demo/session/Session.h"

#include "demo/detail/Text.h"
#include "platform/Vant.h"
#include "values/EUnits.h"

namespace demo
{
namespace
{

constexpr unsigned silent = 0x20; // of Vant::options: no sound at all

} // namespace

Readout Session::Now() const
{
    return {.playback = playback,
            .values = values,
            .duration = tape.Duration(),
            .rate = rate,
            .paused = paused != 0,
            .source = origin,
            .headingUp = settings.headingUp != 0,
            .depthSpan = settings.depthSpan,
            .alarms = alarms,
            .crossTrack = crossTrack,
            .recording = recording};
}

void Session::Apply()
{
    EUnits::system = settings.units;
    AlarmWatch& watch = playback.Alarms();
    watch.SetShallowLimit(settings.shallowLimit);
    watch.SetLongestSearch(settings.lostFix);
    playback.SetMounting(settings.mounting);
    origin = source + L" of " + static_cast<LPCWSTR>(settings.sensor) + L" at " +
             AddressText(settings.address, settings.port);
    Vant::options = settings.sound ? Vant::options & ~silent : Vant::options | silent;
}

} // namespace demo
