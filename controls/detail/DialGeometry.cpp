#include "controls/detail/DialGeometry.h"

#include "core/ML.h"

#include <cmath>

namespace vant::detail
{

namespace
{

constexpr double grabReach = 5.0; // units around the handle's middle, a little more than is drawn

} // namespace

DialGeometry::Point DialGeometry::HandleOf(const CV3& dir) const noexcept
{
    const double r = m_radius;
    return {static_cast<int>(ML::Rnd(r + dir.x * r)), static_cast<int>(ML::Rnd(r - dir.y * r))};
}

bool DialGeometry::IsOnHandle(const CV3& dir, Point p) const noexcept
{
    const double r = m_radius;
    return std::fabs(dir.x * r + r - p.x) < grabReach && std::fabs(r - dir.y * r - p.y) < grabReach;
}

CV3 DialGeometry::DirectionAt(Point p) const noexcept
{
    if (m_radius == 0)
        return {0, 0, 1};
    const double r = m_radius;
    const double x = (p.x - r) / r;
    const double y = (r - p.y) / r;
    const double length = std::sqrt(x * x + y * y);
    if (length >= 1)
        return {x / length, y / length, 0};
    return {x, y, std::sqrt(1 - x * x - y * y)};
}

CV3 DialDirection(double brg, double slope) noexcept
{
    const double level = std::cos(std::fabs(slope));
    const double angle = ML::HeadAngleR(brg);
    const CV3 dir(std::cos(angle) * level, std::sin(angle) * level, std::sin(std::fabs(slope)));
    return dir.Finite() ? dir : CV3(0, 0, 1);
}

} // namespace vant::detail
