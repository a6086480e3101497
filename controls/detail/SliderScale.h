#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vant::detail
{

/** A round number: 1, 2 or 5 times a power of ten. Multiples of it are as exact as a double can be, so that
 * 3 * 0.1 shows as 0.3. */
struct RoundStep {
    int digit = 1;
    int exponent = 0;

    /** The smallest one that is not below `least`, a positive number. */
    static RoundStep From(double least) noexcept;
    double Times(std::int64_t n) const noexcept;
};

/** The round numbers between two ends, which come in any order, sorted upwards: as close together as `most`
 *  of them allow. None if an end is not finite, or so far from 0 that it has no digits left for them. */
std::vector<double> RoundTicks(double from, double to, std::size_t most);

/** The values of a slider, from one end to the other, and the places where they are: shares of its length, 0
 * to 1. The first end may be the larger one. In plain C++. */
class SliderScale
{
public:
    SliderScale() = default;
    /** @param step  between the values, counted from the first end; 0 or less: every value  */
    SliderScale(double from, double to, double step) noexcept;

    /** Whether there is more than one value, and none is infinite. A scale that is not is a single value. */
    bool IsMovable() const noexcept { return m_isMovable; }
    double From() const noexcept { return m_from; }
    double To() const noexcept { return m_to; }

    /** Where a value is; what is beyond an end is at that end, and NaN at the first one. */
    double ShareOf(double value) const noexcept;
    /** The value nearest to a place. */
    double At(double share) const noexcept;
    /** The value nearest to any number: one that is a whole number of steps from the first end, or the other
     * end. NaN gives the first end. */
    double Nearest(double value) const noexcept;
    /** The value that is farther towards the second end by an amount, or with a negative one towards the
     * first: in whole steps, at least one. From NaN on, the first end. */
    double Moved(double value, double by) const noexcept;

    /** @name How far a key goes: a step, or where every value is possible a round part of the whole @{ */
    double KeyStep() const noexcept;
    /** A tenth of that, but not less than a step. */
    double FineStep() const noexcept;
    /** About a tenth of the whole. */
    double PageStep() const noexcept;
    /** @} */

private:
    double Length() const noexcept;

    double m_from = 0;
    double m_to = 1;
    double m_step = 0;
    bool m_isMovable = true;
};

} // namespace vant::detail
