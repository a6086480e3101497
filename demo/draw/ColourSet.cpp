#include "demo/draw/ColourSet.h"

#include "platform/Vant.h"

namespace demo
{

COLORREF Mix(COLORREF a, COLORREF b, double weight) noexcept
{
    const auto channel = [weight](BYTE from, BYTE to) {
        return static_cast<BYTE>(from + (to - from) * weight + 0.5);
    };
    return RGB(channel(GetRValue(a), GetRValue(b)), channel(GetGValue(a), GetGValue(b)),
               channel(GetBValue(a), GetBValue(b)));
}

ColourSet ColourSet::FromScheme() noexcept
{
    ColourSet set{};
    set.back = Vant::back;
    set.panel = Mix(Vant::back, Vant::med, 0.10);
    set.deep = Mix(Vant::back, RGB(0, 0, 0), 0.35);
    set.frame = Mix(Vant::back, Vant::med, 0.38);
    set.grid = Mix(Vant::back, Vant::med, 0.22);
    set.rim = Mix(Vant::back, Vant::med, 0.65);
    set.text = Vant::light;
    set.label = Mix(Vant::med, Vant::light, 0.45);
    set.stale = Mix(Vant::dark, Vant::back, 0.12);
    set.accent = Vant::cyan;
    set.port = Mix(Vant::red, Vant::light, 0.12);
    set.starboard = Mix(Vant::green, Vant::back, 0.10);
    set.alarm = Mix(Vant::red, Vant::back, 0.25);
    return set;
}

} // namespace demo
