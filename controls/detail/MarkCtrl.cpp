#include "controls/detail/MarkCtrl.h"

#include "controls/detail/CtrlText.h"
#include "controls/detail/SkinPiece.h"
#include "platform/Vant.h"

#include <algorithm>

using vant::skins::Look;

namespace vant::detail
{

unsigned long MarkCtrl::WndStyle() const
{
    const unsigned long base = ClickCtrl::WndStyle();
    return IsClickable() ? base | WS_TABSTOP | keepFocus : base;
}

bool MarkCtrl::DrawCheckPiece(CDC* dc, const CRect& box, const vant::skins::Region& piece, Look drawn) const
{
    return DrawPiece(*dc, box, Vant::check, piece, drawn, BackCol());
}

void MarkCtrl::Draw(CDC* dc)
{
    const CRect r = ClientRc();
    const Look drawn = DrawnLook();
    DrawBack(dc);
    style.Set(dc);
    // As large as the drawing, or as the control where that is lower.
    constexpr int drawing = 20;
    const int size = std::min(drawing, r.Height());
    const int top = r.top + (r.Height() - size) / 2;
    const CRect box(r.left, top, r.left + size, top + size);
    DrawMark(dc, box, drawn);
    dc->SetBkMode(TRANSPARENT);
    if (drawn == Look::Disabled)
        dc->SetTextColor(disabledText);
    else if (IsClickable() && (look & (lookHover | lookPressed)))
        dc->SetTextColor(litText);
    constexpr int gap = 4;
    DrawLine(*dc, Caption(), {box.right + gap, r.top, r.right, r.bottom}, DT_LEFT);
    NoteShown();
}

} // namespace vant::detail
