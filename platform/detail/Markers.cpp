#include "platform/detail/Markers.h"

#include <cmath>
#include <optional>

namespace vant::detail
{

namespace
{

/** The factor of the first decade whose last marker is above `x`, 0.1 being the lowest. */
std::optional<double> Decade(std::span<const double> table, double x) noexcept
{
    if (table.empty() || !std::isfinite(x))
        return std::nullopt;
    double factor = 0.1;
    while (factor * table.back() <= x) {
        factor *= 10.0;
        if (!std::isfinite(factor * table.back()))
            return std::nullopt;
    }
    return factor;
}

} // namespace

double NextMarker(std::span<const double> table, double x) noexcept
{
    const auto factor = Decade(table, x);
    if (!factor)
        return x;
    for (const double entry : table) {
        if (*factor * entry > x)
            return *factor * entry;
    }
    return x;
}

double PrevMarker(std::span<const double> table, double x) noexcept
{
    const auto factor = Decade(table, x);
    if (!factor)
        return x;
    for (std::size_t i = table.size() - 1; i > 0; --i) {
        if (*factor * table[i] >= x && *factor * table[i - 1] < x)
            return *factor * table[i - 1];
    }
    return x;
}

double NearestMarker(std::span<const double> table, double x) noexcept
{
    const auto factor = Decade(table, x);
    if (!factor)
        return x;
    double lower = *factor * table.back() / 10.0;
    for (const double entry : table) {
        const double marker = *factor * entry;
        if (marker > x)
            return std::abs(marker - x) <= std::abs(x - lower) ? marker : lower;
        lower = marker;
    }
    return lower;
}

} // namespace vant::detail
