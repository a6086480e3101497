#include "controls/CECheck.h"

#include "controls/detail/BoundNumber.h"
#include "controls/detail/MaskBits.h"
#include "resources/Skins.h"

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

int CECheck::Jog(int notches, double, int)
{
    return vant::detail::IsInteger(*this) ? JogSwitch(IsChecked(), notches) : 0;
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

void CECheck::DrawMark(CDC* dc, const CRect& box, Look drawn)
{
    if (!DrawCheckPiece(dc, box, Piece(), drawn))
        DrawPlainMark(dc, box);
}
