#include "controls/detail/BtnFace.h"

#include "controls/CEStyle.h"
#include "controls/detail/CtrlText.h"
#include "controls/detail/SkinPiece.h"
#include "platform/Vant.h"

using vant::skins::Look;

namespace vant::detail
{

void DrawBtnFace(CDC& dc, const CRect& r, const BtnFace& face, COLORREF back)
{
    const auto& piece = face.isOn ? vant::skins::grad1::latched : vant::skins::grad1::face;
    if (!DrawPiece(dc, r, Vant::grad1, piece, face.drawn, back))
        CEStyle::Brdr2(&dc, r);
}

void DrawBtnCaption(CDC& dc, const CString& caption, CRect r, const BtnFace& face, COLORREF txtCol)
{
    const bool lit = face.isOn || face.isHover || face.drawn == Look::Pressed;
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(face.drawn == Look::Disabled ? disabledText : lit ? litText : txtCol);
    constexpr int frameAndGap = 4;
    r.DeflateRect(frameAndGap, 0);
    if (face.drawn == Look::Pressed)
        r.OffsetRect(0, 1);
    DrawLine(dc, caption, r, DT_CENTER);
}

} // namespace vant::detail
