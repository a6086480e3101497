#include "controls/CEBtn.h"

#include "controls/detail/CtrlText.h"
#include "controls/detail/MaskBits.h"
#include "controls/detail/SkinPiece.h"
#include "platform/Vant.h"

using vant::skins::Look;

IMPLEMENT_DYNAMIC(CEBtn, CECtrl)

CEBtn::CEBtn()
{
    ctrlType = typeBtn;
    s_auCtrls.AddTail(this);
}

bool CEBtn::IsLatched() const
{
    return vant::detail::Bits(*this) != vant::detail::MaskState::None;
}

unsigned long CEBtn::WndStyle() const
{
    return ClickCtrl::WndStyle() | WS_TABSTOP | keepFocus;
}

int CEBtn::ShownState() const
{
    return IsLatched() ? 1 : 0;
}

CString CEBtn::Caption() const
{
    return vant::detail::IsInteger(*this) ? text : GetText(1);
}

void CEBtn::OnClick()
{
    vant::detail::ToggleBits(*this);
    Invalidate(FALSE);
    const HWND self = m_hWnd;
    const int notified = id;
    Execute();
    // A callback may have destroyed the window, or its parent.
    if (notified && ::IsWindow(self))
        ::SendMessageW(::GetAncestor(self, GA_PARENT), WM_COMMAND,
                       MAKEWPARAM(static_cast<WORD>(notified), BN_CLICKED), reinterpret_cast<LPARAM>(self));
}

void CEBtn::DrawOwnSkin(CDC* dc, CRect r, Look drawn)
{
    const bool eachLook = skinLooks == vant::skins::kLooks;
    const int cells = eachLook ? vant::skins::kLooks : 1;
    const vant::skins::Region picture{0, 0, bmW / cells, bmH, cells, {}};
    CDC& skin = drawn == Look::Disabled && !eachLook ? dcGrey : dcNorm;
    vant::detail::DrawPiece(*dc, r, skin, picture, eachLook ? static_cast<int>(drawn) : 0, BackCol());
    if (eachLook)
        return;
    constexpr int hoverGlow = 96;
    constexpr int pressedGlow = 192;
    if (drawn == Look::Pressed)
        Glow(dc, r, pressedGlow);
    else if (drawn != Look::Disabled && (look & lookHover))
        Glow(dc, r, hoverGlow);
    if (drawn == Look::Focused)
        vant::detail::DrawFocus(*dc, r);
}

void CEBtn::Draw(CDC* dc)
{
    CRect r = ClientRc();
    const Look drawn = DrawnLook();
    const bool latched = IsLatched();
    DrawBack(dc);
    style.Set(dc);
    const auto& face = latched ? vant::skins::grad1::latched : vant::skins::grad1::face;
    if (ownDC)
        DrawOwnSkin(dc, r, drawn);
    else if (!vant::detail::DrawPiece(*dc, r, Vant::grad1, face, drawn, BackCol()))
        CEStyle::Brdr2(dc, r);
    if (drawn == Look::Disabled)
        dc->SetTextColor(vant::detail::disabledText);
    else if (latched || (look & (lookHover | lookPressed)))
        dc->SetTextColor(vant::detail::litText);
    constexpr int frameAndGap = 4;
    r.DeflateRect(frameAndGap, 0);
    if (drawn == Look::Pressed)
        r.OffsetRect(0, 1);
    vant::detail::DrawLine(*dc, Caption(), r, DT_CENTER);
    NoteShown();
}
