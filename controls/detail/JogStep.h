#pragma once

#include <cstdint>

namespace vant::detail
{

/** @file
 *  How far a dial moves a number, in plain C++. */

/** How far a notch goes where nobody has said so. */
struct JogSteps {
    double coarse = 1;
    double fine = 0.1;
};

/** For a number within a range: about a hundredth of it, and about a thousandth; whole numbers for an
 * integer. Without a range, or one that is empty or infinite: 1 and 0.1, for an integer 1. */
JogSteps OwnJogSteps(bool isInteger, bool hasRange, double low, double high) noexcept;

/** The number moved by an amount, as far as the nearer end. One that is beyond that end already stays.
 *  @param before, by  finite  @param grid  a result that is all but a whole multiple of it becomes one, so
 * that ten steps of 0.1 back from 1 end at 0; 0 or less: none */
double Jogged(double before, double by, double grid, double low, double high) noexcept;

/** The same for an integer. @param by  a whole number of any size  @param low, high  whole numbers; an empty
 * range lets nothing move */
std::int64_t JoggedWhole(std::int64_t before, double by, double low, double high) noexcept;

} // namespace vant::detail
