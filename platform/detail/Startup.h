#pragma once

#include "core/VantApi.h"

namespace vant::detail
{

/** What Vant::Init does between the window classes and the skins, in this order, on behalf of classes that
 * stand above the platform class. Each is registered by the source that owns the object; null does nothing.
 */
struct StartupSteps {
    /** Creates the tool-tip window. */
    void (*createToolTip)() = nullptr;

    /** Gives the four consoles their kinds, log files, names and titles. */
    void (*prepareConsoles)() = nullptr;
};

/** The steps in use. */
VANT_API StartupSteps& Startup() noexcept;

} // namespace vant::detail
