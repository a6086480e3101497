#pragma once

#include "core/VantApi.h"

class CArchive;

/** A ring of the latest samples with a running sum, for averages, spread and trend.
 *
 *  Storing a sample takes constant time. The sum is never built anew: a NaN or an infinity that was stored
 * stays in it until the size changes. "Storage order" is the order of the ring's slots, which is the order in
 * time only until the ring has wrapped. Not for use from several threads at once. */
class VANT_API CStatBuf
{
public:
    /** A buffer of size 0: it holds only the latest value. */
    CStatBuf() = default;
    CStatBuf(const CStatBuf& other);
    /** Copies the samples and their sum; the standard deviation of the last GetStats() stays the target's
     * own. */
    CStatBuf& operator=(const CStatBuf& other);
    ~CStatBuf();

    /** Makes room for n samples. The current size keeps the samples, any other one drops them all and zeroes
     * the slots. Exhausted memory ends the process. */
    void SetSize(unsigned n);

    /** Stores a sample, over the oldest one when the ring is full. */
    void SetValue(double v) noexcept
    {
        if (m_size == 0) {
            m_sum = v;
            return;
        }
        const unsigned slot = m_next;
        const double kept = m_sum - m_values[slot];
        m_sum = kept + v;
        m_next = slot + 1 == m_size ? 0 : slot + 1;
        m_count += m_count < m_size ? 1 : 0;
        m_values[slot] = v; // last: for all the compiler knows it could change any of the others
    }

    /** The mean of the samples; the latest value for a buffer of size 0, 0 for one without samples. */
    double GetAvg() const noexcept { return m_count == 0 ? m_sum : m_sum / m_count; }

    /** The average change per sample: the newest sample less the slot that is overwritten next, divided by
     * the number of samples. Deliberately not by one less; and until the ring is full that slot is an unused
     * 0.0. 0.0 with fewer than two samples. */
    double GetAvgD() const noexcept;

    /** Smallest and largest sample and the standard deviation (of a sample: divided by count - 1).
     *  Samples beyond 1e9 or -1e9 do not show in min and max: deliberate.
     *  @return 1, or 0 with fewer than two samples, the outputs then being left alone */
    int GetStats(double& min, double& max, double& sd);

    /** The least-squares line m * i + c through the samples in storage order, i counting from 0. Both are 0
     * with fewer than two samples. */
    void GetMC(double& m, double& c) const noexcept;

    /** Stores the buffer in an archive or loads it: size, next slot, count (32 bits each), sum, standard
     * deviation, then every slot. An archive that contradicts itself or ends early throws CArchiveException
     * and leaves the buffer as it was. */
    void Serialize(CArchive& ar);

private:
    void Load(CArchive& ar);

    unsigned m_size = 0;        // capacity of the ring
    unsigned m_next = 0;        // slot that the next sample overwrites
    unsigned m_count = 0;       // valid samples, never above m_size
    double* m_values = nullptr; // owned, m_size slots
    double m_sum = 0.0;         // of the valid samples
    double m_sd = 0.0;          // from the last GetStats()
};
