#pragma once

#include <vector>

namespace demo
{

/** A linear scale with round divisions. */
struct Scale {
    double low = 0.0;
    double high = 1.0;
    double step = 1.0; ///< between divisions: 1, 2 or 5 times a power of ten

    /** The smallest scale that holds `from`..`to` and begins and ends at divisions, with at most `divisions`
     * steps (not less than 1) between them. Equal limits, or limits that are no numbers, are widened to a
     * step. */
    static Scale Around(double from, double to, int divisions);

    /** The divisions from low to high, both included. */
    std::vector<double> Ticks() const;

    /** The place of a value between `start` (of low) and `end` (of high); outside when the value is outside.
     */
    double Map(double value, double start, double end) const noexcept
    {
        return start + (value - low) / (high - low) * (end - start);
    }

    /** Decimals needed to tell the divisions apart. */
    int Decimals() const noexcept;
};

/** The angle in (-pi, pi] that leads from one bearing to another the short way, in radians. */
double TurnBetween(double from, double to) noexcept;

} // namespace demo
