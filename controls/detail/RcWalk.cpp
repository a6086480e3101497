#include "controls/detail/RcWalk.h"

#include <algorithm>
#include <cstdint>

namespace vant::detail
{

int RcStep(const std::vector<bool>& usable, RcPlace from, int by, bool wrap)
{
    std::vector<int> stops;
    for (std::size_t i = 0; i < usable.size(); ++i)
        if (usable[i])
            stops.push_back(static_cast<int>(i));
    if (stops.empty())
        return -1;
    const auto found = std::lower_bound(stops.begin(), stops.end(), from.at);
    std::int64_t at = found - stops.begin();
    const bool onStop = from.on && found != stops.end() && *found == from.at;
    // From between two stops the first step forward ends at the one that `at` is already.
    if (!onStop && by > 0)
        --at;
    const auto count = static_cast<std::int64_t>(stops.size());
    at += by;
    at = wrap ? (at % count + count) % count : std::clamp<std::int64_t>(at, 0, count - 1);
    return stops[static_cast<std::size_t>(at)];
}

int RcNearest(const std::vector<bool>& usable, RcPlace from)
{
    return RcStep(usable, {from.at, false}, 1, true);
}

RcPlace RcWithout(RcPlace from, int member) noexcept
{
    if (member < from.at)
        return {from.at - 1, from.on};
    return {from.at, from.on && member != from.at};
}

} // namespace vant::detail
