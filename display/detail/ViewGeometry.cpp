#include "display/detail/ViewGeometry.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <numbers>

namespace vant::detail
{

namespace
{

/** Deeper than any sea, higher than any mountain. */
constexpr double anyHeight = 20'000;
/** An orbiting eye tells things apart from a thousandth of its distance on. */
constexpr double nearShare = 1e-3;
constexpr double farShare = 20;

} // namespace

ViewAxes AxesOf(const ViewCamera& camera) noexcept
{
    const double sine = std::sin(camera.align);
    const double cosine = std::cos(camera.align);
    const Point3 right{cosine, -sine, 0};
    const Point3 ahead{sine, cosine, 0};
    if (!camera.isOrbit)
        return {right, ahead, {0, 0, 1}};
    const double rise = std::sin(camera.elev);
    const double reach = std::cos(camera.elev);
    return {right, ahead * rise + Point3{0, 0, reach}, ahead * -reach + Point3{0, 0, rise}};
}

double EyeDistance(const ViewCamera& camera) noexcept
{
    return camera.zoom / 2 / std::tan(camera.fov / 2);
}

ViewGeometry::ViewGeometry(const ViewCamera& camera, double width, double height) noexcept
    : m_camera(camera)
    , m_axes(AxesOf(camera))
    , m_width(width)
    , m_height(height)
    , m_distance(camera.isOrbit ? EyeDistance(camera) : 0)
    , m_near(camera.isOrbit ? m_distance * nearShare : -std::max(anyHeight, camera.zoom))
    , m_far(camera.isOrbit ? std::max(m_distance * farShare, m_distance + anyHeight) : -m_near)
{
}

void ViewGeometry::FitDepth(const ViewBox& box) noexcept
{
    double nearest = m_distance;
    double farthest = m_distance;
    for (const double x : {box.lower.x, box.upper.x}) {
        for (const double y : {box.lower.y, box.upper.y}) {
            for (const double z : {box.lower.z, box.upper.z}) {
                const double depth = -ToEye({x, y, z}).z;
                nearest = std::min(nearest, depth);
                farthest = std::max(farthest, depth);
            }
        }
    }
    // What moves a little beyond what it said is still seen.
    const double margin = std::max(m_camera.zoom, (farthest - nearest) * 0.1);
    m_far = farthest + margin;
    m_near = nearest - margin;
    if (m_camera.isOrbit)
        m_near = std::max(m_near, m_distance * nearShare);
}

Point3 ViewGeometry::ToEye(const Point3& pt) const noexcept
{
    const Point3 offset = pt - m_camera.org;
    return {Dot(m_axes.right, offset), Dot(m_axes.up, offset), Dot(m_axes.front, offset) - m_distance};
}

double ViewGeometry::HalfHeight() const noexcept
{
    return m_camera.isOrbit ? std::tan(m_camera.fov / 2) : m_camera.zoom / 2;
}

bool ViewGeometry::ToPx(const Point3& pt, double& x, double& y) const noexcept
{
    const Point3 eye = ToEye(pt);
    if (IsEmpty() || (m_camera.isOrbit && !(-eye.z >= m_distance * nearShare)))
        return false;
    const double perPx = HalfHeight() * 2 / m_height * (m_camera.isOrbit ? -eye.z : 1);
    x = m_width / 2 + eye.x / perPx;
    y = m_height / 2 - eye.y / perPx;
    return true;
}

Point3 ViewGeometry::AtDepth(double x, double y, double depth) const noexcept
{
    const double perPx = HalfHeight() * 2 / m_height * (m_camera.isOrbit ? depth : 1);
    return m_camera.org + m_axes.right * ((x - m_width / 2) * perPx) +
           m_axes.up * ((m_height / 2 - y) * perPx) + m_axes.front * (m_distance - depth);
}

bool ViewGeometry::OnLevel(double x, double y, double z, Point3& pt) const noexcept
{
    if (IsEmpty())
        return false;
    // Two points of the line of sight: the depth of the level follows from their heights.
    const double depths[] = {m_distance, m_distance + m_camera.zoom};
    const Point3 first = AtDepth(x, y, depths[0]);
    const Point3 second = AtDepth(x, y, depths[1]);
    const double fall = (first.z - second.z) / (depths[1] - depths[0]);
    const double depth = depths[0] + (first.z - z) / fall;
    if (m_camera.isOrbit && !(depth > 0 && depth < m_distance / nearShare))
        return false;
    if (!std::isfinite(depth))
        return false;
    pt = AtDepth(x, y, depth);
    pt.z = z;
    return true;
}

Point3 ViewGeometry::Grab(double x, double y, bool& isLevel) const noexcept
{
    // Seen flatter than this, a pixel is so much of the level that a drag would throw the view away.
    constexpr double flat = 8 * std::numbers::pi / 180;
    constexpr double usualDepths = 4;
    Point3 pt;
    isLevel = (!m_camera.isOrbit || std::abs(m_camera.elev) > flat) && OnLevel(x, y, m_camera.org.z, pt) &&
              -ToEye(pt).z <= usualDepths * std::max(m_distance, m_camera.zoom);
    return isLevel ? pt : AtDepth(x, y, m_distance);
}

bool ViewGeometry::OnGrabbed(double x, double y, bool isLevel, Point3& pt) const noexcept
{
    if (isLevel)
        return OnLevel(x, y, m_camera.org.z, pt);
    pt = AtDepth(x, y, m_distance);
    return !IsEmpty();
}

double ViewGeometry::DepthOfWindow(double z) const noexcept
{
    if (!m_camera.isOrbit)
        return m_near + z * (m_far - m_near);
    return m_near * m_far / (m_far - z * (m_far - m_near));
}

double ViewGeometry::DistanceOf(double x, double y, double depth) const noexcept
{
    if (!m_camera.isOrbit)
        return depth - m_near;
    const Point3 eye = ToEye(AtDepth(x, y, depth));
    return std::sqrt(Dot(eye, eye));
}

ViewMatrix ViewGeometry::Frustum(double left, double right, double bottom, double top) const noexcept
{
    const double width = right - left;
    const double height = top - bottom;
    const double depth = m_far - m_near;
    if (!m_camera.isOrbit)
        return {2 / width,
                0,
                0,
                0,
                0,
                2 / height,
                0,
                0,
                0,
                0,
                -2 / depth,
                0,
                -(right + left) / width,
                -(top + bottom) / height,
                -(m_far + m_near) / depth,
                1};
    // The edges are at a depth of 1.
    return {2 / width,
            0,
            0,
            0,
            0,
            2 / height,
            0,
            0,
            (right + left) / width,
            (top + bottom) / height,
            -(m_far + m_near) / depth,
            -1,
            0,
            0,
            -2 * m_far * m_near / depth,
            0};
}

ViewMatrix ViewGeometry::Projection() const noexcept
{
    const double half = HalfHeight();
    const double halfWidth = half * m_width / m_height;
    return Frustum(-halfWidth, halfWidth, -half, half);
}

ViewMatrix ViewGeometry::PickProjection(double x, double y, double side) const noexcept
{
    const double perPx = HalfHeight() * 2 / m_height;
    const double right = (x - m_width / 2) * perPx;
    const double up = (m_height / 2 - y) * perPx;
    const double half = side / 2 * perPx;
    return Frustum(right - half, right + half, up - half, up + half);
}

ViewMatrix ViewGeometry::ModelView(const Point3& from) const noexcept
{
    const Point3 at = ToEye(from);
    const auto& [right, up, front] = m_axes;
    return {right.x, up.x, front.x, 0, right.y, up.y, front.y, 0,
            right.z, up.z, front.z, 0, at.x,    at.y, at.z,    1};
}

} // namespace vant::detail
