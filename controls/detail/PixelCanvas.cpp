#include "controls/detail/PixelCanvas.h"

#include <algorithm>
#include <cmath>

namespace vant::detail
{

PxRect PxRect::Cut(const PxRect& other) const noexcept
{
    return {std::max(left, other.left), std::max(top, other.top), std::min(right, other.right),
            std::min(bottom, other.bottom)};
}

int GlyphSource::WidthOf(std::wstring_view text)
{
    int width = 0;
    for (const wchar_t character : text)
        width += Get(character).advance;
    return width;
}

PixelCanvas::PixelCanvas(Rgb* pixels, int width, int height) noexcept
    : m_pixels(pixels)
    , m_width(width)
    , m_height(height)
    , m_clip(Bounds())
{
}

void PixelCanvas::Fill(const PxRect& r, Rgb colour) noexcept
{
    const PxRect part = r.Cut(m_clip);
    if (part.IsEmpty())
        return;
    for (int y = part.top; y < part.bottom; ++y)
        std::fill_n(Row(y) + part.left, part.Width(), colour);
}

void PixelCanvas::Blend(const PxRect& r, Rgb colour, int alpha) noexcept
{
    const PxRect part = r.Cut(m_clip);
    for (int y = part.top; y < part.bottom; ++y) {
        Rgb* const row = Row(y);
        for (int x = part.left; x < part.right; ++x)
            row[x] = Mix(row[x], colour, alpha);
    }
}

void PixelCanvas::Frame(const PxRect& r, Rgb colour, int width) noexcept
{
    Fill({r.left, r.top, r.right, r.top + width}, colour);
    Fill({r.left, r.bottom - width, r.right, r.bottom}, colour);
    Fill({r.left, r.top, r.left + width, r.bottom}, colour);
    Fill({r.right - width, r.top, r.right, r.bottom}, colour);
}

void PixelCanvas::Disc(double cx, double cy, double radius, Rgb colour) noexcept
{
    const PxRect part =
        PxRect{static_cast<int>(std::floor(cx - radius - 1)), static_cast<int>(std::floor(cy - radius - 1)),
               static_cast<int>(std::ceil(cx + radius + 1)), static_cast<int>(std::ceil(cy + radius + 1))}
            .Cut(m_clip);
    for (int y = part.top; y < part.bottom; ++y) {
        for (int x = part.left; x < part.right; ++x) {
            const double away = std::hypot(x + 0.5 - cx, y + 0.5 - cy);
            const double cover = std::clamp(radius - away + 0.5, 0.0, 1.0);
            Rgb& pixel = Row(y)[x];
            pixel = Mix(pixel, colour, static_cast<int>(cover * 255));
        }
    }
}

void PixelCanvas::Stroke(const TraceStroke& stroke, int left, Rgb colour) noexcept
{
    constexpr int slices = TraceStroke::slices;
    const int first = std::max(m_clip.left - left, 0);
    const int end = std::min(m_clip.right - left, stroke.Columns());
    const auto top = static_cast<float>(m_clip.top);
    const auto bottom = static_cast<float>(m_clip.bottom);
    for (int column = first; column < end; ++column) {
        const TraceStroke::Cover* const covers = stroke.At(column);
        TraceStroke::Cover any;
        TraceStroke::Cover all{-1e9F, 1e9F};
        for (int i = 0; i < slices; ++i) {
            const TraceStroke::Cover& cover = covers[i];
            if (!cover.IsEmpty())
                any.Add(cover.high, cover.low);
            all.high = std::max(all.high, cover.high);
            all.low = std::min(all.low, cover.low);
        }
        if (any.IsEmpty() || any.low <= top || any.high >= bottom)
            continue;
        const int from = static_cast<int>(std::max(std::floor(any.high), top));
        const int to = static_cast<int>(std::min(std::ceil(any.low), bottom));
        const float fullFrom = std::ceil(all.high);
        const float fullTo = std::floor(all.low);
        Rgb* pixel = Row(from) + left + column;
        for (int y = from; y < to; ++y, pixel += m_width) {
            const auto above = static_cast<float>(y);
            const float below = above + 1;
            if (above >= fullFrom && below <= fullTo) {
                *pixel = colour;
                continue;
            }
            float cover = 0;
            for (int i = 0; i < slices; ++i)
                cover += std::max(std::min(covers[i].low, below) - std::max(covers[i].high, above), 0.0F);
            *pixel = Mix(*pixel, colour, static_cast<int>(cover * (255.0F / slices)));
        }
    }
}

void PixelCanvas::Shade(const TraceStroke& stroke, int left, Rgb colour, int alpha, bool hangs)
{
    if (m_clip.IsEmpty())
        return;
    constexpr int faint = 8;
    const int height = m_clip.Height();
    const int first = std::max(m_clip.left - left, 0);
    const int end = std::min(m_clip.right - left, stroke.Columns());
    // Row by row, as the pixels lie in memory.
    std::vector<int> edges;
    edges.reserve(static_cast<std::size_t>(std::max(end - first, 0)));
    for (int column = first; column < end; ++column) {
        TraceStroke::Cover any;
        for (int i = 0; i < TraceStroke::slices; ++i) {
            const TraceStroke::Cover& cover = stroke.At(column)[i];
            if (!cover.IsEmpty())
                any.Add(cover.high, cover.low);
        }
        const float nothing = static_cast<float>(hangs ? m_clip.top : m_clip.bottom);
        const float middle = any.IsEmpty() ? nothing : (any.high + any.low) / 2;
        edges.push_back(static_cast<int>(
            std::clamp(middle, static_cast<float>(m_clip.top), static_cast<float>(m_clip.bottom))));
    }
    for (int y = m_clip.top; y < m_clip.bottom; ++y) {
        const int away = hangs ? m_clip.bottom - 1 - y : y - m_clip.top;
        const int strength = alpha - (alpha - faint) * away / height;
        Rgb* const row = Row(y) + left + first;
        for (std::size_t i = 0; i < edges.size(); ++i) {
            if (hangs ? y < edges[i] : y >= edges[i])
                row[i] = Mix(row[i], colour, strength);
        }
    }
}

int PixelCanvas::Text(int x, int baseLine, std::wstring_view text, GlyphSource& font, Rgb colour) noexcept
{
    for (const wchar_t character : text) {
        const Glyph& glyph = font.Get(character);
        const PxRect place{x + glyph.left, baseLine - glyph.top, x + glyph.left + glyph.width,
                           baseLine - glyph.top + glyph.height};
        const PxRect part = place.Cut(m_clip);
        for (int y = part.top; y < part.bottom; ++y) {
            const std::uint8_t* cover = glyph.cover.data() +
                                        static_cast<std::ptrdiff_t>(y - place.top) * glyph.width +
                                        (part.left - place.left);
            Rgb* const row = Row(y);
            for (int at = part.left; at < part.right; ++at, ++cover) {
                if (*cover)
                    row[at] = Mix(row[at], colour, *cover);
            }
        }
        x += glyph.advance;
    }
    return x;
}

} // namespace vant::detail
