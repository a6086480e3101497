#pragma once

#include "resources/Skins.h"

class CECtrl;

namespace vant::detail
{

/** Whether the control's window has the keyboard focus. */
bool HasFocus(const CECtrl& ctrl);

/** The look that is to be drawn: disabled, pressed, focused or hover, the first that holds. */
vant::skins::Look LookOf(const CECtrl& ctrl);

} // namespace vant::detail
