#include "display/detail/SelectHits.h"

#include <algorithm>
#include <limits>
#include <unordered_map>

namespace vant::detail
{

std::vector<SelectHit> ReadSelectHits(std::span<const std::uint32_t> buffer, int records)
{
    constexpr std::size_t headSize = 3;
    constexpr double whole = std::numeric_limits<std::uint32_t>::max();
    std::vector<SelectHit> hits;
    std::unordered_map<std::uint64_t, std::size_t> known; // the hit of two names
    for (; records > 0 && buffer.size() >= headSize; --records) {
        const std::size_t names = buffer[0];
        if (names > buffer.size() - headSize)
            break;
        SelectHit hit;
        hit.depth = buffer[1] / whole;
        if (names > 0)
            hit.owner = buffer[headSize];
        if (names > 1)
            hit.part = buffer[headSize + 1];
        buffer = buffer.subspan(headSize + names);

        const auto [at, isNew] = known.try_emplace(std::uint64_t{hit.owner} << 32 | hit.part, hits.size());
        if (isNew)
            hits.push_back(hit);
        else
            hits[at->second].depth = std::min(hits[at->second].depth, hit.depth);
    }
    return hits;
}

} // namespace vant::detail
