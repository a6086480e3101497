#pragma once

#include "controls/CECtrl.h"

#include <string>

class CCtrlCat;
class CVantWnd;

namespace demo
{

/** The control that is bound to a variable; there must be one. */
CECtrl& BoundTo(const void* variable);

/** The first control of a class, by its code. */
CECtrl& OfType(int typeCode);

/** A category of a window by its name; there must be one. */
const CCtrlCat& CategoryOf(const CVantWnd& wnd, const wchar_t* name);

std::wstring WindowText(const CWnd& wnd);
bool HasFocus(const CWnd& wnd);
bool IsSeen(const CWnd& wnd);
bool IsMenuOpen();

} // namespace demo
