#pragma once

#include "demo/detail/Geometry.h"

#include <span>

namespace demo
{

/** Where a window that was at `window` may appear: there, while enough of its title bar lies on one of the
 *  monitors' work areas to be taken hold of, else moved, and shrunk where it must be, onto the nearest one.
 * The first area counts as nearest when none is nearer. Without areas the window stays. */
Box KeepOnScreen(const Box& window, std::span<const Box> areas) noexcept;

} // namespace demo
