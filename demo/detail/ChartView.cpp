#include "demo/detail/ChartView.h"

#include "demo/detail/Quantities.h"
#include "demo/detail/Scale.h"

#include <algorithm>
#include <cmath>

namespace demo
{
namespace
{

constexpr double earthRadius = 6371000.0; // metres, mean
constexpr double margin = 0.12;           // of the box, on every side
constexpr double leastSpan = 40.0;        // metres shown when the boat has hardly moved
constexpr double gridPixels = 64.0;       // the grid's mesh is at least this wide

} // namespace

ChartView::ChartView(const History<TrackPoint>& track, const Box& box, double unit)
    : m_box(box)
{
    if (track.IsEmpty() || box.Width() <= 0 || box.Height() <= 0)
        return;
    m_latitude = track[0].latitude;
    m_longitude = track[0].longitude;
    m_cosine = std::max(std::cos(m_latitude), 1.0e-6);

    double west = 0.0;
    double east = 0.0;
    double south = 0.0;
    double north = 0.0;
    for (std::size_t i = 0; i < track.Size(); ++i) {
        const double x = TurnBetween(m_longitude, track[i].longitude) * m_cosine * earthRadius;
        const double y = (track[i].latitude - m_latitude) * earthRadius;
        west = std::min(west, x);
        east = std::max(east, x);
        south = std::min(south, y);
        north = std::max(north, y);
    }
    m_centreEast = (west + east) / 2.0;
    m_centreNorth = (south + north) / 2.0;
    const double inner = 1.0 - 2.0 * margin;
    m_metresPerPixel = std::max(std::max(east - west, leastSpan) / (box.Width() * inner),
                                std::max(north - south, leastSpan) / (box.Height() * inner));
    m_grid = Scale::Around(0.0, m_metresPerPixel * gridPixels / unit, 1).step * unit;
}

Point ChartView::Pixel(double latitude, double longitude) const noexcept
{
    const double east = TurnBetween(m_longitude, longitude) * m_cosine * earthRadius;
    const double north = (latitude - m_latitude) * earthRadius;
    return {m_box.left + m_box.Width() / 2.0 + (east - m_centreEast) / m_metresPerPixel,
            m_box.top + m_box.Height() / 2.0 - (north - m_centreNorth) / m_metresPerPixel};
}

Point ChartView::GridOrigin() const noexcept
{
    const double east = std::round(m_centreEast / m_grid) * m_grid;
    const double north = std::round(m_centreNorth / m_grid) * m_grid;
    return {m_box.left + m_box.Width() / 2.0 + (east - m_centreEast) / m_metresPerPixel,
            m_box.top + m_box.Height() / 2.0 - (north - m_centreNorth) / m_metresPerPixel};
}

} // namespace demo
