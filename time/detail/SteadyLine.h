#pragma once

#include <algorithm>
#include <array>
#include <cstddef>

namespace vant::detail
{

/** A straight line through hours of readings of a source, of which each may be off by milliseconds and many
 *  may be plain wrong.
 *
 *  Readings are gathered for a while and then become one point, the centre of those that agree; the line goes
 * through the last 240 points. Averaging makes a point better than a reading by the root of their number, and
 * the length of the record makes the slope good: its error falls with the length to the power of 3/2. Where
 * two points in a row lie off the line by the same amount the source was set anew: the slope stays, from the
 * points on both sides, and only the later ones say where the line lies.
 *
 *  Everything has its place inside the object, and adding a reading takes microseconds at most. */
class SteadyLine
{
public:
    static constexpr std::size_t maxPoints = 240;
    static constexpr std::size_t maxReadings = 600; ///< of one point; it is made early when there are more
    static constexpr std::size_t minReadings = 5;   ///< of one point; it waits for them

    /** @param pointSpan  time for which readings are gathered into a point, in units of x
     *  @param points  that the line goes through, the last ones; 10 to maxPoints */
    SteadyLine(double pointSpan, std::size_t points) noexcept
        : m_pointSpan(pointSpan)
        , m_room(std::clamp(points, std::size_t{10}, maxPoints))
    {
    }

    /** Adds a reading y at x. Ignored are readings that are not finite, and such as repeat the one before; an
     * x that goes back begins anew. */
    void Add(double y, double x) noexcept;

    /** Whether there is a line: from the first point on. */
    bool IsThere() const noexcept { return m_points > 0; }
    /** The line at x; 0 without one. */
    double At(double x) const noexcept;

private:
    /** Readings and points are kept as differences from the first one, which leaves more of their digits. */
    struct Reading {
        double x;
        double y;
    };
    struct Point {
        double x;
        double y;
        unsigned run; // points of one run lie on one line
    };

    void MakePoint() noexcept;
    Point Centre() const noexcept;
    double FirstSlope() const noexcept;
    double Off(const Point& point) const noexcept
    {
        return point.y - m_centreY - m_rate * (point.x - m_centreX);
    }
    double Limit(const Point& point) const noexcept;
    void Append(const Point& point, unsigned run) noexcept;
    void Fit() noexcept;

    double m_pointSpan;
    std::size_t m_room;
    Reading m_origin{};
    Reading m_last{};
    std::array<Reading, maxReadings> m_readings{};
    std::size_t m_count = 0;
    bool m_isStarted = false;

    std::array<Point, maxPoints> m_line{}; // oldest first
    std::size_t m_points = 0;
    unsigned m_run = 0;
    Point m_off{}; // the last of the points that lie off the line
    int m_offInRow = 0;

    double m_rate = 1.0;
    double m_centreX = 0.0; // the line goes through this point
    double m_centreY = 0.0;
    double m_spanSquares = 0.0; // sum of the squared distances from the runs' centres
    double m_spread = 0.0;      // standard deviation of the points from the line; 0: not known yet
};

} // namespace vant::detail
