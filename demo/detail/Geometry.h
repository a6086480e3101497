#pragma once

#include <algorithm>

namespace demo
{

/** A point of a picture: x to the right, y down, in pixels. */
struct Point {
    double x = 0.0;
    double y = 0.0;
};

/** A rectangle of pixels; right and bottom are outside. */
struct Box {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    constexpr int Width() const noexcept { return right - left; }
    constexpr int Height() const noexcept { return bottom - top; }
    constexpr int CentreX() const noexcept { return left + Width() / 2; }
    constexpr int CentreY() const noexcept { return top + Height() / 2; }

    /** Smaller by `x` on the left and right, by `y` at the top and bottom. */
    constexpr Box Inset(int x, int y) const noexcept { return {left + x, top + y, right - x, bottom - y}; }

    constexpr bool operator==(const Box&) const noexcept = default;
};

/** The part that two boxes share; empty (no width or no height) when they are apart. */
constexpr Box Overlap(const Box& a, const Box& b) noexcept
{
    Box both{std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
             std::min(a.bottom, b.bottom)};
    both.right = std::max(both.left, both.right);
    both.bottom = std::max(both.top, both.bottom);
    return both;
}

} // namespace demo
