#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <vector>

namespace vant::detail
{

/** The smallest and largest of some values; empty when there are none. */
struct MinMax {
    double min = std::numeric_limits<double>::infinity();
    double max = -std::numeric_limits<double>::infinity();

    bool IsEmpty() const noexcept { return !(min <= max); }
    /** NaN, a missing value, adds nothing. */
    void Add(double v) noexcept
    {
        if (v < min)
            min = v;
        if (v > max)
            max = v;
    }
    void Add(const MinMax& other) noexcept
    {
        // Not value by value: the ends of an empty one are no values.
        if (other.min < min)
            min = other.min;
        if (other.max > max)
            max = other.max;
    }
    bool operator==(const MinMax&) const noexcept = default;
};

/** The latest samples of one quantity in a ring, and above them the extremes of every 16, 256, 4096, ...
 * consecutive ones, kept as the samples come. Adding takes the same short time however many there are; the
 * extremes of any stretch are found in a few steps per level.
 *
 *  Samples have running numbers from 0 on, which stay theirs until the ring overwrites them. Not for several
 * threads at a time. */
class SamplePyramid
{
public:
    using Index = std::uint64_t;

    /** Allocates at once, though the system provides the memory as it is used. @param capacity  samples that
     * are kept; at least 1 */
    explicit SamplePyramid(std::size_t capacity);

    /** Appends a sample, over the oldest when the ring is full. @param t  seconds, not before the newest
     * sample's  @param v  NaN for a missing value */
    void Add(double t, double v) noexcept;
    void Clear() noexcept { m_end = m_first = m_next = 0; }

    std::size_t Count() const noexcept { return static_cast<std::size_t>(m_end - m_first); }
    bool IsEmpty() const noexcept { return m_end == m_first; }
    /** Number of the oldest sample. */
    Index First() const noexcept { return m_first; }
    /** One more than the number of the newest. */
    Index End() const noexcept { return m_end; }
    double Time(Index i) const noexcept { return m_times[i % m_capacity]; }
    double Value(Index i) const noexcept { return m_values[i % m_capacity]; }

    /** The first sample that is not before `t`; End() if there is none. */
    Index From(double t) const noexcept;
    /** The first sample that is after `t`; End() if there is none. */
    Index After(double t) const noexcept;
    /** The sample whose time is the closest; End() if there are no samples. */
    Index Nearest(double t) const noexcept;

    /** The extremes of the samples `from` to `to` - 1; both are brought into the ring first. */
    MinMax Range(Index from, Index to) const noexcept;

    /** The extremes of columns of equal duration side by side, in a time that goes with their number and not
     * with the samples'. At 4 samples per column and more a sample may count for the next column by up to a
     * quarter of a column; with fewer every sample counts where it is.
     *  @param start  time at which the first column begins  @param width  duration of a column, above 0
     *  @param columns  replaced, one each; empty where no value is */
    void Columns(double start, double width, std::vector<MinMax>& columns) const;

private:
    static constexpr int fanBits = 4; // 16 to one

    struct Node {
        double start = 0; // time of the first sample
        MinMax values;
    };
    struct Level {
        std::unique_ptr<Node[]> nodes;
        Index size = 0;
        Index current = 0; ///< place of the block being filled
        const Node& At(Index block) const noexcept { return nodes[block % size]; }
    };
    class Sweep;

    template <class Before>
    Index Search(Before before) const noexcept;

    std::size_t m_capacity;
    Index m_first = 0;
    Index m_end = 0;
    Index m_next = 0; // place of the next sample in the ring
    std::unique_ptr<double[]> m_times;
    std::unique_ptr<double[]> m_values;
    std::vector<Level> m_levels; // [0] of 16 samples each
};

} // namespace vant::detail
