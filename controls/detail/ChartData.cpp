#include "controls/detail/ChartData.h"

#include <cmath>

namespace vant::detail
{

namespace
{

constexpr double missing = -32768.0; // marks missing data in a double
constexpr double noValue = std::numeric_limits<double>::quiet_NaN();

} // namespace

void ChartData::AddTrace(std::size_t capacity)
{
    auto trace = std::make_unique<SamplePyramid>(capacity);
    const std::lock_guard lock(m_mutex);
    m_traces.push_back(std::move(trace));
}

void ChartData::RemoveAll()
{
    const std::lock_guard lock(m_mutex);
    m_traces.clear();
    m_shift = 0;
    m_changed = true;
}

void ChartData::Clear()
{
    const std::lock_guard lock(m_mutex);
    for (const auto& trace : m_traces)
        trace->Clear();
    m_shift = 0;
    m_changed = true;
}

void ChartData::Add(int trace, std::span<const ChartSample> samples, double joinMax)
{
    const std::lock_guard lock(m_mutex);
    if (trace < 0 || static_cast<std::size_t>(trace) >= m_traces.size())
        return;
    for (const ChartSample& sample : samples)
        AddOne(*m_traces[static_cast<std::size_t>(trace)], sample, joinMax);
    m_changed = true;
}

void ChartData::AddOne(SamplePyramid& trace, ChartSample sample, double joinMax)
{
    if (!(std::fabs(sample.t) < farthest))
        return;
    double t = sample.t - m_shift;
    if (!trace.IsEmpty()) {
        const double newest = trace.Time(trace.End() - 1);
        if (t < newest - latest) {
            double end = newest;
            for (const auto& other : m_traces) {
                if (!other->IsEmpty())
                    end = std::max(end, other->Time(other->End() - 1));
            }
            m_shift = sample.t - end;
            t = end;
            trace.Add(t, noValue);
        } else if (t - newest > joinMax) {
            trace.Add(newest, noValue);
        }
        t = std::max(t, newest);
    }
    trace.Add(t, std::isfinite(sample.v) && sample.v != missing ? sample.v : noValue);
}

MinMax ChartData::Reader::Times() const noexcept
{
    MinMax times;
    for (const auto& trace : m_data.m_traces) {
        if (trace->IsEmpty())
            continue;
        times.Add(trace->Time(trace->First()) + Shift());
        times.Add(trace->Time(trace->End() - 1) + Shift());
    }
    return times;
}

} // namespace vant::detail
