#pragma once

#include "display/CDspMtrl.h"

namespace vant::detail
{

inline constexpr int presetMtrls = 20;

using PresetTable = CDspMtrl[presetMtrls];

/** The preset materials in their order, "Brass" to the second "Black Rubber". Made at the first call. */
VANT_API PresetTable& PresetMtrls();

} // namespace vant::detail
