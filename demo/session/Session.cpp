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

View Session::Shown() const
{
    return {
        playback,           values, tape.Duration(), rate,     paused != 0, origin, settings.headingUp != 0,
        settings.depthSpan, alarms, crossTrack,      recording};
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
