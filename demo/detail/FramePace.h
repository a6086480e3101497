#pragma once

#include <algorithm>

namespace demo
{

/** Keeps a film as long as what it shows: tells how often the picture of a moment goes into it. A machine
 *  that is too slow for every frame repeats some; one that is too fast leaves pictures out. */
class FramePace
{
public:
    /** @param rate  frames in a second of the film  @param length  of the film, seconds */
    constexpr FramePace(int rate, double length) noexcept
        : m_rate(rate)
        , m_all(static_cast<int>(length * rate + 0.5))
    {
    }

    /** How many frames are due at a time, seconds from the start, and not yet in the film. */
    constexpr int Due(double t) const noexcept
    {
        const double begun = t >= 0.0 ? std::min(t * m_rate + 1.0, static_cast<double>(m_all)) : 0.0;
        return std::max(static_cast<int>(begun) - m_written, 0);
    }

    /** So many went into the film. */
    constexpr void Note(int frames) noexcept { m_written += frames; }

    constexpr int Written() const noexcept { return m_written; }
    /** Of the whole film. */
    constexpr int All() const noexcept { return m_all; }

private:
    int m_rate;
    int m_all;
    int m_written = 0;
};

} // namespace demo
