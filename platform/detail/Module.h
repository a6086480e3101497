#pragma once

#include <windows.h>

namespace vant::detail
{

/** The library's own module, whose resources hold the skins, cursors and sounds. */
HINSTANCE Module() noexcept;

} // namespace vant::detail
