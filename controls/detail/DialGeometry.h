#pragma once

#include "core/CV3.h"

namespace vant::detail
{

/** A dial in the top left corner of its control: the unit circle of the directions is its rim, and the middle
 *  is straight up. Positions are units from the top left corner, y downwards. */
class DialGeometry
{
public:
    struct Point {
        int x, y;
        bool operator==(const Point&) const noexcept = default;
    };

    /** The largest dial that a control of this size has room for. */
    DialGeometry(int width, int height) noexcept
        : m_diameter(width < height ? width : height)
        , m_radius(m_diameter / 2)
    {
    }

    int Diameter() const noexcept { return m_diameter; }
    /** Also the place of the middle, in both directions. */
    int Radius() const noexcept { return m_radius; }

    /** Where the handle of a direction is drawn. */
    Point HandleOf(const CV3& dir) const noexcept;

    /** Whether a point is less than 5 units, across and down, from the handle of a direction. */
    bool IsOnHandle(const CV3& dir, Point p) const noexcept;

    /** The direction whose handle is at a point: on the upper half of the unit sphere, or level for a point
     * on the rim or beyond. Straight up when the dial has no size. */
    CV3 DirectionAt(Point p) const noexcept;

private:
    int m_diameter;
    int m_radius;
};

/** The unit vector of a bearing and a slope, radians; a slope below the horizon counts as one above.
 *  Straight up for angles that are not finite. */
CV3 DialDirection(double brg, double slope) noexcept;

} // namespace vant::detail
