#include "time/detail/PollRound.h"

#include "time/CTmFn.h"
#include "time/TmSync.h"
#include "time/detail/Sources.h"

#include <algorithm>

namespace vant::detail
{

namespace
{

constexpr unsigned meanOver = 60; // ticks
constexpr std::size_t usualSources = 16;
constexpr double msPerSecond = 1000.0;

} // namespace

PollRound::PollRound()
{
    m_err.SetSize(meanOver);
    m_advance.SetSize(meanOver);
    m_sources.reserve(usualSources);
    m_samples.reserve(usualSources);
    m_report.sources.reserve(usualSources);
}

bool PollRound::Run(const std::atomic<bool>& stop)
{
    const double begin = TmSync::GetPc();
    if (!PollSources(stop))
        return false;
    CompareClocks();
    m_report.took = TmSync::GetPc() - begin;
    return true;
}

/** Samples every source, and only then asks what became of the fits. */
bool PollRound::PollSources(const std::atomic<bool>& stop)
{
    CopySources(m_sources);
    m_samples.clear();
    m_report.slowest = 0.0;
    for (CTmFn* const source : m_sources) {
        double y = 0.0;
        const double t0 = TmSync::GetTm();
        // A failure is deliberately a sample like any other.
        source->PollTm(y);
        const double t1 = TmSync::GetTm();
        if (stop)
            return false;
        m_samples.emplace_back(y, (t0 + t1) * 0.5);
        source->AddTm(y, m_samples.back().x);
        m_report.slowest = std::max(m_report.slowest, t1 - t0);
    }
    m_report.sources.clear();
    for (std::size_t i = 0; i < m_sources.size(); ++i) {
        double m = 1.0;
        double c = 0.0;
        m_sources[i]->GetMC(m, c);
        const double off = m_samples[i].y - (m * m_samples[i].x + c);
        m_report.sources.push_back({m_sources[i]->name, off * msPerSecond, m, c});
    }
    return true;
}

void PollRound::CompareClocks()
{
    m_report.clock = TmSync::GetClock();
    m_report.base = TmSync::GetTm();
    m_report.elapsed = TmSync::GetPc();
    m_report.scale = TmSync::scale;

    const double clock80 = m_report.clock - static_cast<double>(TmSync::base80);
    m_err.SetValue((clock80 - m_report.base) * msPerSecond);
    m_report.err = m_err.GetAvg();
    if (m_lastClock)
        m_advance.SetValue((m_report.clock - *m_lastClock) * msPerSecond);
    m_lastClock = m_report.clock;
    m_report.advance = m_advance.GetAvg();

    // One store, as TmSync::err promises, which the compiler must neither split nor leave for later.
    using Shared = std::atomic_ref<double>;
    static_assert(Shared::is_always_lock_free && Shared::required_alignment == alignof(double));
    Shared(TmSync::err).store(m_report.err, std::memory_order_relaxed);
}

} // namespace vant::detail
