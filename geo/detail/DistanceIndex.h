#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

class CRtV3;

namespace vant::detail
{

/** A node of a route and its distance from the first one. */
struct RouteStop {
    double at;
    CRtV3* node;
};

/** Finds a distance among those of a route's nodes.
 *
 *  The route's length is divided into equal parts, one for a few nodes, and the first node of each is kept: a
 * distance then is searched among the nodes of its part only. With evenly spaced nodes these are a few, and
 * in the worst case, when all lie in one part, it is a binary search. A lookup next to the one before does
 * without. */
class DistanceIndex
{
public:
    /** @param stops  at least one. A distance that cannot be (not a number, less than the one before) counts
     * as that of the node before. */
    explicit DistanceIndex(std::vector<RouteStop> stops);

    std::size_t Count() const noexcept { return m_count; }
    double First() const noexcept { return m_stops[0].at; }
    double Last() const noexcept { return m_stops[m_count - 1].at; }
    double At(std::size_t i) const noexcept { return m_stops[i].at; }
    CRtV3& Node(std::size_t i) const noexcept { return *m_stops[i].node; }

    /** The number of the last node whose distance is at most `at`. @param at  not below First() */
    std::size_t Find(double at) noexcept { return m_cursor = Search(at); }

private:
    std::size_t PartOf(double at) const noexcept;
    std::size_t Search(double at) const noexcept;
    std::size_t SearchLargePart(double at, std::size_t first, std::size_t end) const noexcept;

    std::vector<RouteStop> m_stops; // and some that no distance reaches
    std::size_t m_count;
    double m_partsPerLength = 0;
    std::vector<std::uint32_t> m_firsts; // node of each part, and one more
    std::size_t m_cursor = 0;            // node before the place of the last lookup; the next one is after it
};

} // namespace vant::detail
