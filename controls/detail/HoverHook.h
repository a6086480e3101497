#pragma once

#include "core/VantApi.h"

class CECtrl;

namespace vant::detail
{

/** What a control tells about the mouse. The tool tip registers here; null does nothing. */
struct HoverHook {
    /** The mouse has moved over the control, which it may not destroy. */
    void (*moved)(CECtrl& ctrl) = nullptr;

    /** The mouse has left the control, or the control its place under the mouse: it was hidden, disabled or
     * destroyed. In the last case it is no more than an address. */
    void (*left)(CECtrl& ctrl) = nullptr;
};

/** The hook in use. */
VANT_API HoverHook& Hover() noexcept;

} // namespace vant::detail
