#include "demo/detail/Glide.h"

#include <algorithm>
#include <cmath>

namespace demo
{

double Eased(double part) noexcept
{
    const double p = std::clamp(part, 0.0, 1.0);
    return p * p * (3.0 - 2.0 * p);
}

Glide Glide::Between(Point from, Point to, double now) noexcept
{
    constexpr double least = 0.35; // seconds
    constexpr double most = 1.1;
    constexpr double speed = 1100.0; // pixels a second
    const double distance = std::hypot(to.x - from.x, to.y - from.y);
    return {from, to, now, std::min(least + distance / speed, most)};
}

Point Glide::At(double t) const noexcept
{
    const double part = duration > 0.0 ? Eased((t - begin) / duration) : t >= begin ? 1.0 : 0.0;
    return {from.x + (to.x - from.x) * part, from.y + (to.y - from.y) * part};
}

} // namespace demo
