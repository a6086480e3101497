#pragma once

namespace vafx::detail
{

/** Shows (+1), hides (-1) or restores (0) the hourglass of this thread. */
void DoWaitCursor(int code) noexcept;

} // namespace vafx::detail
