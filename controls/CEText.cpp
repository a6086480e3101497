#include "controls/CEText.h"

#include "controls/detail/CtrlText.h"
#include "controls/detail/SkinPiece.h"
#include "platform/Vant.h"

IMPLEMENT_DYNAMIC(CEText, CECtrl)

CEText::CEText()
{
    ctrlType = typeText;
}

void CEText::Retreive() {}

void CEText::Draw(CDC* dc)
{
    CRect r = ClientRc();
    DrawBack(dc);
    style.Set(dc);
    if (framed) {
        if (!vant::detail::DrawPiece(*dc, r, Vant::txt, vant::skins::txt::readout, alarm ? 1 : 0, BackCol()))
            CEStyle::Brdr2(dc, r);
        constexpr int frameAndGap = 5;
        r.DeflateRect(frameAndGap, 0);
    }
    if (!IsEnabled())
        dc->SetTextColor(vant::detail::disabledText);
    vant::detail::DrawLine(*dc, GetText(1), r, align);
}
