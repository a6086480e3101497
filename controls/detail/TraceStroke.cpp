#include "controls/detail/TraceStroke.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace vant::detail
{

namespace
{

// Far outside of every picture, and still exact in a float.
constexpr double farAway = 1e6;

double YOf(const TraceStroke::Map& map, double value) noexcept
{
    return std::clamp(map.y0 + value * map.yPer, -farAway, farAway);
}

} // namespace

void TraceStroke::Make(const SamplePyramid& samples, const Map& map, int columns, float thickness)
{
    m_covers.assign(static_cast<std::size_t>(std::max(columns, 0)) * slices, Cover());
    if (columns <= 0 || samples.IsEmpty() || !(map.width > 0))
        return;
    const SamplePyramid::Index from = samples.From(map.start);
    const SamplePyramid::Index to = samples.After(map.start + map.width * columns);
    // With so many samples per column a line between any two of them is hidden by the others.
    constexpr SamplePyramid::Index many = 3;
    if (to - from >= many * static_cast<SamplePyramid::Index>(columns))
        return FromExtremes(samples, map, thickness);
    // The lines from the last sample before the picture, and to the first one behind it.
    const auto first = from > samples.First() ? from - 1 : from;
    const auto end = to < samples.End() ? to + 1 : to;
    FromSamples(samples, map, first, end, thickness);
}

void TraceStroke::FromExtremes(const SamplePyramid& samples, const Map& map, float thickness)
{
    m_extremes.resize(m_covers.size() / slices);
    samples.Columns(map.start, map.width, m_extremes);
    const float half = thickness / 2;
    Cover before;
    for (std::size_t column = 0; column < m_extremes.size(); ++column) {
        const MinMax& values = m_extremes[column];
        Cover cover;
        if (!values.IsEmpty()) {
            const auto a = static_cast<float>(YOf(map, values.min));
            const auto b = static_cast<float>(YOf(map, values.max));
            cover.Add(std::min(a, b), std::max(a, b));
        }
        const Cover own = cover;
        if (!cover.IsEmpty() && !before.IsEmpty()) {
            // Neighbours that do not touch meet half way.
            const float gap = std::max(cover.high - before.low, before.high - cover.low);
            if (gap > 0) {
                const bool isBelow = cover.high > before.low;
                const float middle = isBelow ? (cover.high + before.low) / 2 : (cover.low + before.high) / 2;
                cover.Add(middle, middle);
                Cover* const previous = &m_covers[(column - 1) * slices];
                for (int i = 0; i < slices; ++i)
                    previous[i].Add(middle - half, middle + half);
            }
        }
        if (!cover.IsEmpty())
            std::fill_n(&m_covers[column * slices], slices, Cover{cover.high - half, cover.low + half});
        before = own;
    }
}

void TraceStroke::FromSamples(const SamplePyramid& samples, const Map& map, SamplePyramid::Index from,
                              SamplePyramid::Index to, float thickness)
{
    const double radius = thickness / 2;
    std::optional<Point> before;
    for (auto i = from; i < to; ++i) {
        const double value = samples.Value(i);
        if (value != value) {
            before.reset();
            continue;
        }
        const Point at{(samples.Time(i) - map.start) / map.width, YOf(map, value)};
        if (before)
            AddLine(*before, at, radius);
        AddDot(at, radius);
        before = at;
    }
}

void TraceStroke::AddDot(Point at, double radius)
{
    const double last = static_cast<double>(m_covers.size()) - 1;
    const double first = std::max(std::ceil((at.x - radius) * slices - 0.5), 0.0);
    const double end = std::min(std::floor((at.x + radius) * slices - 0.5), last);
    for (double slice = first; slice <= end; ++slice) {
        const double across = (slice + 0.5) / slices - at.x;
        const double half = std::sqrt(std::max(radius * radius - across * across, 0.0));
        m_covers[static_cast<std::size_t>(slice)].Add(static_cast<float>(at.y - half),
                                                      static_cast<float>(at.y + half));
    }
}

/** Adds the rectangle around a line, cut by each of the slices that it touches. */
void TraceStroke::AddLine(Point from, Point to, double radius)
{
    const double dx = to.x - from.x;
    const double dy = to.y - from.y;
    const double length = std::hypot(dx, dy);
    if (!(length > 0))
        return;
    const double nx = -dy / length * radius;
    const double ny = dx / length * radius;
    const Point corners[] = {{from.x + nx, from.y + ny},
                             {to.x + nx, to.y + ny},
                             {to.x - nx, to.y - ny},
                             {from.x - nx, from.y - ny}};
    const double last = static_cast<double>(m_covers.size()) - 1;
    for (std::size_t i = 0; i < std::size(corners); ++i) {
        Point a = corners[i];
        Point b = corners[(i + 1) % std::size(corners)];
        if (a.x > b.x)
            std::swap(a, b);
        const double first = std::max(std::ceil(a.x * slices - 0.5), 0.0);
        const double end = std::min(std::floor(b.x * slices - 0.5), last);
        const double slope = b.x > a.x ? (b.y - a.y) / (b.x - a.x) : 0;
        for (double slice = first; slice <= end; ++slice) {
            const auto y = static_cast<float>(a.y + slope * ((slice + 0.5) / slices - a.x));
            m_covers[static_cast<std::size_t>(slice)].Add(y, y);
        }
    }
}

} // namespace vant::detail
