#include "controls/detail/GreyPixels.h"

#include <cmath>
#include <cstddef>

namespace vant::detail
{
namespace
{

struct Rgb {
    int red, green, blue;
};

constexpr Rgb key{0, 22, 47};
constexpr double keyRadius = 10.0;

double DistanceFromKey(const Rgb& c) noexcept
{
    const int red = c.red - key.red;
    const int green = c.green - key.green;
    const int blue = c.blue - key.blue;
    return std::sqrt(static_cast<double>(red * red + green * green + blue * blue));
}

std::uint8_t Grey(const Rgb& c) noexcept
{
    return static_cast<std::uint8_t>(c.green * 0.59 + c.red * 0.3 + c.blue * 0.11);
}

} // namespace

void GreyPixels(std::span<std::uint8_t> pixels) noexcept
{
    constexpr std::size_t pixelSize = 4;
    for (std::size_t at = 0; at + pixelSize <= pixels.size(); at += pixelSize) {
        const Rgb colour{pixels[at + 2], pixels[at + 1], pixels[at]};
        if (DistanceFromKey(colour) > keyRadius)
            pixels[at] = pixels[at + 1] = pixels[at + 2] = Grey(colour);
    }
}

} // namespace vant::detail
