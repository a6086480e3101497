#include "controls/detail/SliderScale.h"

#include <algorithm>
#include <cmath>

namespace vant::detail
{

RoundStep RoundStep::From(double least) noexcept
{
    // What is a round number but for its last bits counts as that number.
    constexpr double slack = 1 - 1e-9;
    const int exponent = static_cast<int>(std::floor(std::log10(least)));
    for (const RoundStep step : {RoundStep{1, exponent}, RoundStep{2, exponent}, RoundStep{5, exponent}})
        if (step.Times(1) >= least * slack)
            return step;
    return {1, exponent + 1};
}

double RoundStep::Times(std::int64_t n) const noexcept
{
    const double whole = static_cast<double>(n) * digit;
    return exponent < 0 ? whole / std::pow(10.0, -exponent) : whole * std::pow(10.0, exponent);
}

std::vector<double> RoundTicks(double from, double to, std::size_t most)
{
    const auto [low, high] = std::minmax(from, to);
    const double length = high - low;
    if (!std::isfinite(length) || !std::isnormal(length) || most == 0)
        return {};
    constexpr double countable = 1e15; // beyond, neighbouring multiples are the same double
    constexpr double slack = 1e-9;     // of a step: an end that is round but for its last bits has a tick
    std::vector<double> ticks;
    // With more than `most` intervals there are too many; with rather fewer there may be one too many.
    for (std::size_t intervals = most; intervals > 0 && ticks.empty(); --intervals) {
        const RoundStep step = RoundStep::From(length / static_cast<double>(intervals));
        const double size = step.Times(1);
        if (!(std::fabs(low) / size < countable && std::fabs(high) / size < countable) || size == 0)
            return {};
        const auto first = static_cast<std::int64_t>(std::ceil(low / size - slack));
        const auto last = static_cast<std::int64_t>(std::floor(high / size + slack));
        if (last - first + 1 > static_cast<std::int64_t>(most))
            continue;
        for (std::int64_t n = first; n <= last; ++n)
            ticks.push_back(step.Times(n));
        break;
    }
    return ticks;
}

SliderScale::SliderScale(double from, double to, double step) noexcept
    : m_from(from)
    , m_to(to)
    , m_step(step > 0 && std::isfinite(step) ? step : 0)
    , m_isMovable(from != to && std::isfinite(to - from))
{
    if (!m_isMovable)
        m_to = m_from;
}

double SliderScale::Length() const noexcept
{
    return std::fabs(m_to - m_from);
}

double SliderScale::ShareOf(double value) const noexcept
{
    if (!m_isMovable || std::isnan(value))
        return 0;
    return std::clamp((value - m_from) / (m_to - m_from), 0.0, 1.0);
}

double SliderScale::At(double share) const noexcept
{
    return Nearest(m_from + (m_to - m_from) * std::clamp(share, 0.0, 1.0));
}

double SliderScale::Nearest(double value) const noexcept
{
    if (!m_isMovable || std::isnan(value))
        return m_from;
    const auto [low, high] = std::minmax(m_from, m_to);
    const double inside = std::clamp(value, low, high);
    if (m_step == 0)
        return inside;
    const double direction = m_to > m_from ? m_step : -m_step;
    const double steps = std::floor((inside - m_from) / direction + 0.5);
    const double nearest = std::clamp(m_from + steps * direction, low, high);
    // The second end need not be a whole number of steps away.
    return std::fabs(m_to - inside) < std::fabs(nearest - inside) ? m_to : nearest;
}

double SliderScale::Moved(double value, double by) const noexcept
{
    if (!m_isMovable || std::isnan(value))
        return m_from;
    const auto [low, high] = std::minmax(m_from, m_to);
    const double inside = std::clamp(value, low, high);
    const double direction = m_to > m_from ? 1 : -1;
    if (m_step == 0)
        return std::clamp(inside + direction * by, low, high);
    // From between two steps, as the second end may be, the first step goes to the next one only.
    constexpr double slack = 1e-9; // of a step
    const double at = std::fabs(inside - m_from) / m_step;
    const double steps = std::max(std::floor(std::fabs(by) / m_step + 0.5), 1.0);
    const double to = by > 0 ? std::floor(at + slack) + steps : std::ceil(at - slack) - steps;
    return std::clamp(m_from + to * m_step * direction, low, high);
}

double SliderScale::KeyStep() const noexcept
{
    constexpr double parts = 100;
    if (!m_isMovable)
        return 0;
    return m_step > 0 ? m_step : RoundStep::From(Length() / parts).Times(1);
}

double SliderScale::FineStep() const noexcept
{
    return m_step > 0 ? m_step : KeyStep() / 10;
}

double SliderScale::PageStep() const noexcept
{
    constexpr double pages = 10;
    if (!m_isMovable)
        return 0;
    if (m_step == 0)
        return RoundStep::From(Length() / pages).Times(1);
    return m_step * std::max(std::floor(Length() / pages / m_step + 0.5), 1.0);
}

} // namespace vant::detail
