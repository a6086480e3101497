#pragma once

#include <cstdint>
#include <span>

namespace vant::detail
{

/** Greys a picture whose pixels are four bytes: blue, green, red and one that stays. Pixels within a distance
 * of 10 of red 0, green 22, blue 47 stay as they are, so that the background of a skin does. */
void GreyPixels(std::span<std::uint8_t> pixels) noexcept;

} // namespace vant::detail
