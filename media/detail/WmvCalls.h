#pragma once

#include "core/VantApi.h"

#include <windows.h>

#include <wmsdkidl.h>

namespace vant::detail
{

/** The edge to Windows Media, whose library is loaded when it is first asked for: an application starts
 * without it. */
struct WmvCalls {
    HRESULT (*createProfileManager)(IWMProfileManager** manager);
    HRESULT (*createWriter)(IWMWriter** writer);

    /** A time that only goes forward, in units of 100 ns. */
    unsigned long long (*now)();
};

/** The table in use: the system's own functions, unless something was put in their place. */
VANT_API WmvCalls& Wmv() noexcept;

} // namespace vant::detail
