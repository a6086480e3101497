#pragma once

namespace vant::detail
{

/** From now on exhausted memory ends the process through the fatal memory error, whichever way the library
 * asked for it: operator new here, and texts and other objects of the MFC interface. Calling it again is
 * harmless. */
void InstallNewHandlers() noexcept;

} // namespace vant::detail
