#include "controls/detail/ChartView.h"

#include <algorithm>
#include <cmath>

namespace vant::detail
{

void ChartView::SetTimes(double oldest, double newest) noexcept
{
    if (!std::isfinite(oldest) || !std::isfinite(newest))
        return;
    m_oldest = oldest;
    m_newest = newest;
    if (m_live || !m_set)
        m_end = m_now = newest;
    m_set = true;
}

void ChartView::SetSpan(double seconds) noexcept
{
    if (seconds == seconds)
        m_span = std::clamp(seconds, minSpan, maxSpan);
}

void ChartView::SetLive(bool live) noexcept
{
    m_live = live;
    if (live)
        m_end = m_now = m_newest;
}

void ChartView::EndAt(double end) noexcept
{
    // The oldest moment at the right edge is as far back as makes sense on a long span; on a short one the
    // left edge.
    const double earliest = std::min(m_oldest + m_span, m_newest);
    end = std::max(end, earliest);
    if (end >= m_newest)
        return SetLive(true);
    m_live = false;
    m_end = end;
}

void ChartView::Zoom(double factor, double place) noexcept
{
    if (!(factor > 0) || !std::isfinite(factor))
        return;
    place = std::clamp(place, 0.0, 1.0);
    const double fixed = Start() + place * m_span;
    const double before = m_span;
    SetSpan(m_span * factor);
    if (m_span == before)
        return;
    const double end = fixed + (1 - place) * m_span;
    if (m_live && place == 1)
        return;
    EndAt(end);
}

void ChartView::Pan(double seconds) noexcept
{
    if (std::isfinite(seconds) && seconds != 0)
        EndAt(m_end + seconds);
}

void ChartView::GoToOldest() noexcept
{
    EndAt(m_oldest + m_span);
}

} // namespace vant::detail
