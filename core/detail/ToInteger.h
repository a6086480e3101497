#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

namespace vant::detail
{

/** A floating value cut to a 64-bit integer. A value that no 64-bit integer holds, NaN included, gives the
 *  smallest one, as the processor's own conversion does: its low 32 bits are 0. */
inline std::int64_t ToInt64(double value) noexcept
{
    constexpr double limit = 9223372036854775808.0; // 2^63
    return value >= -limit && value < limit ? static_cast<std::int64_t>(value)
                                            : std::numeric_limits<std::int64_t>::min();
}

/** Rounds half up (-2.5 gives -2), then cuts as ToInt64(). */
inline std::int64_t RoundToInt64(double value) noexcept
{
    return ToInt64(std::floor(value + 0.5));
}

/** The low bits of an integer as a narrower type: nothing clamps. */
template <class Narrow>
constexpr Narrow LowBits(std::int64_t value) noexcept
{
    return static_cast<Narrow>(static_cast<std::uint64_t>(value));
}

} // namespace vant::detail
