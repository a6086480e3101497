#pragma once

#include "core/VantApi.h"

#include <cstddef>
#include <vector>

namespace vant::detail
{

/** Turns pixels of three bytes, blue first, into what OpenGL takes as red, green, blue: rows without padding,
 * the lowest first.
 *  @param top    the top row's first pixel
 *  @param pitch  bytes from a row to the one below it; negative when the bottom row comes first in memory
 *  @param width,height  pixels */
VANT_API std::vector<unsigned char> PackRgb(const unsigned char* top, std::ptrdiff_t pitch, int width,
                                            int height);

/** Exchanges the rows of a picture, top for bottom. @param pitch  bytes of a row, positive */
VANT_API void FlipRows(unsigned char* first, std::ptrdiff_t pitch, int height) noexcept;

} // namespace vant::detail
