#pragma once

namespace vant::detail
{

/** The stretch of time that a chart shows: as long as wanted, and ending either at the newest moment, on and
 * on, or where the user has gone back to. */
class ChartView
{
public:
    static constexpr double minSpan = 1e-3;  ///< seconds
    static constexpr double maxSpan = 3.2e8; ///< seconds, ten years

    double Span() const noexcept { return m_span; }
    double End() const noexcept { return m_end; }
    double Start() const noexcept { return m_end - m_span; }
    /** Whether it goes with the newest moment. */
    bool IsLive() const noexcept { return m_live; }
    /** Whether anything can be shown: some time has been told. */
    bool IsSet() const noexcept { return m_set; }
    /** The newest moment, or when the view was stopped. */
    double Now() const noexcept { return m_now; }

    /** Tells the newest and oldest moments that there are. Going back beyond the oldest is not possible. */
    void SetTimes(double oldest, double newest) noexcept;
    /** @param seconds  brought into the limits; no number is ignored */
    void SetSpan(double seconds) noexcept;
    /** Stops where it is, or goes on at the newest moment. */
    void SetLive(bool live) noexcept;
    /** Makes the span `factor` times as long around a place that stays: 0 the start, 1 the end. A view that
     * would end behind the newest moment is live. */
    void Zoom(double factor, double place) noexcept;
    /** Goes back (below 0) or on by a time, but not beyond what there is. Arriving at the newest moment makes
     * it live. */
    void Pan(double seconds) noexcept;
    /** Starts at the oldest moment. */
    void GoToOldest() noexcept;

private:
    void EndAt(double end) noexcept;

    double m_span = 60;
    double m_end = 0;
    double m_now = 0;    // stands still with the view
    double m_newest = 0; // goes on
    double m_oldest = 0;
    bool m_live = true;
    bool m_set = false;
};

} // namespace vant::detail
