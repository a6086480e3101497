#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

class CRtV3;

namespace vant::detail
{

/** A node of a route with its distances from the first one. */
struct RouteStop {
    double q; ///< as seen from above
    double p; ///< in space
    CRtV3* node;
};

/** Finds a distance among those of a route's nodes.
 *
 *  The route's length is divided into equal parts, one for a few nodes, and the first node of each is kept: a
 * distance then is searched among the nodes of its part only. With evenly spaced nodes these are a few, and
 * in the worst case, when all lie in one part, it is a binary search. */
class DistanceIndex
{
public:
    /** @param stops  at least one, their distances finite and in ascending order. They belong to the caller
     * and are passed to Find() again. */
    DistanceIndex(std::span<const RouteStop> stops, double RouteStop::*along);

    /** The last node whose distance is at most `at`. @param at  not below the first one's
     *  @param hint  where it may be, or a few nodes before or after */
    std::size_t Find(std::span<const RouteStop> stops, double at, std::size_t hint) const noexcept;

private:
    std::size_t PartOf(double at) const noexcept;

    double RouteStop::*m_along;
    double m_start;
    double m_partsPerLength = 0;
    std::vector<std::uint32_t> m_firsts; // of each part, and one more
};

} // namespace vant::detail
