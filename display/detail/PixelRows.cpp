#include "display/detail/PixelRows.h"

#include <algorithm>

namespace vant::detail
{

std::vector<unsigned char> PackRgb(const unsigned char* top, std::ptrdiff_t pitch, int width, int height)
{
    constexpr std::size_t pixelSize = 3;
    std::vector<unsigned char> packed(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) *
                                      pixelSize);
    unsigned char* to = packed.data();
    for (int y = height; y-- > 0;) {
        const unsigned char* from = top + y * pitch;
        for (int x = 0; x < width; ++x, from += pixelSize, to += pixelSize) {
            to[0] = from[2];
            to[1] = from[1];
            to[2] = from[0];
        }
    }
    return packed;
}

void FlipRows(unsigned char* first, std::ptrdiff_t pitch, int height) noexcept
{
    unsigned char* last = first + (height - 1) * pitch;
    for (; first < last; first += pitch, last -= pitch)
        std::swap_ranges(first, first + pitch, last);
}

} // namespace vant::detail
