#pragma once

#include "time/CTmEnt.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace vant::detail
{

/** The last 60 samples of a source and the line through them: the mean of the middle third of the slopes from
 *  one sample to the next, and of the intercepts that belong to them.
 *
 *  Everything has its place inside the object: the thread that adds samples takes no memory. */
class SlopeFit
{
public:
    static constexpr std::size_t capacity = 60;

    struct Line {
        double m;
        double c;
    };

    /** Adds a sample, in the place of the oldest one when all are taken.
     *
     *  It gets a slope unless it is the first one, x or y is exactly that of the sample before, or the slope
     * is not a number. Without one, a sample that took the oldest one's place deliberately keeps that one's
     * slope and intercept, and with them its place among the slopes: a source that stands still keeps the fit
     * that it had. */
    void Add(double y, double x) noexcept;

    /** The line through the samples. One sample: its own (m = 1, c = 0). Two: the means of theirs, so that
     * the first one's m = 1 and c = 0 deliberately count. More: the middle third by slope; m = c = 0 when
     * none of the samples there has a slope.
     *  @return whether there is one: false without samples, the line then being left alone */
    bool GetLine(Line& line) const noexcept;

private:
    using Index = std::uint8_t;

    void Sort(Index added) noexcept;

    std::array<CTmEnt, capacity> m_samples;
    std::array<Index, capacity> m_bySlope{}; // samples that have a slope, ascending
    std::size_t m_count = 0;
    std::size_t m_sloped = 0;
    Index m_next = 0; // the oldest sample once there are `capacity`
    Index m_newest = 0;
};

} // namespace vant::detail
