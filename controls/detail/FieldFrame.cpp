#include "controls/detail/FieldFrame.h"

#include "controls/CECtrl.h"
#include "controls/CEStyle.h"
#include "controls/detail/SkinPiece.h"
#include "platform/Vant.h"
#include "resources/Skins.h"

namespace vant::detail
{

HBRUSH FieldBrush(const CEStyle& style)
{
    if (style.greyBk)
        return Vant::greyB;
    const HGDIOBJ own = style.pBrush ? style.pBrush->GetSafeHandle() : nullptr;
    return static_cast<HBRUSH>(own ? own : ::GetStockObject(BLACK_BRUSH));
}

void DrawFieldFrame(CDC& dc, const CRect& r, const CEStyle& style, FieldCell cell, COLORREF back)
{
    const auto& frames = style.greyBk ? skins::txt::grey : skins::txt::black;
    const bool isSkinned = DrawPiece(dc, r, Vant::txt, frames, static_cast<int>(cell), back);
    if (!isSkinned)
        CEStyle::Brdr2(&dc, r);
    // The skin of a field that is disabled has its own inside.
    if (isSkinned && cell == FieldCell::Disabled)
        return;
    CRect inside = r;
    inside.DeflateRect(fieldFrame, fieldFrame);
    ::FillRect(dc, inside, FieldBrush(style));
}

FieldCell FieldCellOf(const CECtrl& ctrl, bool hasFocus)
{
    if (!ctrl.IsEnabled())
        return FieldCell::Disabled;
    if (hasFocus)
        return FieldCell::Focused;
    return (ctrl.look & CECtrl::lookHover) ? FieldCell::Hover : FieldCell::Normal;
}

} // namespace vant::detail
