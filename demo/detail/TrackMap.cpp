#include "demo/detail/TrackMap.h"

#include "demo/detail/Scale.h"

#include <algorithm>
#include <cmath>

namespace demo
{
namespace
{

constexpr double margin = 0.12;     // of the box, on every side
constexpr double leastSpan = 40.0;  // metres shown when the boat has hardly moved
constexpr double gridPixels = 64.0; // the grid's mesh is at least this wide

} // namespace

TrackMap::TrackMap(const History<TrackPoint>& track, const Box& box, double unit)
    : m_box(box)
{
    if (track.IsEmpty() || box.Width() <= 0 || box.Height() <= 0)
        return;
    m_plane = {track[0].latitude, track[0].longitude};

    double west = 0.0;
    double east = 0.0;
    double south = 0.0;
    double north = 0.0;
    for (std::size_t i = 0; i < track.Size(); ++i) {
        const GroundPoint place = m_plane.PlaceOf(track[i].latitude, track[i].longitude);
        west = std::min(west, place.east);
        east = std::max(east, place.east);
        south = std::min(south, place.north);
        north = std::max(north, place.north);
    }
    m_centreEast = (west + east) / 2.0;
    m_centreNorth = (south + north) / 2.0;
    const double inner = 1.0 - 2.0 * margin;
    m_metresPerPixel = std::max(std::max(east - west, leastSpan) / (box.Width() * inner),
                                std::max(north - south, leastSpan) / (box.Height() * inner));
    m_grid = Scale::Around(0.0, m_metresPerPixel * gridPixels / unit, 1).step * unit;
}

Point TrackMap::Pixel(double latitude, double longitude) const noexcept
{
    const GroundPoint place = m_plane.PlaceOf(latitude, longitude);
    return {m_box.left + m_box.Width() / 2.0 + (place.east - m_centreEast) / m_metresPerPixel,
            m_box.top + m_box.Height() / 2.0 - (place.north - m_centreNorth) / m_metresPerPixel};
}

Point TrackMap::GridOrigin() const noexcept
{
    const double east = std::round(m_centreEast / m_grid) * m_grid;
    const double north = std::round(m_centreNorth / m_grid) * m_grid;
    return {m_box.left + m_box.Width() / 2.0 + (east - m_centreEast) / m_metresPerPixel,
            m_box.top + m_box.Height() / 2.0 - (north - m_centreNorth) / m_metresPerPixel};
}

} // namespace demo
