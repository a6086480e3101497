#include "geo/detail/DistanceIndex.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace vant::detail
{

namespace
{

constexpr std::size_t stopsPerPart = 4; // on average; two or three lines of the processor's cache
constexpr std::size_t probes = 8;       // of a part's nodes, before it is searched by halves
constexpr std::size_t steps = 8;        // that a walk from the place before may take, either way

} // namespace

DistanceIndex::DistanceIndex(std::vector<RouteStop> stops)
    : m_stops(std::move(stops))
    , m_count(m_stops.size())
{
    double before = std::isfinite(First()) ? First() : 0;
    for (RouteStop& stop : m_stops) {
        if (!std::isfinite(stop.at) || stop.at < before)
            stop.at = before;
        before = stop.at;
    }
    const std::size_t parts = m_count / stopsPerPart + 1;
    const double length = Last() - First();
    const double rate = static_cast<double>(parts) / length;
    m_partsPerLength = std::isfinite(rate) && std::isfinite(length) ? rate : 0;
    m_firsts.resize(parts + 1, static_cast<std::uint32_t>(m_count));
    std::size_t part = 0;
    for (std::size_t i = 0; i < m_count; ++i) {
        const std::size_t its = PartOf(m_stops[i].at);
        while (part <= its)
            m_firsts[part++] = static_cast<std::uint32_t>(i);
    }
    // Not even infinity is at or after these.
    m_stops.resize(m_count + std::max(probes, steps), {std::numeric_limits<double>::quiet_NaN(), nullptr});
}

std::size_t DistanceIndex::PartOf(double at) const noexcept
{
    // Deliberately a product: it rises with the distance, which is what the search relies on.
    const double part = (at - First()) * m_partsPerLength;
    const auto last = static_cast<double>(m_firsts.size() - 2);
    return static_cast<std::size_t>(part < last ? part : last);
}

std::size_t DistanceIndex::Search(double at) const noexcept
{
    // Comparisons are added up instead of branched on wherever their outcome cannot be foreseen: the
    // processor then goes on with the next lookup while it waits for the memory of this one.
    const RouteStop* const last = &m_stops[m_cursor];
    if ((last[0].at <= at) & !(last[1].at <= at))
        return m_cursor;
    if ((last[1].at <= at) & !(last[2].at <= at))
        return m_cursor + 1;
    const std::size_t part = PartOf(at);
    const std::size_t first = m_firsts[part];
    std::size_t passed = 0;
    for (std::size_t i = 0; i < probes; ++i)
        passed += m_stops[first + i].at <= at;
    return passed < probes ? first + passed - 1 : SearchLargePart(at, first, m_firsts[part + 1]);
}

std::size_t DistanceIndex::SearchLargePart(double at, std::size_t first, std::size_t end) const noexcept
{
    if (m_cursor >= first && m_cursor < end) {
        const bool isOn = m_stops[m_cursor].at <= at;
        for (std::size_t i = m_cursor; isOn && i < m_cursor + steps; ++i) {
            if (!(m_stops[i + 1].at <= at))
                return i;
        }
        for (std::size_t i = m_cursor; !isOn && i > first && i + steps > m_cursor; --i) {
            if (m_stops[i - 1].at <= at)
                return i - 1;
        }
    }
    const auto begin = m_stops.begin();
    const auto after =
        std::upper_bound(begin + static_cast<std::ptrdiff_t>(first), begin + static_cast<std::ptrdiff_t>(end),
                         at, [](double value, const RouteStop& stop) { return value < stop.at; });
    return static_cast<std::size_t>(after - begin) - 1;
}

} // namespace vant::detail
