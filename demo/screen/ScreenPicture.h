#pragma once

#include <afxwin.h>

#include <span>

namespace demo
{

/** Saves what a user sees of windows, drawn anew, and between them: with the message boxes and tips over
 * them, which Vant::PrintScn() leaves out. Windows that are hidden do not count.
 *  @return whether it could be saved */
bool SaveSeen(std::span<CWnd* const> windows, const CString& path);

/** Saves what a user sees of a rectangle; what lies beside the screen is left out. @return whether it could
 * be saved */
bool SaveScreen(const CRect& wanted, const CString& path);

} // namespace demo
