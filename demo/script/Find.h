#pragma once

#include "controls/CECtrl.h"

#include <string>

class CCtrlCat;
class CColTblCb;
class CVantWnd;

namespace demo
{

struct Stage;
class CSceneWnd;

/** The control that is bound to a variable; there must be one. */
CECtrl& BoundTo(const void* variable);

/** The first control of a class, by its code. */
CECtrl& OfType(int typeCode);

/** A category of a window by its name; there must be one. */
const CCtrlCat& CategoryOf(const CVantWnd& wnd, const wchar_t* name);

/** The palette's list of tables. */
CColTblCb& TablesOf(const Stage& stage);

/** @name Places in a window, pixels of its client area @{ */
CPoint Middle(const CWnd& wnd);
/** Where the boat is in a view. */
CPoint BoatIn(const Stage& stage, const CSceneWnd& view);
/** The check box of an alarm in its console; outside it while there is no such row. */
CPoint AlarmBox(unsigned long id);
/** @} */

/** Whether an alarm was raised and its entry has all of the CConsole::KindBits `kind`. */
bool IsRaised(unsigned long id, unsigned int kind);

/** How far the boat is from the middle of a view, metres. */
double FromBoat(const Stage& stage, const CSceneWnd& view);
/** Whether the boat was picked last in a view. */
bool IsBoatPicked(const CSceneWnd& view);

std::wstring WindowText(const CWnd& wnd);
bool HasFocus(const CWnd& wnd);
bool IsSeen(const CWnd& wnd);
bool IsMenuOpen();

} // namespace demo
