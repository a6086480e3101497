#include "controls/detail/JogStep.h"

#include "controls/detail/SliderScale.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace vant::detail
{
namespace
{

using Whole = std::numeric_limits<std::int64_t>;

/** The nearest 64-bit integer. */
std::int64_t Clamped(double number) noexcept
{
    constexpr double beyond = 9223372036854775808.0; // 2^63
    if (number >= beyond)
        return Whole::max();
    return number < -beyond ? Whole::min() : static_cast<std::int64_t>(number);
}

std::int64_t Sum(std::int64_t a, std::int64_t b) noexcept
{
    if (b > 0)
        return a > Whole::max() - b ? Whole::max() : a + b;
    return a < Whole::min() - b ? Whole::min() : a + b;
}

/** Within the range, but never moved the other way: what is beyond the end in that direction stays. */
template <class Number>
Number Bounded(Number before, Number moved, Number low, Number high) noexcept
{
    const Number inside = std::clamp(moved, low, high);
    return moved >= before ? std::max(before, inside) : std::min(before, inside);
}

} // namespace

JogSteps OwnJogSteps(bool isInteger, bool hasRange, double low, double high) noexcept
{
    JogSteps steps;
    if (const SliderScale scale(low, high, 0); hasRange && low < high && scale.IsMovable())
        steps = {scale.KeyStep(), scale.FineStep()};
    if (isInteger)
        steps = {std::max(std::floor(steps.coarse + 0.5), 1.0), std::max(std::floor(steps.fine + 0.5), 1.0)};
    return steps;
}

double Jogged(double before, double by, double grid, double low, double high) noexcept
{
    if (!(low <= high))
        return before;
    double moved = before + by;
    if (grid > 0) {
        constexpr double near = 1e-6; // of a step
        const double count = std::floor(moved / grid + 0.5);
        if (std::fabs(moved / grid - count) < near)
            moved = count * grid;
    }
    return Bounded(before, moved, low, high);
}

std::int64_t JoggedWhole(std::int64_t before, double by, double low, double high) noexcept
{
    if (!(low <= high))
        return before;
    return Bounded(before, Sum(before, Clamped(by)), Clamped(low), Clamped(high));
}

} // namespace vant::detail
