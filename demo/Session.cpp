#include "demo/Session.h"

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
    return {playback,           values, tape.Duration(), rate, paused != 0, source, settings.headingUp != 0,
            settings.depthSpan, alarms};
}

void Session::Apply()
{
    EUnits::system = settings.units;
    AlarmWatch& watch = playback.Alarms();
    watch.SetShallowLimit(settings.shallowLimit);
    watch.SetLongestSearch(settings.lostFix);
    playback.SetMounting(settings.mounting);
    Vant::options = settings.sound ? Vant::options & ~silent : Vant::options | silent;
}

} // namespace demo
