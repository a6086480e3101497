#include "time/detail/SteadyLine.h"

#include <algorithm>
#include <cmath>

namespace vant::detail
{

namespace
{

// Readings farther out than this many standard deviations do not agree with the others.
constexpr double readingLimit = 3.0;
// Points farther out than this do not lie on the line; the spread of few points is known but roughly.
constexpr double pointLimit = 6.0;
// What no clock is blamed for, seconds of the time base: its own resolution, a few times over.
constexpr double leastOff = 2e-6;
// From the median of the distances from the median to the standard deviation, for a normal distribution.
constexpr double deviationOfMedian = 1.4826;
constexpr std::size_t pointsForSpread = 5;
constexpr int mostOffInRow = 4;

double Median(double* begin, std::size_t count) noexcept
{
    double* const middle = begin + count / 2;
    std::nth_element(begin, middle, begin + count);
    return *middle;
}

} // namespace

void SteadyLine::Add(double y, double x) noexcept
{
    if (!std::isfinite(x) || !std::isfinite(y))
        return;
    if (m_isStarted && x < m_origin.x + m_last.x)
        *this = SteadyLine(m_pointSpan, m_room);
    if (!m_isStarted) {
        m_isStarted = true;
        m_origin = {x, y};
        m_count = 1;
        return;
    }
    const Reading reading{x - m_origin.x, y - m_origin.y};
    if (reading.x == m_last.x || reading.y == m_last.y)
        return;
    m_last = reading;
    const bool isFull = m_count == maxReadings || (m_count > 0 && reading.x - m_readings[0].x >= m_pointSpan);
    if (isFull && m_count >= minReadings)
        MakePoint();
    m_readings[m_count++] = reading;
}

double SteadyLine::At(double x) const noexcept
{
    return IsThere() ? m_origin.y + m_centreY + m_rate * (x - m_origin.x - m_centreX) : 0.0;
}

/** The slope of readings without anything known about them: the median over pairs that are half of the time
 *  apart. */
double SteadyLine::FirstSlope() const noexcept
{
    std::array<double, maxReadings / 2> slopes;
    const std::size_t pairs = m_count / 2;
    for (std::size_t i = 0; i < pairs; ++i) {
        const Reading& from = m_readings[i];
        const Reading& to = m_readings[i + m_count - pairs];
        slopes[i] = (to.y - from.y) / (to.x - from.x);
    }
    return Median(slopes.data(), pairs);
}

/** The centre of the readings that agree. Wrong ones that are all on one side draw the median towards them,
 * so the mean of what is near it is where to look from next, until nothing changes. */
SteadyLine::Point SteadyLine::Centre() const noexcept
{
    constexpr int mostRounds = 20;
    const auto height = [this](const Reading& reading) { return reading.y - m_rate * reading.x; };
    std::array<double, maxReadings> heights;
    std::transform(m_readings.begin(), m_readings.begin() + static_cast<std::ptrdiff_t>(m_count),
                   heights.begin(), height);
    double middle = Median(heights.data(), m_count);
    std::for_each(heights.begin(), heights.begin() + static_cast<std::ptrdiff_t>(m_count),
                  [middle](double& h) { h = std::abs(h - middle); });
    double limit = readingLimit * deviationOfMedian * Median(heights.data(), m_count);

    Point centre{};
    std::size_t kept = 0;
    for (int round = 0; round < mostRounds; ++round) {
        const std::size_t before = kept;
        kept = 0;
        Point sum{};
        double squares = 0.0;
        for (std::size_t i = 0; i < m_count; ++i) {
            const double off = height(m_readings[i]) - middle;
            if (std::abs(off) > limit)
                continue;
            ++kept;
            sum.x += m_readings[i].x;
            sum.y += m_readings[i].y;
            squares += off * off;
        }
        if (kept == 0)
            break;
        const double n = static_cast<double>(kept);
        centre = {sum.x / n, sum.y / n, 0};
        const double mean = centre.y - m_rate * centre.x;
        const double variance = squares / n - (mean - middle) * (mean - middle);
        middle = mean;
        if (kept == before)
            break;
        limit = readingLimit * std::sqrt(std::max(variance, 0.0));
    }
    return centre;
}

void SteadyLine::MakePoint() noexcept
{
    if (m_points == 0)
        m_rate = FirstSlope();
    const Point point = Centre();
    const bool isOff = m_spread > 0.0 && std::abs(Off(point)) > Limit(point);
    if (!isOff) {
        m_offInRow = 0;
        Append(point, m_run);
    } else if (m_offInRow > 0 && std::abs(Off(point) - Off(m_off)) <= Limit(point)) {
        m_offInRow = 0;
        ++m_run;
        Append(m_off, m_run);
        Append(point, m_run);
    } else if (++m_offInRow < mostOffInRow) {
        m_off = point;
    } else {
        m_offInRow = 0;
        m_points = 0;
        m_spread = 0.0;
        m_rate = FirstSlope();
        Append(point, m_run);
    }
    m_count = 0;
}

/** How far off the line a point may lie by chance: the line is known the less the farther it is followed. */
double SteadyLine::Limit(const Point& point) const noexcept
{
    const double ahead = point.x - m_centreX;
    const double farther = 1.0 + ahead * ahead / m_spanSquares;
    return std::max(pointLimit * m_spread * std::sqrt(farther), leastOff * std::abs(m_rate));
}

void SteadyLine::Append(const Point& point, unsigned run) noexcept
{
    if (m_points == m_room)
        std::copy(m_line.begin() + 1, m_line.begin() + static_cast<std::ptrdiff_t>(m_points), m_line.begin());
    else
        ++m_points;
    m_line[m_points - 1] = {point.x, point.y, run};
    Fit();
}

/** One slope through all runs, and the place of the last one. */
void SteadyLine::Fit() noexcept
{
    double xx = 0.0;
    double xy = 0.0;
    double yy = 0.0;
    int runs = 0;
    for (std::size_t begin = 0, end = 0; begin < m_points; begin = end, ++runs) {
        Reading centre{};
        for (end = begin; end < m_points && m_line[end].run == m_line[begin].run; ++end) {
            centre.x += m_line[end].x;
            centre.y += m_line[end].y;
        }
        centre.x /= static_cast<double>(end - begin);
        centre.y /= static_cast<double>(end - begin);
        for (std::size_t i = begin; i < end; ++i) {
            // Off a line that is near, so that the squares keep their digits.
            const double x = m_line[i].x - centre.x;
            const double y = m_line[i].y - centre.y - m_rate * x;
            xx += x * x;
            xy += x * y;
            yy += y * y;
        }
        m_centreX = centre.x;
        m_centreY = centre.y;
    }
    m_spanSquares = xx;
    if (xx <= 0.0)
        return;
    m_rate += xy / xx;
    const int freedom = static_cast<int>(m_points) - runs - 1;
    if (m_points >= pointsForSpread && freedom > 0)
        m_spread = std::max(std::sqrt(std::max(yy - xy * xy / xx, 0.0) / freedom), leastOff / pointLimit);
}

} // namespace vant::detail
