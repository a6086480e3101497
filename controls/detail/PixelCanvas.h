#pragma once

#include "controls/detail/TraceStroke.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace vant::detail
{

/** A colour 0xRRGGBB, as the pixels of a picture hold it. */
using Rgb = std::uint32_t;

/** A rectangle of pixels; right and bottom are outside. */
struct PxRect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
    int Width() const noexcept { return right - left; }
    int Height() const noexcept { return bottom - top; }
    bool IsEmpty() const noexcept { return right <= left || bottom <= top; }
    bool Has(int x, int y) const noexcept { return x >= left && x < right && y >= top && y < bottom; }
    PxRect Cut(const PxRect& other) const noexcept;
    bool operator==(const PxRect&) const noexcept = default;
};

/** The shape of a character: how much of each pixel it covers. */
struct Glyph {
    int left = 0;  ///< from the pen to the shape
    int top = 0;   ///< from the base line up to the shape
    int width = 0; ///< of the shape
    int height = 0;
    int advance = 0;                 ///< to the next character
    std::vector<std::uint8_t> cover; ///< row by row, 0 to 255
};

/** What knows the shapes of a font, or stands in for it. */
class GlyphSource
{
public:
    virtual ~GlyphSource() = default;
    virtual const Glyph& Get(wchar_t character) = 0;
    virtual int Ascent() const = 0;
    virtual int Height() const = 0;

    int WidthOf(std::wstring_view text);
};

/** Paints into the pixels of a picture, top row first, with smooth edges. Nothing is painted outside of the
 * picture and of the clip rectangle. */
class PixelCanvas
{
public:
    /** @param pixels  width * height of them; must outlive this */
    PixelCanvas(Rgb* pixels, int width, int height) noexcept;

    int Width() const noexcept { return m_width; }
    int Height() const noexcept { return m_height; }
    PxRect Bounds() const noexcept { return {0, 0, m_width, m_height}; }
    /** Replaces the clip rectangle. */
    void SetClip(const PxRect& clip) noexcept { m_clip = clip.Cut(Bounds()); }

    void Fill(const PxRect& r, Rgb colour) noexcept;
    /** @param alpha  0 to 255 */
    void Blend(const PxRect& r, Rgb colour, int alpha) noexcept;
    /** The outline of a rectangle, `width` wide, inside of it. */
    void Frame(const PxRect& r, Rgb colour, int width) noexcept;
    /** A disc around a point; pixels have their middles at halves. */
    void Disc(double x, double y, double radius, Rgb colour) noexcept;
    /** @param left  of the line's first column */
    void Stroke(const TraceStroke& stroke, int left, Rgb colour) noexcept;
    /** Shades what is under a line, strongest at the clip rectangle's top and faint at its bottom, or the
     * other way round for a line that hangs from the top. @param alpha  at the strongest, 0 to 255 */
    void Shade(const TraceStroke& stroke, int left, Rgb colour, int alpha, bool hangs);
    /** Writes a line of text. @return where it ends */
    int Text(int x, int baseLine, std::wstring_view text, GlyphSource& font, Rgb colour) noexcept;

private:
    Rgb* Row(int y) noexcept { return m_pixels + static_cast<std::ptrdiff_t>(y) * m_width; }

    Rgb* m_pixels;
    int m_width;
    int m_height;
    PxRect m_clip;
};

/** A mixture of two colours. @param alpha  of the second, 0 to 255 */
constexpr Rgb Mix(Rgb under, Rgb over, int alpha) noexcept
{
    // Red and blue in one go, with a byte between them; 256 stands for all of it.
    const auto a = static_cast<std::uint32_t>(alpha + (alpha >> 7));
    constexpr std::uint32_t redBlue = 0xFF00FF;
    constexpr std::uint32_t green = 0x00FF00;
    const std::uint32_t rb = ((under & redBlue) * (256 - a) + (over & redBlue) * a) >> 8;
    const std::uint32_t g = ((under & green) * (256 - a) + (over & green) * a) >> 8;
    return (rb & redBlue) | (g & green);
}

} // namespace vant::detail
