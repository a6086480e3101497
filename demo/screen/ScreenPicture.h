#pragma once

#include <afxwin.h>

namespace demo
{

/** Saves what a user sees of a window: with the message boxes and tips over it, which Vant::PrintScn() leaves
 * out. @return whether it could be saved */
bool SaveSeen(CWnd& wnd, const CString& path);

/** Saves what a user sees of a rectangle; what lies beside the screen is left out. @return whether it could
 * be saved */
bool SaveScreen(const CRect& wanted, const CString& path);

} // namespace demo
