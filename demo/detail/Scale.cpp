#include "demo/detail/Scale.h"

#include "demo/detail/Quantities.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace demo
{
namespace
{

constexpr double widest = 1.0e12; // beyond this a display has nothing left to tell
constexpr double finest = 1.0e-9; // relative to the values, a step must still change them

/** The least of 1, 2, 5 times a power of ten that is not below `raw`. */
double RoundStep(double raw)
{
    const double decade = std::pow(10.0, std::floor(std::log10(raw)));
    for (const double factor : {1.0, 2.0, 5.0})
        if (raw <= factor * decade * (1.0 + finest))
            return factor * decade;
    return 10.0 * decade;
}

} // namespace

Scale Scale::Around(double from, double to, int divisions)
{
    if (!(std::abs(from) <= widest && std::abs(to) <= widest))
        return {};
    if (from > to)
        std::swap(from, to);

    const double least = std::max({std::abs(from), std::abs(to), 1.0}) * finest;
    const int count = std::max(divisions, 1);
    Scale scale;
    scale.step = RoundStep(std::max((to - from) / count, least));
    for (;;) {
        scale.low = std::floor(from / scale.step + finest) * scale.step;
        scale.high = std::ceil(to / scale.step - finest) * scale.step;
        if (scale.high <= scale.low)
            scale.high = scale.low + scale.step;
        // Rounding both ends outwards can cost one division more than was allowed.
        if (std::lround((scale.high - scale.low) / scale.step) <= count || count == 1)
            return scale;
        scale.step = RoundStep(scale.step * 1.5);
    }
}

std::vector<double> Scale::Ticks() const
{
    const long count = std::lround((high - low) / step);
    std::vector<double> ticks;
    for (long i = 0; i <= count; ++i)
        ticks.push_back(low + static_cast<double>(i) * step);
    return ticks;
}

int Scale::Decimals() const noexcept
{
    return std::clamp(static_cast<int>(-std::floor(std::log10(step) + finest)), 0, 9);
}

double TurnBetween(double from, double to) noexcept
{
    const double turn = std::remainder(to - from, twoPi);
    return turn <= -std::numbers::pi ? turn + twoPi : turn;
}

} // namespace demo
