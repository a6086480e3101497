#include "geo/detail/DistanceIndex.h"

#include <algorithm>
#include <cmath>

namespace vant::detail
{

namespace
{

constexpr std::size_t stopsPerPart = 4; // on average; two or three lines of the processor's cache
constexpr std::size_t steps = 4;        // that a walk from the place before may take

} // namespace

DistanceIndex::DistanceIndex(std::span<const RouteStop> stops, double RouteStop::*along)
    : m_along(along)
    , m_start(stops.front().*along)
{
    const std::size_t parts = stops.size() / stopsPerPart + 1;
    const double length = stops.back().*along - m_start;
    const double rate = static_cast<double>(parts) / length;
    m_partsPerLength = std::isfinite(rate) && std::isfinite(length) ? rate : 0;
    m_firsts.resize(parts + 1, static_cast<std::uint32_t>(stops.size()));
    std::size_t part = 0;
    for (std::size_t i = 0; i < stops.size(); ++i) {
        const std::size_t its = PartOf(stops[i].*along);
        while (part <= its)
            m_firsts[part++] = static_cast<std::uint32_t>(i);
    }
}

std::size_t DistanceIndex::PartOf(double at) const noexcept
{
    // Deliberately a product: it rises with the distance, which is what the search relies on.
    const double part = (at - m_start) * m_partsPerLength;
    const auto last = static_cast<double>(m_firsts.size() - 2);
    return static_cast<std::size_t>(part < last ? part : last);
}

std::size_t DistanceIndex::Find(std::span<const RouteStop> stops, double at, std::size_t hint) const noexcept
{
    const auto isAfter = [this, stops, at](std::size_t i) { return stops[i].*m_along > at; };
    if (!isAfter(hint)) {
        for (std::size_t i = hint; i < hint + steps; ++i) {
            if (i + 1 == stops.size() || isAfter(i + 1))
                return i;
        }
    } else if (hint > 0 && !isAfter(hint - 1)) {
        return hint - 1;
    }
    const std::size_t part = PartOf(at);
    std::size_t first = m_firsts[part];
    std::size_t count = m_firsts[part + 1] - first;
    while (count > 0) {
        const std::size_t half = count / 2;
        if (isAfter(first + half)) {
            count = half;
        } else {
            first += half + 1;
            count -= half + 1;
        }
    }
    return first - 1;
}

} // namespace vant::detail
