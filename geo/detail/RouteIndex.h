#pragma once

#include "geo/detail/DistanceIndex.h"
#include "geo/detail/NearestIndex.h"

#include <memory>

namespace vant::detail
{

/** What a route of at least one node remembers for its lookups. */
struct RouteIndex {
    DistanceIndex byQ;
    DistanceIndex byP;
    std::unique_ptr<const NearestIndex> nearest; ///< made when it is needed
};

} // namespace vant::detail
