#include "controls/CECheck.h"

#include "controls/detail/CtrlText.h"
#include "controls/detail/MaskBits.h"
#include "controls/detail/SkinPiece.h"
#include "platform/Vant.h"

#include <algorithm>

namespace skin = vant::skins::check;
using vant::detail::MaskState;
using vant::skins::Look;

IMPLEMENT_DYNAMIC(CECheck, CECtrl)

CECheck::CECheck()
{
    ctrlType = typeCheck;
    s_auCtrls.AddTail(this);
}

bool CECheck::IsChecked() const
{
    return vant::detail::Bits(*this) != MaskState::None;
}

unsigned long CECheck::WndStyle() const
{
    return ClickCtrl::WndStyle() | WS_TABSTOP | keepFocus;
}

int CECheck::ShownState() const
{
    return static_cast<int>(vant::detail::Bits(*this));
}

void CECheck::OnClick()
{
    vant::detail::ToggleBits(*this);
    Invalidate(FALSE);
    Execute();
}

const vant::skins::Region& CECheck::Piece() const
{
    const MaskState bits = vant::detail::Bits(*this);
    if (mark == markBranch)
        return bits == MaskState::None ? skin::closed : skin::open;
    switch (bits) {
    case MaskState::None:
        return skin::off;
    case MaskState::Some:
        return skin::mixed;
    default:
        return skin::on;
    }
}

/** The mark without its skin: an outline, with a block in it while checked. */
void CECheck::DrawPlainMark(CDC* dc, const CRect& box) const
{
    constexpr int gap = 4;
    CRect inner = box;
    inner.DeflateRect(gap, gap);
    CEStyle::Brdr2(dc, inner);
    inner.DeflateRect(gap / 2, gap / 2);
    if (IsChecked() && !inner.IsRectEmpty())
        dc->FillSolidRect(inner, style.txtCol);
}

void CECheck::Draw(CDC* dc)
{
    const CRect r = ClientRc();
    const Look drawn = DrawnLook();
    DrawBack(dc);
    style.Set(dc);
    // As large as the drawing, or as the control where that is lower.
    const int size = std::min(skin::off.h, r.Height());
    const int top = r.top + (r.Height() - size) / 2;
    const CRect box(r.left, top, r.left + size, top + size);
    if (!vant::detail::DrawPiece(*dc, box, Vant::check, Piece(), drawn, BackCol()))
        DrawPlainMark(dc, box);
    dc->SetBkMode(TRANSPARENT);
    if (drawn == Look::Disabled)
        dc->SetTextColor(vant::detail::disabledText);
    else if (look & (lookHover | lookPressed))
        dc->SetTextColor(vant::detail::litText);
    constexpr int gap = 4;
    vant::detail::DrawLine(*dc, Caption(), {box.right + gap, r.top, r.right, r.bottom}, DT_LEFT);
    NoteShown();
}
