#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <span>

/** @file
 *  From a value to the entry of a table that colours it. */

namespace vant::detail
{

/** A range of values, spread over the entries of a table. */
struct PalRange {
    double start = 0;
    double end = 0;
    std::size_t size = 0; ///< entries of the table
    bool wrap =
        false; ///< values beyond the range begin the table anew; else they get its first or last entry
};

/** No entry: the fallback colour. */
inline constexpr std::size_t noEntry = static_cast<std::size_t>(-1);

/** The entry of a wrapped index that is not within the table. Whole multiples of the size, the negative ones
 * too, are entry 0. */
std::size_t WrappedEntry(double index, std::size_t size) noexcept;

/** The entry for a value. The range is spread over as many steps as there are entries, and rounded: the value
 * `end` is deliberately one step beyond the last entry. There is none for an empty range or table, and where
 * the arithmetic has no result: for NaN, and for an infinite value that is to be wrapped. */
inline std::size_t EntryOf(double value, const PalRange& range) noexcept
{
    if (range.start == range.end || range.size == 0)
        return noEntry;
    const auto size = static_cast<double>(range.size);
    const double x = (value - range.start) / (range.end - range.start) * size + 0.5;
    // Below, a cut is a rounding down: what is negative is gone.
    if (x >= 0 && x < size)
        return static_cast<std::size_t>(static_cast<long long>(x));
    if (x != x)
        return noEntry;
    if (range.wrap)
        return WrappedEntry(std::floor(x), range.size);
    return x < 0 ? 0 : range.size - 1;
}

/** EntryOf() of many values at once. `colours` gets the colour of `values[i]` at 4 * i, for as many as there
 * are of both. A colour is any four bytes.
 *  @param table  the `range.size` colours, and the fallback behind them */
void FillColours(std::span<const double> values, const PalRange& range, std::span<const std::uint32_t> table,
                 std::span<std::byte> colours) noexcept;

} // namespace vant::detail
