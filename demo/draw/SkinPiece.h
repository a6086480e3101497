#pragma once

#include "controls/CDpi.h"
#include "demo/detail/Geometry.h"
#include "resources/Skins.h"

#include <afxwin.h>

namespace demo
{

/** Copies a piece of a skin into `box`, in pixels, stretching what lies between its margins; these are as
 * wide as the dots per inch ask for.
 *  @param cell which of the pieces that stand side by side, from 0 */
void DrawSkin(CDC& dc, const Box& box, CDC& skin, const vant::skins::Region& piece, CDpi dpi, int cell = 0);

/** Copies a piece in its own size in units, with its upper left corner at the pixel (x, y), leaving out the
 * background around it. */
void StampSkin(CDC& dc, int x, int y, CDC& skin, const vant::skins::Region& piece, CDpi dpi, int cell = 0);

} // namespace demo
