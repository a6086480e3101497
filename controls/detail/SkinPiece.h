#pragma once

#include "core/VantApi.h"
#include "resources/Skins.h"

#include <afxwin.h>

namespace vant::detail
{

/** Colour around the shapes of every skin. On a background of another colour it gives way to that. */
inline constexpr COLORREF skinBack = RGB(0, 18, 39);

/** Whether the skin holds the region: it does not before Vant::Init(), nor without its bitmap. */
VANT_API bool HasPiece(CDC& skin, const vant::skins::Region& piece);

/** Draws a piece of a skin into `box`, in the units of `dc`: its margins keep their size, what is between
 * them is stretched. In a box that is smaller than the margins they share the room.
 *  @param cell  which of the pieces that stand side by side, from 0
 *  @param back  colour of what the piece stands on
 *  @return whether there was a piece to draw; nothing is drawn otherwise */
VANT_API bool DrawPiece(CDC& dc, const CRect& box, CDC& skin, const vant::skins::Region& piece, int cell,
                        COLORREF back = skinBack);

/** The same for the look of a control. */
inline bool DrawPiece(CDC& dc, const CRect& box, CDC& skin, const vant::skins::Region& piece,
                      vant::skins::Look look, COLORREF back = skinBack)
{
    return DrawPiece(dc, box, skin, piece, static_cast<int>(look), back);
}

} // namespace vant::detail
