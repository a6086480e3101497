#pragma once

#include "core/VantApi.h"

#include <afx.h>

namespace vant::detail
{

/** How the platform class reaches the windows that stand above it. Their classes register here; the first
 *  contents do what can be done without them. No function may be null, except where it says so. */
struct WindowHooks {
    /** Sends an information message to every platform window, on the caller's thread; `data` belongs to the
     *  sender. Null while there are no windows. */
    void (*infoMsg)(int message, void* data);

    /** Shows a text until the user has answered it, and returns the answer: IDOK, IDCANCEL, IDYES or IDNO.
     *  At first a message box of the system. */
    int (*showModal)(int type, const CString& text);

    /** Shows a text for a number of timer ticks and returns at once. At first a line on the general console.
     */
    void (*show)(int type, const CString& text, int ticks);
};

/** The hooks in use. */
VANT_API WindowHooks& Windows() noexcept;

} // namespace vant::detail
