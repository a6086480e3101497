#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace vant::detail
{

/** What OpenGL's selection found under one pair of names. */
struct SelectHit {
    std::uint32_t owner = 0; ///< the first name; 0 if there was none
    std::uint32_t part = 0;  ///< the second name; 0 if there was none
    double depth = 0;        ///< the nearest one, 0..1 of the window
    bool operator==(const SelectHit&) const = default;
};

/** Reads the records of a selection buffer: each a number of names, the smallest and the largest depth, and
 *  the names. Records of the same two names become one, in the order in which they came first. What does not
 * fit into the buffer is left out. */
std::vector<SelectHit> ReadSelectHits(std::span<const std::uint32_t> buffer, int records);

} // namespace vant::detail
