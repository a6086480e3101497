#pragma once

#include <span>

namespace vant::detail
{

/** Steps over the round values `table` x 10^n, n being -1 or more. The table holds one decade in ascending
 * order. All steps return `x` itself where no decade of the table ends above it: for NaN, infinity, and
 * values beyond the last decade that a double can hold. */
double NearestMarker(std::span<const double> table, double x) noexcept;
double NextMarker(std::span<const double> table, double x) noexcept;
double PrevMarker(std::span<const double> table, double x) noexcept;

} // namespace vant::detail
