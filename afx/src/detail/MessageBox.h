#pragma once

#include <windows.h>

namespace vafx::detail
{

/** Shows a message box over the application's windows. @param title Null: the system's own. */
int ShowMessageBox(LPCWSTR text, UINT type, LPCWSTR title);

} // namespace vafx::detail
