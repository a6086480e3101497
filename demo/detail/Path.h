#pragma once

#include "demo/detail/Geometry.h"

#include <cstddef>
#include <span>
#include <vector>

namespace demo
{

/** Closed polygons to be filled together. Pieces of one path that lie on one another do not show: what a path
 * covers is covered once. All shapes run the same way round, rings have their hole the other way. Angles are
 * bearings in radians, clockwise from the top of the picture. */
class Path
{
public:
    void AddPolygon(std::span<const Point> points);
    void AddCircle(Point centre, double radius);
    void AddRing(Point centre, double inner, double outer);

    /** The band between two radii from one bearing clockwise to a greater one. */
    void AddArc(Point centre, double inner, double outer, double from, double to);

    /** A straight line with butt ends. */
    void AddLine(Point from, Point to, double width);

    /** Lines from point to point with round joints and ends. */
    void AddPolyline(std::span<const Point> points, double width);

    /** Turns everything clockwise about the origin by `bearing`, then moves it by `offset`: a needle is made
     * at the origin pointing up, and placed afterwards. */
    void Place(double bearing, Point offset) noexcept;

    std::span<const Point> Points() const noexcept { return m_points; }

    /** For each polygon the index behind its last point. */
    std::span<const std::size_t> Ends() const noexcept { return m_ends; }

private:
    void AddCirclePoints(Point centre, double radius, bool clockwise);

    std::vector<Point> m_points;
    std::vector<std::size_t> m_ends;
};

/** The point at a distance and bearing from another. */
Point AtBearing(Point centre, double radius, double bearing) noexcept;

} // namespace demo
