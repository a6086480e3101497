#include "geo/detail/Leg.h"

#include <cmath>
#include <numbers>

namespace vant::detail
{

namespace
{

double Single(double angle)
{
    return static_cast<float>(angle);
}

} // namespace

Leg NextLeg(const Leg& before, double dx, double dy, double dz) noexcept
{
    constexpr double right = std::numbers::pi / 2;
    Leg leg = before;
    leg.plan = std::sqrt(dx * dx + dy * dy);
    leg.length = std::sqrt(leg.plan * leg.plan + dz * dz);
    if (!std::isfinite(leg.length)) {
        leg.plan = leg.length = 0;
        return leg;
    }
    if (leg.length == 0)
        return leg;
    if (leg.plan == 0) {
        leg.pitch = Single(dz > 0 ? -right : right);
        return leg;
    }
    leg.pitch = Single(std::atan2(-dz, leg.plan));
    // Due north and south by their own rule: -0 for dx would else be a matter of its sign.
    leg.heading = Single(dx != 0 ? std::atan2(dy, dx) : dy > 0 ? right : -right);
    return leg;
}

} // namespace vant::detail
