#pragma once

#include "core/VantApi.h"

#include <afxwin.h>

namespace vant::detail
{

/** How context help finds out what is under the mouse. The classes of the controls and of the platform
 * windows register their look-up here; null finds nothing. */
struct HelpRegistry {
    /** If a control owns `wnd`: true, its help topic (empty if it has none) and its parent window. */
    bool (*findControl)(HWND wnd, CString& topic, HWND& parent) = nullptr;

    /** If a platform window owns `wnd`: true and its help topic (empty if it has none). */
    bool (*findWindow)(HWND wnd, CString& topic) = nullptr;
};

/** The look-ups in use. */
VANT_API HelpRegistry& Help() noexcept;

} // namespace vant::detail
