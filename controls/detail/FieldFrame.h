#pragma once

#include <afxwin.h>

class CECtrl;
class CEStyle;

namespace vant::detail
{

/** Looks of the frame of a field, in the order of the skin. */
enum class FieldCell { Normal, Hover, Focused, Invalid, Disabled };

/** The look of a control's frame: disabled, focused or hover, the first that holds. */
FieldCell FieldCellOf(const CECtrl& ctrl, bool hasFocus);

/** What a field's frame takes of it on every side, units. */
inline constexpr int fieldFrame = 2;

/** What the inside of a field of the style is filled with: grey, the style's own brush, or black without one.
 */
HBRUSH FieldBrush(const CEStyle& style);

/** Draws the frame of a field of the style, and fills its inside.
 *  @param back  colour of what the field stands on */
void DrawFieldFrame(CDC& dc, const CRect& r, const CEStyle& style, FieldCell cell, COLORREF back);

} // namespace vant::detail
