#pragma once

#include "demo/detail/Geometry.h"

#include <algorithm>

namespace demo
{

/** The part of the screen that fills the picture when `wanted` is to be seen: around its middle, of the shape
 *  of `whole`, as small as shows all of `wanted` but never smaller than `leastWidth`, and inside `whole`. */
Box ShotOf(const Box& wanted, const Box& whole, int leastWidth) noexcept;

/** A box on the way from `from` (part 0) to `to` (part 1). */
Box Between(const Box& from, const Box& to, double part) noexcept;

/** The smallest box around two. */
constexpr Box Around(const Box& a, const Box& b) noexcept
{
    return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
            std::max(a.bottom, b.bottom)};
}

} // namespace demo
