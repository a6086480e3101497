#pragma once

#include "core/VantApi.h"

#include <afxwin.h>

namespace vant::detail
{

/** Loads every skin into its device context, in the order of the skin table; what an earlier call loaded is
 *  released first. A skin whose bitmap is missing keeps a context without it. */
void LoadSkins();

/** The skins of the menu and of the glow around a control. They are loaded among Vant's own, at their place
 * in the order, and kept here for the classes that draw with them. */
VANT_API CDC& MenuSkin() noexcept;
VANT_API CDC& GlowSkin() noexcept;

} // namespace vant::detail
