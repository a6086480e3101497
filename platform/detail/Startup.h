#pragma once

#include "core/VantApi.h"

namespace vant::detail
{

/** What Vant::Init and Vant::Exit do on behalf of classes that stand above the platform class. Each is
 * registered by the source that owns the object; null does nothing. Init calls the first two, in this order,
 * between the window classes and the skins. */
struct StartupSteps {
    /** Creates the tool-tip window. */
    void (*createToolTip)() = nullptr;

    /** Gives the four consoles their kinds, log files, names and titles. */
    void (*prepareConsoles)() = nullptr;

    /** Destroys the windows that must not outlive the pens and brushes; the first thing that Exit does. */
    void (*destroyWindows)() = nullptr;

    /** Releases the display lists that all 3D windows share; Exit does it when the windows are gone. */
    void (*releaseLists)() = nullptr;
};

/** The steps in use. */
VANT_API StartupSteps& Startup() noexcept;

} // namespace vant::detail
