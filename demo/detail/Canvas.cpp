#include "demo/detail/Canvas.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace demo
{
namespace
{

/** For an edge that crosses a row from x = `a` to `b`: the area between it and x = `t`, left of `t`, of the
 * row. */
double AreaLeftOf(double t, double a, double b) noexcept
{
    if (t <= a)
        return 0.0;
    if (t >= b)
        return t - (a + b) / 2.0;
    return (t - a) * (t - a) / (2.0 * (b - a));
}

std::uint32_t Mix(std::uint32_t under, std::uint8_t over, double weight, int shift) noexcept
{
    const double was = static_cast<double>((under >> shift) & 0xFFU);
    return static_cast<std::uint32_t>(was + (over - was) * weight + 0.5) << shift;
}

std::uint8_t Between(std::uint8_t a, std::uint8_t b, double weight) noexcept
{
    return static_cast<std::uint8_t>(a + (b - a) * weight + 0.5);
}

} // namespace

Canvas::Canvas(std::uint32_t* pixels, int width, int height) noexcept
    : m_pixels(pixels)
    , m_width(std::max(width, 0))
    , m_height(std::max(height, 0))
    , m_clip{0, 0, m_width, m_height}
{
}

void Canvas::SetClip(const Box& clip) noexcept
{
    m_clip = Overlap(clip, {0, 0, m_width, m_height});
}

void Canvas::ClearClip() noexcept
{
    m_clip = {0, 0, m_width, m_height};
}

void Canvas::Fill(const Path& path, const Ink& ink)
{
    if (!Begin(path))
        return;
    for (int row = m_area.top; row < m_area.bottom; ++row)
        Blend(row, ink);
}

void Canvas::FillFading(const Path& path, const Ink& ink, const Ink& end, double top, double bottom)
{
    if (!Begin(path))
        return;
    for (int row = m_area.top; row < m_area.bottom; ++row) {
        const double weight = std::clamp((row + 0.5 - top) / std::max(bottom - top, 1.0), 0.0, 1.0);
        Blend(row,
              {Between(ink.red, end.red, weight), Between(ink.green, end.green, weight),
               Between(ink.blue, end.blue, weight), ink.strength + (end.strength - ink.strength) * weight});
    }
}

bool Canvas::Begin(const Path& path)
{
    double left = m_clip.right;
    double top = m_clip.bottom;
    double right = m_clip.left;
    double bottom = m_clip.top;
    for (const Point& p : path.Points()) {
        if (!std::isfinite(p.x) || !std::isfinite(p.y))
            return false;
        left = std::min(left, p.x);
        top = std::min(top, p.y);
        right = std::max(right, p.x);
        bottom = std::max(bottom, p.y);
    }
    const auto inX = [this](double x) {
        return static_cast<int>(std::clamp<double>(x, m_clip.left, m_clip.right));
    };
    const auto inY = [this](double y) {
        return static_cast<int>(std::clamp<double>(y, m_clip.top, m_clip.bottom));
    };
    m_area = {inX(std::floor(left)), inY(std::floor(top)), inX(std::ceil(right)), inY(std::ceil(bottom))};
    if (m_area.Width() <= 0 || m_area.Height() <= 0)
        return false;

    // One column more than is shown: an edge in the last pixel changes the coverage of the one behind it.
    m_cover.assign(static_cast<std::size_t>(m_area.Width() + 1) * static_cast<std::size_t>(m_area.Height()),
                   0.0F);
    std::size_t first = 0;
    for (const std::size_t end : path.Ends()) {
        for (std::size_t i = first; i < end; ++i)
            Accumulate(path.Points()[i], path.Points()[i + 1 < end ? i + 1 : first]);
        first = end;
    }
    return true;
}

void Canvas::Accumulate(Point from, Point to) noexcept
{
    const double direction = from.y < to.y ? 1.0 : -1.0;
    if (from.y > to.y)
        std::swap(from, to);
    const double top = std::max(from.y, static_cast<double>(m_area.top));
    const double bottom = std::min(to.y, static_cast<double>(m_area.bottom));
    if (!(top < bottom))
        return;

    const double slope = (to.x - from.x) / (to.y - from.y);
    // Beyond the left and right border only the height of an edge matters, not where it is.
    const auto xAt = [&](double y) {
        return std::clamp(from.x + (y - from.y) * slope - m_area.left, 0.0,
                          static_cast<double>(m_area.Width()));
    };
    const std::size_t stride = static_cast<std::size_t>(m_area.Width()) + 1;
    for (int row = static_cast<int>(std::floor(top)); row < bottom; ++row) {
        const double y0 = std::max(top, static_cast<double>(row));
        const double y1 = std::min(bottom, static_cast<double>(row + 1));
        const double xa = xAt(y0);
        const double xb = xAt(y1);
        const double low = std::min(xa, xb);
        const double high = std::max(xa, xb);
        const double height = direction * (y1 - y0);
        float* const cover = m_cover.data() + static_cast<std::size_t>(row - m_area.top) * stride;

        double before = 0.0;
        double area = AreaLeftOf(std::floor(low), low, high);
        const int last = std::min(static_cast<int>(std::floor(high)) + 1, m_area.Width());
        for (int column = static_cast<int>(std::floor(low)); column <= last; ++column) {
            const double next = AreaLeftOf(column + 1.0, low, high);
            const double here = next - area;
            cover[column] += static_cast<float>(height * (here - before));
            before = here;
            area = next;
        }
    }
}

void Canvas::Blend(int row, const Ink& ink) noexcept
{
    const std::size_t stride = static_cast<std::size_t>(m_area.Width()) + 1;
    const float* cover = m_cover.data() + static_cast<std::size_t>(row - m_area.top) * stride;
    std::uint32_t* pixel = m_pixels + static_cast<std::ptrdiff_t>(row) * m_width + m_area.left;
    constexpr float least = 1.0F / 512.0F; // less than half a step of any channel
    float sum = 0.0F;
    for (int i = 0; i < m_area.Width(); ++i, ++pixel) {
        sum += *cover++;
        const float coverage = std::min(std::abs(sum), 1.0F);
        if (coverage < least)
            continue;
        const double weight = std::clamp(static_cast<double>(coverage) * ink.strength, 0.0, 1.0);
        *pixel = Mix(*pixel, ink.red, weight, 16) | Mix(*pixel, ink.green, weight, 8) |
                 Mix(*pixel, ink.blue, weight, 0);
    }
}

} // namespace demo
