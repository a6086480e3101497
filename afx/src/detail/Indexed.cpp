#include "detail/Indexed.h"

#include "vafx/CImage.h"

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace vafx::detail
{
namespace
{

constexpr std::size_t mostColours = 256;
constexpr unsigned steps = 6; // of each of the three colours: 216 together
constexpr unsigned stepSize = 255 / (steps - 1);

RGBQUAD ColourAt(const CImage& image, int x, int y)
{
    const auto* pixel = static_cast<const BYTE*>(image.GetPixelAddress(x, y));
    return {pixel[0], pixel[1], pixel[2], 0};
}

std::uint32_t KeyOf(RGBQUAD colour) noexcept
{
    return colour.rgbBlue | static_cast<std::uint32_t>(colour.rgbGreen) << 8 |
           static_cast<std::uint32_t>(colour.rgbRed) << 16;
}

unsigned NearestStep(BYTE value) noexcept
{
    return (value + stepSize / 2) / stepSize;
}

BYTE CubeIndex(RGBQUAD colour) noexcept
{
    const unsigned index = (NearestStep(colour.rgbRed) * steps + NearestStep(colour.rgbGreen)) * steps +
                           NearestStep(colour.rgbBlue);
    return static_cast<BYTE>(index);
}

std::vector<RGBQUAD> Cube()
{
    std::vector<RGBQUAD> colours;
    for (unsigned r = 0; r < steps; ++r)
        for (unsigned g = 0; g < steps; ++g)
            for (unsigned b = 0; b < steps; ++b)
                colours.push_back({static_cast<BYTE>(b * stepSize), static_cast<BYTE>(g * stepSize),
                                   static_cast<BYTE>(r * stepSize), 0});
    return colours;
}

/** Writes indices in the order in which the colours are met. @return false when there are too many. */
bool IndexExactly(const CImage& image, CImage& indexed, std::vector<RGBQUAD>& colours)
{
    std::unordered_map<std::uint32_t, BYTE> known;
    for (int y = 0; y < image.GetHeight(); ++y) {
        for (int x = 0; x < image.GetWidth(); ++x) {
            const RGBQUAD colour = ColourAt(image, x, y);
            const auto [entry, isNew] = known.try_emplace(KeyOf(colour), static_cast<BYTE>(colours.size()));
            if (isNew) {
                if (colours.size() == mostColours)
                    return false;
                colours.push_back(colour);
            }
            *static_cast<BYTE*>(indexed.GetPixelAddress(x, y)) = entry->second;
        }
    }
    return true;
}

} // namespace

bool MakeIndexed(const CImage& image, CImage& indexed)
{
    if (!indexed.Create(image.GetWidth(), image.GetHeight(), 8))
        return false;
    std::vector<RGBQUAD> colours;
    if (!IndexExactly(image, indexed, colours)) {
        colours = Cube();
        for (int y = 0; y < image.GetHeight(); ++y)
            for (int x = 0; x < image.GetWidth(); ++x)
                *static_cast<BYTE*>(indexed.GetPixelAddress(x, y)) = CubeIndex(ColourAt(image, x, y));
    }
    indexed.SetColorTable(0, static_cast<UINT>(colours.size()), colours.data());
    return true;
}

} // namespace vafx::detail
