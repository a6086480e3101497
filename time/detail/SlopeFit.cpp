#include "time/detail/SlopeFit.h"

#include <algorithm>
#include <cmath>

namespace vant::detail
{

void SlopeFit::Add(double y, double x) noexcept
{
    const bool isFirst = m_count == 0;
    const CTmEnt previous = m_samples[m_newest];
    if (m_count < capacity) {
        m_newest = static_cast<Index>(m_count++);
    } else {
        m_newest = m_next;
        m_next = static_cast<Index>((m_next + 1) % capacity);
    }
    CTmEnt& sample = m_samples[m_newest];
    sample.x = x;
    sample.y = y;
    if (isFirst || x == previous.x || y == previous.y)
        return;
    const double slope = (y - previous.y) / (x - previous.x);
    if (std::isnan(slope)) // has no place among the others
        return;
    sample.m = slope;
    sample.c = y - sample.m * x;
    Sort(m_newest);
}

/** Brings a sample whose slope is new to its place: before the first one that is not smaller. */
void SlopeFit::Sort(Index added) noexcept
{
    const auto begin = m_bySlope.begin();
    auto end = begin + static_cast<std::ptrdiff_t>(m_sloped);
    const auto old = std::find(begin, end, added);
    if (old == end)
        ++m_sloped;
    else
        end = std::copy(old + 1, end, old);
    const double slope = m_samples[added].m;
    const auto place = std::find_if(begin, end, [&](Index i) { return m_samples[i].m >= slope; });
    std::copy_backward(place, end, end + 1);
    *place = added;
}

bool SlopeFit::GetLine(Line& line) const noexcept
{
    switch (m_count) {
    case 0:
        return false;
    case 1:
        line = {m_samples[0].m, m_samples[0].c};
        return true;
    case 2:
        line = {(m_samples[0].m + m_samples[1].m) / 2, (m_samples[0].c + m_samples[1].c) / 2};
        return true;
    default:
        break;
    }
    // Thirds of the samples, not of the slopes, of which there may be fewer.
    const std::size_t third = m_count / 3;
    const std::size_t last = std::min(2 * third, m_sloped);
    line = {0.0, 0.0};
    for (std::size_t i = third; i < last; ++i) {
        line.m += m_samples[m_bySlope[i]].m;
        line.c += m_samples[m_bySlope[i]].c;
    }
    if (last > third) {
        line.m /= static_cast<double>(last - third);
        line.c /= static_cast<double>(last - third);
    }
    return true;
}

} // namespace vant::detail
