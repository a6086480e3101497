#pragma once

#include "controls/detail/SamplePyramid.h"

#include <atomic>
#include <memory>
#include <mutex>
#include <span>
#include <vector>

namespace vant::detail
{

/** A sample as it is handed over. */
struct ChartSample {
    double t = 0; ///< seconds
    double v = 0; ///< -32768.0 or what is not finite for a missing value
};

/** The samples of the traces of a chart, added by any thread while another one draws.
 *
 *  Times only go forward in here. A sample that comes up to a second late, as from another thread, counts
 * for its trace's newest moment. One that comes later than that tells that the clock was put back: what was
 * recorded until then moves along, so that it stays as long ago as it was, and the line is interrupted. */
class ChartData
{
public:
    static constexpr double latest = 1.0; ///< seconds that a sample may be late
    /// Seconds, some 3,000 years: beyond, times are an error, and would cost the others their precision.
    static constexpr double farthest = 1e11;

    /** Adds a trace; its number is one more than the last one's. */
    void AddTrace(std::size_t capacity);
    void RemoveAll();

    /** Adds samples to a trace, in order; a trace that does not exist and samples without a time are ignored.
     *  @param joinMax  seconds without samples that a line still bridges */
    void Add(int trace, std::span<const ChartSample> samples, double joinMax);
    /** Forgets the samples of all traces. */
    void Clear();

    /** Whether anything was added since the last call. */
    bool TakeChanged() noexcept { return m_changed.exchange(false); }

    /** Access to the samples of all traces, during which nothing can be added: to be held shortly. Their
     * times plus Shift() are times of the clock. */
    class Reader
    {
    public:
        explicit Reader(const ChartData& data)
            : m_data(data)
            , m_lock(data.m_mutex)
        {
        }
        double Shift() const noexcept { return m_data.m_shift; }
        const SamplePyramid& Trace(int index) const
        {
            return *m_data.m_traces[static_cast<std::size_t>(index)];
        }
        /** The earliest and latest moment of all traces, of the clock; empty without samples. */
        MinMax Times() const noexcept;

    private:
        const ChartData& m_data;
        const std::lock_guard<std::mutex> m_lock;
    };

private:
    void AddOne(SamplePyramid& trace, ChartSample sample, double joinMax);

    mutable std::mutex m_mutex;
    std::vector<std::unique_ptr<SamplePyramid>> m_traces;
    double m_shift = 0; // from times in the rings to those of the clock
    std::atomic<bool> m_changed = false;
};

} // namespace vant::detail
