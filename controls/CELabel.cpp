#include "controls/CELabel.h"

#include "controls/detail/CtrlText.h"
#include "controls/detail/SkinPiece.h"
#include "platform/Vant.h"
#include "platform/detail/Module.h"
#include "resources/Ids.h"

IMPLEMENT_DYNAMIC(CELabel, CECtrl)

BEGIN_MESSAGE_MAP(CELabel, vant::detail::ClickCtrl)
    ON_WM_SETCURSOR()
END_MESSAGE_MAP()

CELabel::CELabel()
{
    ctrlType = typeLabel;
}

bool CELabel::IsClickable() const
{
    return pCbObj && (pCbNone || pCbInt || pCbDouble || pCbPtr);
}

unsigned long CELabel::WndStyle() const
{
    const unsigned long base = ClickCtrl::WndStyle();
    return IsClickable() ? base | WS_TABSTOP | keepFocus : base;
}

void CELabel::OnClick()
{
    Execute();
}

CString CELabel::Caption() const
{
    return GetText(1);
}

bool CELabel::DrawBar(CDC* dc, const CRect& r)
{
    if (bar == barNone)
        return false;
    const bool lit = IsClickable() && IsEnabled() && (look & (lookHover | lookPressed)) != 0;
    if (bar == barCategory)
        return vant::detail::DrawPiece(*dc, r, Vant::grad2, vant::skins::grad2::category, lit ? 1 : 0,
                                       BackCol());
    return vant::detail::DrawPiece(*dc, r, Vant::grad2, vant::skins::grad2::caption, IsEnabled() ? 0 : 1,
                                   BackCol());
}

void CELabel::Draw(CDC* dc)
{
    CRect r = ClientRc();
    DrawBack(dc);
    style.Set(dc);
    if (style.pFont == &Vant::normalF && Vant::boldF.m_hObject)
        ::SelectObject(dc->m_hDC, Vant::boldF.m_hObject);
    const bool onBar = DrawBar(dc, r);
    const bool lit = IsClickable() && (look & (lookHover | lookPressed)) != 0;
    if (!IsEnabled())
        dc->SetTextColor(vant::detail::disabledText);
    else if (onBar || lit)
        dc->SetTextColor(vant::detail::litText);
    if (IsClickable() && HasFocus())
        vant::detail::DrawFocus(*dc, r);
    // Room for the bar's coloured end and the focus.
    constexpr int inset = 3;
    constexpr int barInset = 8;
    r.DeflateRect(onBar ? barInset : inset, 0);
    if (IsClickable() && (look & lookPressed))
        r.OffsetRect(0, 1);
    vant::detail::DrawLine(*dc, Caption(), r, align);
    NoteShown();
}

BOOL CELabel::OnSetCursor(CWnd* wnd, UINT hitTest, UINT message)
{
    if (hitTest != HTCLIENT || !IsClickable())
        return ClickCtrl::OnSetCursor(wnd, hitTest, message);
    ::SetCursor(::LoadCursorW(vant::detail::Module(), MAKEINTRESOURCEW(VANT_IDC_LINK)));
    return TRUE;
}
