#pragma once

#include <cstddef>

namespace vant::detail
{

/** Characters that every text of the functions below fits into. */
inline constexpr std::size_t rangeTextMax = 80;

/** "Not in numerical range %d to %d" for a signed integer of `bits` bits. The numbers shown are not the
 * bounds but the two halves, low one first, of the lower bound as a double: a text that users and manuals
 * know. Each function returns the end of what it wrote at `out`, which has no terminator. */
wchar_t* WriteSignedRange(wchar_t* out, int bits) noexcept;

/** "Not in numerical range 0 to %d" for an unsigned integer: the number is the low half of 2^bits as a
 * double. */
wchar_t* WriteUnsignedRange(wchar_t* out, int bits) noexcept;

/** "Not in user specified range %g to %g". */
wchar_t* WriteUserRange(wchar_t* out, double min, double max) noexcept;

} // namespace vant::detail
