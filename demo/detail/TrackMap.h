#pragma once

#include "demo/detail/Geometry.h"
#include "demo/detail/History.h"
#include "demo/detail/LocalPlane.h"
#include "demo/detail/Playback.h"

namespace demo
{

/** A plane map of a few kilometres, north up: a position becomes a pixel. */
class TrackMap
{
public:
    /** Shows the whole track and the position last known in `box`, with a margin, as large as it fits. The
     * map is empty while there is no track.
     *  @param unit metres in the unit in which the grid's mesh is a round number */
    TrackMap(const History<TrackPoint>& track, const Box& box, double unit = 1.0);

    bool IsEmpty() const noexcept { return m_metresPerPixel <= 0.0; }

    /** The pixel of a position in radians. */
    Point Pixel(double latitude, double longitude) const noexcept;

    /** Mesh of the grid in metres, at least 64 pixels wide. */
    double GridMetres() const noexcept { return m_grid; }
    double GridPixels() const noexcept { return m_grid / m_metresPerPixel; }

    /** The pixel of a grid line crossing near the middle; the grid stays with the ground as the map follows.
     */
    Point GridOrigin() const noexcept;

private:
    Box m_box;
    LocalPlane m_plane;        // around the first position
    double m_centreEast = 0.0; // of the box's middle, metres from the origin
    double m_centreNorth = 0.0;
    double m_metresPerPixel = 0.0;
    double m_grid = 1.0;
};

} // namespace demo
