#pragma once

#include <afxwin.h>

namespace demo
{

/** Saves what a user sees of a window: with the message boxes and tips over it, which Vant::PrintScn() leaves
 * out. @return whether it could be saved */
bool SaveSeen(CWnd& wnd, const CString& path);

/** Saves what a user sees of a part of the screen. @return whether it could be saved */
bool SaveScreen(const CRect& place, const CString& path);

} // namespace demo
