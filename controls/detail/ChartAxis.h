#pragma once

#include <span>
#include <string>
#include <vector>

namespace vant::detail
{

/** A division of an axis. */
struct Tick {
    double at = 0; ///< in what the axis shows
    std::wstring label;
    bool operator==(const Tick&) const = default;
};

/** A stretch of an axis. */
struct AxisRange {
    double min = 0;
    double max = 1;
    double Length() const noexcept { return max - min; }
    bool operator==(const AxisRange&) const noexcept = default;
};

/** The smallest round step that is not below `least`: one of `table` x 10^n of which a whole number makes the
 * next power of ten. Multiples of the others, such as 0.75, would not be round themselves.
 *  @param table  one decade, in ascending order  @param least  above 0 and finite, else the step is 1 */
double RoundStepOf(std::span<const double> table, double least) noexcept;

/** The range that an axis takes by itself: it holds the data, ends at divisions, and changes as rarely as can
 * be. It grows at once, and shrinks when the data take less than half of it. Data of a single value are
 * put in the middle of a range that suits their size.
 *  @param data  extremes of what is shown; both finite  @param before  the range until now; an empty one for
 * none  @param divisions  that there may be at most; at least 1 */
AxisRange FitRange(std::span<const double> table, AxisRange data, AxisRange before, int divisions) noexcept;

/** Divisions at multiples of a round step, with labels that have just the decimals which the step needs.
 *  @param divisions  that there may be at most */
std::vector<Tick> ValueTicks(std::span<const double> table, AxisRange range, int divisions);

/** How an axis of time is labelled. */
enum class TimeLabels {
    Clock,    ///< the time of the day, with the date where a day begins; from 1 January 1980 on
    Relative, ///< the time before or after another: "-30 s"
};

/** Divisions of an axis of time, in seconds: at round parts of a second, seconds, minutes, hours and days.
 *  @param range  seconds since 1 January 1980  @param now  what relative times count from
 *  @param divisions  that there may be at most */
std::vector<Tick> TimeTicks(AxisRange range, double now, TimeLabels labels, int divisions);

/** A point of time, to the precision that `step`, the time from one pixel to the next, allows: "14:02:31.5",
 * or "-29.5 s". */
std::wstring TimeText(double t, double now, TimeLabels labels, double step);

/** A duration with its unit: "250 ms", "30 s", "1:30 min", "2 h". */
std::wstring SpanText(double seconds);

} // namespace vant::detail
