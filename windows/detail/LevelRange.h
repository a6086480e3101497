#pragma once

#include <algorithm>

/** @file
 *  The ranges of levels that a console shows and logs or not, each by a bit of its filter mask. */

namespace vant::detail
{

inline constexpr int levelRanges = 10;
inline constexpr int levelsPerRange = 1000;

/** The bit of the mask for a range, 0 .. levelRanges - 1. */
constexpr unsigned int RangeBit(int range) noexcept
{
    constexpr int lowest = 4; // the bits below are those of kinds of entries
    return 1U << (range + lowest);
}

/** The bits of all ranges. */
inline constexpr unsigned int rangeBits = RangeBit(levelRanges) - RangeBit(0);

/** The range of a level: what is negative counts as 0, and all above the last range belongs to that. */
constexpr int RangeOf(int level) noexcept
{
    return std::clamp(level / levelsPerRange, 0, levelRanges - 1);
}

} // namespace vant::detail
