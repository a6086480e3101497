#include "colour/detail/Hsl.h"

#include <algorithm>
#include <cmath>

namespace vant::detail
{

namespace
{

constexpr double circle = 360.0;

/** 0 to 360, both included: what adding or subtracting whole circles gives, in one step. */
double Wrapped(double hue) noexcept
{
    if (!std::isfinite(hue))
        return 0;
    if (hue >= 0 && hue <= circle)
        return hue;
    const double rest = std::fmod(hue, circle);
    if (hue > circle)
        return rest > 0 ? rest : circle;
    return rest < 0 ? rest + circle : 0;
}

} // namespace

Hsl3 HslOf(const Rgb3& rgb) noexcept
{
    const auto [r, g, b] = rgb;
    const double most = std::max({r, g, b});
    const double least = std::min({r, g, b});
    const double d = most - least;
    Hsl3 hsl{0, 0, (most + least) * 0.5};
    if (hsl.l > 0 && hsl.l < 1)
        hsl.s = hsl.l < 0.5 ? d / (2 * hsl.l) : d / (2 - 2 * hsl.l);
    if (d > 0) {
        // Three tests of their own, deliberately: where red and blue tie only the first one counts.
        if (r == most && g != most)
            hsl.h += (g - b) / d;
        if (g == most && b != most)
            hsl.h += 2 + (b - r) / d;
        if (b == most && r != most)
            hsl.h += 4 + (r - g) / d;
        hsl.h *= 60;
    }
    return hsl;
}

Rgb3 RgbOf(const Hsl3& hsl) noexcept
{
    const double h = Wrapped(hsl.h);
    Rgb3 pure{};
    if (h < 120)
        pure = {(120 - h) / 60, h / 60, 0};
    else if (h < 240)
        pure = {0, (240 - h) / 60, (h - 120) / 60};
    else
        pure = {(h - 240) / 60, 0, (circle - h) / 60};

    const auto component = [&](double of) {
        const double x = std::min(of, 1.0) * 2 * hsl.s + (1 - hsl.s);
        return hsl.l < 0.5 ? x * hsl.l : x * (1 - hsl.l) + 2 * hsl.l - 1;
    };
    return {component(pure.r), component(pure.g), component(pure.b)};
}

} // namespace vant::detail
