#pragma once

#include "core/VantApi.h"

#include <cstddef>
#include <windows.h>

namespace vant::detail
{

/** The platform's edge to what a test cannot command: resources that are missing, sounds, the help viewer,
 *  memory that runs out, a message box that waits for a user, and the end of the process. */
struct SystemCalls {
    /** A bitmap resource of the library as a new bitmap that the caller owns; null if there is none. */
    HBITMAP (*loadBitmap)(int id);

    /** Starts a WAVE resource of the library and returns at once. */
    void (*playSound)(int id);

    /** Shows one page of a compiled help file. */
    void (*openHelp)(HWND owner, LPCWSTR file, LPCWSTR page);

    /** A block of the run-time heap, new for a null pointer, else the old one with another size; null if
     * there is no room. */
    void* (*reallocate)(void* block, std::size_t size);

    /** Shows the last message of a process and returns when the user has read it. */
    void (*showFatalError)(LPCWSTR text, LPCWSTR caption);

    /** Shows a message box with MB_ style bits and returns the user's answer; 0 if it cannot be shown. */
    int (*messageBox)(LPCWSTR text, LPCWSTR caption, UINT style);

    /** Ends the process; does not return. */
    void (*endProcess)(unsigned exitCode);
};

/** The table in use: the system's own functions, unless something was put in their place. */
VANT_API SystemCalls& Calls() noexcept;

} // namespace vant::detail
