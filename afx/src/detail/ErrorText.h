#pragma once

#include <windows.h>

namespace vafx::detail
{

/** Hands a description out as CException::GetErrorMessage does. @return TRUE unless there is no room at all.
 */
BOOL CopyMessage(LPCWSTR message, LPWSTR lpszError, UINT nMaxError, PUINT pnHelpContext) noexcept;

} // namespace vafx::detail
