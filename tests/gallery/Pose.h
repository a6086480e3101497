#pragma once

#include <VantCore.h>

/** What a control may look like, in the order of the gallery's columns. */
enum State { stNormal, stHot, stFocused, stPressed, stDisabled, stInvalid, stateCount };

/** Brings a control into a state that otherwise mouse, keyboard or owner bring about, for it to be drawn;
 * until the next call. Of a control that is made of others the first one is posed. stInvalid is the business
 * of the bound variable: here it is stNormal. @param elsewhere  gets the focus in all states but stFocused */
void Pose(CECtrl& ctrl, State state, CWnd& elsewhere);
