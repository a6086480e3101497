#pragma once

#include "geo/detail/DistanceIndex.h"
#include "geo/detail/NearestIndex.h"

#include <memory>
#include <vector>

namespace vant::detail
{

/** What a route remembers for its lookups. */
struct RouteIndex {
    /** @param nodes  at least one; distances that cannot be (not a number, less than the one before) become
     * that of the node before */
    explicit RouteIndex(std::vector<RouteStop> nodes);

    const std::vector<RouteStop> stops;
    const DistanceIndex byQ;
    const DistanceIndex byP;
    std::unique_ptr<const NearestIndex> nearest; ///< made when it is needed
    std::size_t cursor = 0; ///< the node before the place of the last lookup; the next one is after it
};

} // namespace vant::detail
