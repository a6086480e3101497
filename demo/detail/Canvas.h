#pragma once

#include "demo/detail/Geometry.h"
#include "demo/detail/Path.h"

#include <cstdint>
#include <vector>

namespace demo
{

/** An opaque colour and how much of it is laid on. */
struct Ink {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    double strength = 1.0; ///< 0 nothing to 1 all of it
};

/** Fills shapes with smooth edges in a picture in memory: one 32-bit word a pixel (0x00RRGGBB), rows from the
 * top. The pixels belong to the caller. Whatever lies outside the picture or the clip box is not drawn. */
class Canvas
{
public:
    Canvas(std::uint32_t* pixels, int width, int height) noexcept;

    /** Limits drawing to a part of the picture. */
    void SetClip(const Box& clip) noexcept;
    void ClearClip() noexcept;

    void Fill(const Path& path, const Ink& ink);

    /** As Fill(), fading from `ink` at the row `top` to `end` at the row `bottom`. */
    void FillFading(const Path& path, const Ink& ink, const Ink& end, double top, double bottom);

private:
    void Accumulate(Point from, Point to) noexcept;
    void Blend(int row, const Ink& ink) noexcept;
    bool Begin(const Path& path);

    std::uint32_t* m_pixels;
    int m_width;
    int m_height;
    Box m_clip;
    Box m_area; // of the shape at hand, within the clip box
    std::vector<float>
        m_cover; // per pixel of m_area, what the coverage changes by from the pixel on its left
};

} // namespace demo
