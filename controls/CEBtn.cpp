#include "controls/CEBtn.h"

#include "controls/detail/BoundNumber.h"
#include "controls/detail/BtnFace.h"
#include "controls/detail/CtrlText.h"
#include "controls/detail/MaskBits.h"
#include "controls/detail/SkinPiece.h"

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

int CEBtn::Jog(int notches, double, int)
{
    return vant::detail::IsInteger(*this) ? JogSwitch(IsLatched(), notches) : 0;
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
    const CRect r = ClientRc();
    const vant::detail::BtnFace face{DrawnLook(), IsLatched(), (look & lookHover) != 0};
    DrawBack(dc);
    style.Set(dc);
    if (ownDC)
        DrawOwnSkin(dc, r, face.drawn);
    else
        vant::detail::DrawBtnFace(*dc, r, face, BackCol());
    vant::detail::DrawBtnCaption(*dc, Caption(), r, face, style.txtCol);
    NoteShown();
}
