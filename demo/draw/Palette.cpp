#include "demo/draw/Palette.h"

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

Palette Palette::FromScheme() noexcept
{
    Palette p{};
    p.back = Vant::back;
    p.panel = Mix(Vant::back, Vant::med, 0.10);
    p.deep = Mix(Vant::back, RGB(0, 0, 0), 0.35);
    p.frame = Mix(Vant::back, Vant::med, 0.38);
    p.grid = Mix(Vant::back, Vant::med, 0.22);
    p.rim = Mix(Vant::back, Vant::med, 0.65);
    p.text = Vant::light;
    p.label = Mix(Vant::med, Vant::light, 0.45);
    p.stale = Mix(Vant::dark, Vant::back, 0.12);
    p.accent = Vant::cyan;
    p.port = Mix(Vant::red, Vant::light, 0.12);
    p.starboard = Mix(Vant::green, Vant::back, 0.10);
    p.alarm = Mix(Vant::red, Vant::back, 0.25);
    return p;
}

} // namespace demo
