#include "controls/detail/LedStates.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vant::detail
{
namespace
{

bool IsBelow(const LedStates::State& state, std::int64_t value) noexcept
{
    return state.value < value;
}

} // namespace

void LedStates::Set(State state)
{
    const auto at = std::lower_bound(m_states.begin(), m_states.end(), state.value, IsBelow);
    if (at != m_states.end() && at->value == state.value)
        *at = std::move(state);
    else
        m_states.insert(at, std::move(state));
}

const LedStates::State* LedStates::Find(std::int64_t value) const noexcept
{
    const auto at = std::lower_bound(m_states.begin(), m_states.end(), value, IsBelow);
    return at != m_states.end() && at->value == value ? &*at : nullptr;
}

bool IsLitAt(double t) noexcept
{
    // Once a second: what flashes more than three times in a second is a danger to some people.
    constexpr double half = 0.5;
    return !std::isfinite(t) || t - std::floor(t) < half;
}

} // namespace vant::detail
