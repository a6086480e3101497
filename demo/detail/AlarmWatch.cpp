#include "demo/detail/AlarmWatch.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace demo
{
namespace
{

constexpr std::size_t eventCapacity = 10000; // that nobody has taken yet

} // namespace

void AlarmWatch::Sound(double time, double depth)
{
    if (IsMissing(depth))
        return;
    m_lastDepth = depth;
    const bool shallow = depth < m_limit + (m_shallow ? depthSpare : 0.0) && m_limit > 0.0;
    if (shallow == m_shallow)
        return;
    m_shallow = shallow;
    Report({time, AlarmId::ShallowWater, shallow, depth});
}

void AlarmWatch::Fix(double time, bool valid)
{
    Pass(time);
    if (!valid) {
        m_fixSince = missing;
        return;
    }
    if (IsMissing(m_fixSince) || time - m_lastFix > longestGap) {
        m_fixSince = time;
        // Positions that come and go are one search.
        m_searched = m_lost ? m_searched + (time - m_lastFix) : 0.0;
    }
    m_lastFix = time;
    if (m_lost && time - m_fixSince >= steadyFix) {
        m_lost = false;
        Report({time, AlarmId::LostFix, false, m_searched});
    }
}

void AlarmWatch::Pass(double time)
{
    if (m_lost || time - m_lastFix <= m_longestSearch)
        return;
    m_lost = true;
    m_searched = 0.0;
    // Silence is dated when it became too long, not when that was noticed.
    Report({m_lastFix + m_longestSearch, AlarmId::LostFix, true, m_longestSearch});
}

void AlarmWatch::Restart(double time)
{
    if (m_shallow)
        Report({time, AlarmId::ShallowWater, false, m_lastDepth});
    if (m_lost)
        Report({time, AlarmId::LostFix, false, std::max(m_searched, SearchTime(time))});
    AlarmWatch fresh;
    fresh.m_limit = m_limit;
    fresh.m_longestSearch = m_longestSearch;
    fresh.m_events = std::move(m_events);
    *this = std::move(fresh);
}

bool AlarmWatch::IsOn(AlarmId id) const noexcept
{
    return id == AlarmId::ShallowWater ? m_shallow : m_lost;
}

std::vector<AlarmEvent> AlarmWatch::TakeEvents()
{
    return std::exchange(m_events, {});
}

void AlarmWatch::Report(const AlarmEvent& event)
{
    if (m_events.size() < eventCapacity)
        m_events.push_back(event);
}

} // namespace demo
