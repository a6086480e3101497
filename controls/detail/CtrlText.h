#pragma once

#include "core/VantApi.h"

#include <afxwin.h>

namespace vant::detail
{

/** Text of a control that is disabled: readable on the disabled looks of all skins (4.5 : 1 or more), and
 * greyer than any other. */
inline constexpr COLORREF disabledText = RGB(166, 166, 166);

/** Text on a face that is lit: the light grey of the styles is too faint there. */
inline constexpr COLORREF litText = RGB(255, 255, 255);

/** Draws one line of text, centred in the height of `r`, with an ellipsis at its end if it is too long.
 *  Ampersands are what they are. @param align  DT_LEFT, DT_CENTER or DT_RIGHT */
VANT_API void DrawLine(CDC& dc, const CString& text, CRect r, UINT align);

/** Draws the outline that shows the keyboard focus where no skin does, just inside `r`. */
VANT_API void DrawFocus(CDC& dc, const CRect& r);

} // namespace vant::detail
