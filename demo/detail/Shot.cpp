#include "demo/detail/Shot.h"

#include <algorithm>
#include <cmath>

namespace demo
{

Box ShotOf(const Box& wanted, const Box& whole, int leastWidth) noexcept
{
    if (whole.Width() <= 0 || whole.Height() <= 0)
        return whole;
    const double shape = static_cast<double>(whole.Width()) / whole.Height();
    const double needed = std::max(
        {static_cast<double>(wanted.Width()), wanted.Height() * shape, static_cast<double>(leastWidth)});
    const int width = static_cast<int>(std::min(std::ceil(needed), static_cast<double>(whole.Width())));
    const int height = std::min(static_cast<int>(std::lround(width / shape)), whole.Height());
    const int left = std::clamp(wanted.CentreX() - width / 2, whole.left, whole.right - width);
    const int top = std::clamp(wanted.CentreY() - height / 2, whole.top, whole.bottom - height);
    return {left, top, left + width, top + height};
}

Box Between(const Box& from, const Box& to, double part) noexcept
{
    const auto at = [part](int a, int b) { return static_cast<int>(std::lround(a + (b - a) * part)); };
    return {at(from.left, to.left), at(from.top, to.top), at(from.right, to.right),
            at(from.bottom, to.bottom)};
}

} // namespace demo
