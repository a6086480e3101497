#pragma once

#include <cstddef>
#include <vector>

namespace vant::detail
{

/** A place as seen from above. */
struct PlanPoint {
    double x;
    double y;
};

/** The place of a polyline that is nearest to a point. */
struct NearestPlace {
    std::size_t segment; ///< number of the node at which its segment begins
    double share;        ///< of the segment that lies before it, 0..1
};

/** Finds the nearest place of a polyline.
 *
 *  Boxes around runs of segments, boxes around runs of boxes, and so on: what follows one another on a route
 * lies near one another, and so the boxes are small. A search goes into the nearest box first and leaves out
 * what is farther away than what it has found. */
class NearestIndex
{
public:
    /** Segments one end of which is not a finite number are passed over. */
    explicit NearestIndex(std::vector<PlanPoint> points);

    /** The nearest place, the first along the line if there are several. @return false for a point that is
     * not finite, and for a line of less than two finite points in a row */
    bool Find(const PlanPoint& to, NearestPlace& place) const;

private:
    struct Box {
        double left, lower, right, upper;
    };
    struct Search;

    std::size_t Segments() const noexcept { return m_points.empty() ? 0 : m_points.size() - 1; }
    Box BoxOfRun(std::size_t run) const;
    void SearchRun(std::size_t run, Search& search) const;
    void SearchBox(std::size_t level, std::size_t box, Search& search) const;
    static double Distance2(const Box& box, const PlanPoint& to) noexcept;

    std::vector<PlanPoint> m_points;
    std::vector<std::vector<Box>> m_levels; // the first one around runs of segments, the last one of one box
};

} // namespace vant::detail
