#include "demo/detail/Path.h"

#include "demo/detail/Quantities.h"

#include <algorithm>
#include <cmath>

namespace demo
{
namespace
{

/** Straight pieces in an arc, so that none is further from it than a twentieth of a pixel. */
int PieceCount(double radius, double angle) noexcept
{
    constexpr double tolerance = 0.05;
    constexpr int most = 720;
    const double cosine = std::clamp(1.0 - tolerance / std::max(radius, 1.0), -1.0, 1.0);
    const double pieces = std::abs(angle) / (2.0 * std::acos(cosine));
    return static_cast<int>(std::clamp(std::ceil(pieces), 2.0, static_cast<double>(most)));
}

double SignedArea(std::span<const Point> points) noexcept
{
    double area = 0.0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const Point& a = points[i];
        const Point& b = points[(i + 1) % points.size()];
        area += a.x * b.y - b.x * a.y;
    }
    return area;
}

} // namespace

Point AtBearing(Point centre, double radius, double bearing) noexcept
{
    return {centre.x + radius * std::sin(bearing), centre.y - radius * std::cos(bearing)};
}

void Path::AddPolygon(std::span<const Point> points)
{
    if (points.size() < 3)
        return;
    if (SignedArea(points) >= 0.0)
        m_points.insert(m_points.end(), points.begin(), points.end());
    else
        m_points.insert(m_points.end(), points.rbegin(), points.rend());
    m_ends.push_back(m_points.size());
}

void Path::AddCirclePoints(Point centre, double radius, bool clockwise)
{
    const int pieces = std::max(PieceCount(radius, twoPi), 8);
    for (int i = 0; i < pieces; ++i) {
        const double bearing = twoPi * i / pieces;
        m_points.push_back(AtBearing(centre, radius, clockwise ? bearing : -bearing));
    }
    m_ends.push_back(m_points.size());
}

void Path::AddCircle(Point centre, double radius)
{
    AddCirclePoints(centre, radius, true);
}

void Path::AddRing(Point centre, double inner, double outer)
{
    AddCirclePoints(centre, outer, true);
    AddCirclePoints(centre, inner, false);
}

void Path::AddArc(Point centre, double inner, double outer, double from, double to)
{
    const int pieces = PieceCount(outer, to - from);
    std::vector<Point> points;
    for (int i = 0; i <= pieces; ++i)
        points.push_back(AtBearing(centre, outer, from + (to - from) * i / pieces));
    for (int i = pieces; i >= 0; --i)
        points.push_back(AtBearing(centre, inner, from + (to - from) * i / pieces));
    AddPolygon(points);
}

void Path::AddLine(Point from, Point to, double width)
{
    const double dx = to.x - from.x;
    const double dy = to.y - from.y;
    const double length = std::hypot(dx, dy);
    if (!(length > 0.0))
        return;
    const double nx = -dy / length * width / 2.0;
    const double ny = dx / length * width / 2.0;
    const Point corners[] = {{from.x + nx, from.y + ny},
                             {from.x - nx, from.y - ny},
                             {to.x - nx, to.y - ny},
                             {to.x + nx, to.y + ny}};
    AddPolygon(corners);
}

void Path::AddPolyline(std::span<const Point> points, double width)
{
    for (std::size_t i = 0; i < points.size(); ++i) {
        if (i > 0)
            AddLine(points[i - 1], points[i], width);
        AddCircle(points[i], width / 2.0);
    }
}

void Path::Place(double bearing, Point offset) noexcept
{
    const double s = std::sin(bearing);
    const double c = std::cos(bearing);
    for (Point& p : m_points)
        p = {offset.x + p.x * c - p.y * s, offset.y + p.x * s + p.y * c};
}

} // namespace demo
