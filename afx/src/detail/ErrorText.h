#pragma once

#include <span>
#include <windows.h>

class CStringW;

namespace vafx::detail
{

/** Hands a description out as CException::GetErrorMessage does. @return TRUE unless there is no room at all.
 */
BOOL CopyMessage(LPCWSTR message, LPWSTR lpszError, UINT nMaxError, PUINT pnHelpContext) noexcept;

/** The same for an exception about a file.
 *  @param messages By cause, %s being the file; the second one is for an unknown cause.
 *  @param file Its name, or empty. */
BOOL CopyMessageAbout(const CStringW& file, std::span<const LPCWSTR> messages, int cause, LPWSTR lpszError,
                      UINT nMaxError, PUINT pnHelpContext);

} // namespace vafx::detail
