#pragma once

#include "display/CMdlInf.h"

#include <afxwin.h>

#include <GL/gl.h>

namespace demo
{

/** Draws in a colour from here on. @param opacity  255 hides what is behind */
void SetGlColour(COLORREF colour, GLubyte opacity = 255);

/** Widens the extents that a drawable tells of itself by a box. */
void Widen(CMdlInf& inf, const CV3& lower, const CV3& upper);

} // namespace demo
