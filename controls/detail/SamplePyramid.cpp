#include "controls/detail/SamplePyramid.h"

#include <algorithm>
#include <cmath>

namespace vant::detail
{

SamplePyramid::SamplePyramid(std::size_t capacity)
    : m_capacity(std::max<std::size_t>(capacity, 1))
    , m_times(std::make_unique_for_overwrite<double[]>(m_capacity))
    , m_values(std::make_unique_for_overwrite<double[]>(m_capacity))
{
    // The ring need not begin at a block's beginning: one block more than fit, and one being begun.
    constexpr Index spare = 2;
    for (Index blocks = m_capacity >> fanBits; blocks > 0; blocks >>= fanBits)
        m_levels.push_back({std::make_unique_for_overwrite<Node[]>(blocks + spare), blocks + spare, 0});
}

void SamplePyramid::Add(double t, double v) noexcept
{
    const Index i = m_end;
    m_times[m_next] = t;
    m_values[m_next] = v;
    // Dividing for every sample and level would take most of the time.
    if (++m_next == m_capacity)
        m_next = 0;
    int bits = fanBits;
    for (Level& level : m_levels) {
        const bool begins = (i & ((Index{1} << bits) - 1)) == 0;
        if (begins) {
            level.current = (i >> bits) % level.size;
            level.nodes[level.current] = {t, {}};
        }
        level.nodes[level.current].values.Add(v);
        bits += fanBits;
    }
    ++m_end;
    if (m_end - m_first > m_capacity)
        ++m_first;
}

template <class Before>
SamplePyramid::Index SamplePyramid::Search(Before before) const noexcept
{
    Index low = m_first;
    Index count = m_end - m_first;
    while (count > 0) {
        const Index half = count / 2;
        if (before(Time(low + half))) {
            low += half + 1;
            count -= half + 1;
        } else {
            count = half;
        }
    }
    return low;
}

SamplePyramid::Index SamplePyramid::From(double t) const noexcept
{
    return Search([t](double sample) { return sample < t; });
}

SamplePyramid::Index SamplePyramid::After(double t) const noexcept
{
    return Search([t](double sample) { return sample <= t; });
}

SamplePyramid::Index SamplePyramid::Nearest(double t) const noexcept
{
    const Index after = From(t);
    if (after == m_first || IsEmpty())
        return after;
    if (after == m_end)
        return m_end - 1;
    return t - Time(after - 1) < Time(after) - t ? after - 1 : after;
}

MinMax SamplePyramid::Range(Index from, Index to) const noexcept
{
    MinMax result;
    from = std::max(from, m_first);
    to = std::min(to, m_end);
    while (from < to) {
        // The largest block that begins here and is wanted as a whole.
        std::size_t level = 0;
        int bits = 0;
        while (level < m_levels.size()) {
            const int larger = bits + fanBits;
            const Index size = Index{1} << larger;
            if ((from & (size - 1)) != 0 || to - from < size)
                break;
            bits = larger;
            ++level;
        }
        if (level == 0)
            result.Add(Value(from));
        else
            result.Add(m_levels[level - 1].At(from >> bits).values);
        from += Index{1} << bits;
    }
    return result;
}

/** Goes over the samples of a stretch of time in blocks as large as the columns allow. */
class SamplePyramid::Sweep
{
public:
    Sweep(const SamplePyramid& samples, double start, double width, std::vector<MinMax>& columns)
        : m_samples(samples)
        , m_start(start)
        , m_width(width)
        , m_columns(columns)
    {
    }

    void Run(Index from, Index to)
    {
        // Blocks that begin before the stretch or end behind it are taken apart.
        while (from < to) {
            int level = 0;
            while (level < m_deepest && (from & (Size(level + 1) - 1)) == 0 && to - from >= Size(level + 1))
                ++level;
            Visit(level, from, to);
            from += Size(level);
        }
    }

    /** Decides how large blocks may be. */
    void Fit(Index count)
    {
        constexpr Index blocksPerColumn = 4;
        const Index perColumn = count / std::max<std::size_t>(m_columns.size(), 1);
        const auto levels = static_cast<int>(m_samples.m_levels.size());
        while (m_deepest < levels && Size(m_deepest + 1) * blocksPerColumn <= perColumn)
            ++m_deepest;
    }

private:
    static Index Size(int level) { return Index{1} << (level * fanBits); }

    double Start(int level, Index from) const
    {
        return level == 0 ? m_samples.Time(from)
                          : m_samples.m_levels[static_cast<std::size_t>(level - 1)]
                                .At(from >> (level * fanBits))
                                .start;
    }

    void Visit(int level, Index from, Index to)
    {
        const double begin = Start(level, from);
        if (level == 0)
            return Put(begin, m_samples.Value(from));
        // Samples that came in bursts would otherwise all be shown where the first of them is.
        const Index next = from + Size(level);
        const double end = next < to ? Start(level, next) : m_samples.Time(to - 1);
        if (end - begin <= m_width)
            return Put(
                begin,
                m_samples.m_levels[static_cast<std::size_t>(level - 1)].At(from >> (level * fanBits)).values);
        for (Index part = from; part < next; part += Size(level - 1))
            Visit(level - 1, part, to);
    }

    template <class Values>
    void Put(double t, const Values& values)
    {
        const double place = (t - m_start) / m_width;
        if (!(place > -1) || !(place < static_cast<double>(m_columns.size())))
            return;
        m_columns[static_cast<std::size_t>(std::max(place, 0.0))].Add(values);
    }

    const SamplePyramid& m_samples;
    const double m_start;
    const double m_width;
    std::vector<MinMax>& m_columns;
    int m_deepest = 0;
};

void SamplePyramid::Columns(double start, double width, std::vector<MinMax>& columns) const
{
    std::fill(columns.begin(), columns.end(), MinMax());
    if (!(width > 0))
        return;
    const Index from = From(start);
    const Index to = From(start + width * static_cast<double>(columns.size()));
    if (from >= to)
        return;
    Sweep sweep(*this, start, width, columns);
    sweep.Fit(to - from);
    sweep.Run(from, to);
}

} // namespace vant::detail
