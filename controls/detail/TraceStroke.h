#pragma once

#include "controls/detail/SamplePyramid.h"

#include <vector>

namespace vant::detail
{

/** What a line covers of the columns of a picture, from top to bottom, in pixels. Every column is cut into a
 * few slices, so that the edges of the line come out smooth. */
class TraceStroke
{
public:
    static constexpr int slices = 4; ///< per column

    /** From the upper to the lower edge; nothing when `low` is below `high`. */
    struct Cover {
        float high = 1e9F; ///< the smaller y
        float low = -1e9F; ///< the larger y
        bool IsEmpty() const noexcept { return !(high <= low); }
        void Add(float top, float bottom) noexcept
        {
            if (top < high)
                high = top;
            if (bottom > low)
                low = bottom;
        }
    };

    /** Where a trace stands in the picture: x grows with time, y as `y0` + value * `yPer`. */
    struct Map {
        double start = 0; ///< time at the left edge of the first column
        double width = 1; ///< seconds per column, above 0
        double y0 = 0;    ///< y of the value 0
        double yPer = 1;  ///< pixels per unit of the value, downwards
    };

    /** Follows the samples of a trace: from one to the next where there are few of them, and from the
     * smallest to the largest of each column where there are many. Missing values interrupt it.
     *  @param columns  of the picture  @param thickness  of the line, pixels */
    void Make(const SamplePyramid& samples, const Map& map, int columns, float thickness);

    int Columns() const noexcept { return static_cast<int>(m_covers.size()) / slices; }
    /** The slices of a column. */
    const Cover* At(int column) const noexcept
    {
        return &m_covers[static_cast<std::size_t>(column) * slices];
    }

private:
    struct Point {
        double x = 0;
        double y = 0;
    };

    void FromExtremes(const SamplePyramid& samples, const Map& map, float thickness);
    void FromSamples(const SamplePyramid& samples, const Map& map, SamplePyramid::Index from,
                     SamplePyramid::Index to, float thickness);
    void AddDot(Point at, double radius);
    void AddLine(Point from, Point to, double radius);

    std::vector<Cover> m_covers;
    std::vector<MinMax> m_extremes; // kept for its memory
};

} // namespace vant::detail
