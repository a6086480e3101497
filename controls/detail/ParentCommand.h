#pragma once

#include <windows.h>

namespace vant::detail
{

/** Tells the parent of a control of it, as a control of the system does: by WM_COMMAND. Nothing for a control
 * without an id, or whose window is gone. The control may be gone afterwards.
 *  @param code  of the notification: LBN_SELCHANGE, CBN_SELCHANGE, ... */
void SendCommand(HWND ctrl, int id, int code);

} // namespace vant::detail
