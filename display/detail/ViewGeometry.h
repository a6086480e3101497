#pragma once

#include "display/detail/Point3.h"

#include <array>

namespace vant::detail
{

/** What a view looks at, and from where: the numbers of CDspCam, all of them valid. */
struct ViewCamera {
    bool isOrbit = false;
    Point3 org;
    double zoom = 1;  ///< metres from the lower to the upper edge, at the origin
    double align = 0; ///< bearing that is up, radians
    double elev = 0;  ///< of an orbiting eye above the horizon, radians
    double fov = 1;   ///< angle from the lower to the upper edge, radians
};

/** Unit vectors: to the right edge, to the upper edge, towards the eye. */
struct ViewAxes {
    Point3 right;
    Point3 up;
    Point3 front;
};
ViewAxes AxesOf(const ViewCamera& camera) noexcept;

/** From an orbiting eye to the origin. */
double EyeDistance(const ViewCamera& camera) noexcept;

/** A box in display coordinates. */
struct ViewBox {
    Point3 lower;
    Point3 upper;
};

/** Columns of four, as OpenGL takes them. */
using ViewMatrix = std::array<double, 16>;

/** Where a camera shows what: from display coordinates to the pixels of a view and back. Positions are pixels
 * from the view's upper left corner; depths metres from the eye along the direction in which it looks, those
 * of an orthographic view from the plane through the origin. Everything is counted from the origin, so that
 * nothing gets lost far away from zero. */
class ViewGeometry
{
public:
    /** @param width,height  of the view, pixels; below 1 there is none */
    ViewGeometry(const ViewCamera& camera, double width, double height) noexcept;

    bool IsEmpty() const noexcept { return m_width < 1 || m_height < 1; }
    const ViewCamera& Camera() const noexcept { return m_camera; }
    const ViewAxes& Axes() const noexcept { return m_axes; }
    double Width() const noexcept { return m_width; }
    double Height() const noexcept { return m_height; }
    double PxSize() const noexcept { return IsEmpty() ? 0 : m_camera.zoom / m_height; }

    /** The nearest and the farthest depth that is drawn. */
    double Near() const noexcept { return m_near; }
    double Far() const noexcept { return m_far; }
    /** Fits them to what there is to see; without it they suit the depths of a sea under a chart, and some
     * twenty distances of an orbiting eye. */
    void FitDepth(const ViewBox& box) noexcept;

    /** In coordinates of the eye: right, up and towards it; an orthographic view has its eye at the origin.
     */
    Point3 ToEye(const Point3& pt) const noexcept;
    /** @return false for a point that is not in front of the eye, or for an empty view */
    bool ToPx(const Point3& pt, double& x, double& y) const noexcept;

    /** The point at a position and depth. */
    Point3 AtDepth(double x, double y, double depth) const noexcept;
    /** Where the line of sight meets the horizontal plane at a height. @return false if it does not, or
     * farther away than anything that is told apart there */
    bool OnLevel(double x, double y, double z, Point3& pt) const noexcept;
    /** The point that a drag takes hold of: of the horizontal plane through the origin, or where that is seen
     * too much from the side, of the plane across the view through the origin. */
    Point3 Grab(double x, double y, bool& isLevel) const noexcept;
    /** The point that is at a position now, in the plane that a drag took hold of. */
    bool OnGrabbed(double x, double y, bool isLevel, Point3& pt) const noexcept;

    /** The depth of what OpenGL has at a depth 0 .. 1 of its window. */
    double DepthOfWindow(double z) const noexcept;
    /** From the eye, or from where an orthographic view begins, to a point at this position and depth. */
    double DistanceOf(double x, double y, double depth) const noexcept;

    ViewMatrix Projection() const noexcept;
    /** Shows nothing but a square around a position, in full size. */
    ViewMatrix PickProjection(double x, double y, double side) const noexcept;
    /** For coordinates that count from a point. */
    ViewMatrix ModelView(const Point3& from) const noexcept;

private:
    ViewMatrix Frustum(double left, double right, double bottom, double top) const noexcept;
    /** Half of the view's height at a depth of 1, or at all depths. */
    double HalfHeight() const noexcept;

    ViewCamera m_camera;
    ViewAxes m_axes;
    double m_width;
    double m_height;
    double m_distance; // of the origin; 0 of an orthographic view
    double m_near;
    double m_far;
};

} // namespace vant::detail
