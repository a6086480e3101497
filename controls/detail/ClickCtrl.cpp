#include "controls/detail/ClickCtrl.h"

#include "controls/detail/CtrlLook.h"
#include "platform/Vant.h"

namespace vant::detail
{

namespace
{

constexpr UINT repeatedKey = 0x4000; // in the flags of OnKeyDown: the key was down before

} // namespace

BEGIN_MESSAGE_MAP(ClickCtrl, CECtrl)
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_MOUSEMOVE()
    ON_WM_CAPTURECHANGED()
    ON_WM_KEYDOWN()
    ON_WM_KEYUP()
    ON_WM_KILLFOCUS()
    ON_WM_ENABLE()
    ON_WM_SHOWWINDOW()
    ON_WM_GETDLGCODE()
END_MESSAGE_MAP()

void ClickCtrl::Retreive() {}

void ClickCtrl::AutoUpdate(double)
{
    if (!m_hWnd)
        return;
    if (IsEnabled() != (IsWindowEnabled() != FALSE))
        Update(0);
    else if (ShownState() != m_shownState || Caption() != m_shownCaption)
        Invalidate(FALSE);
}

void ClickCtrl::NoteShown()
{
    m_shownState = ShownState();
    m_shownCaption = Caption();
}

bool ClickCtrl::HasFocus() const
{
    return detail::HasFocus(*this);
}

vant::skins::Look ClickCtrl::DrawnLook() const
{
    return LookOf(*this);
}

void ClickCtrl::ShowPressed(bool pressed)
{
    if (pressed == ((look & lookPressed) != 0))
        return;
    look ^= lookPressed;
    Invalidate(FALSE);
}

void ClickCtrl::Hold(Held by)
{
    const bool hadMouse = m_held == Held::Mouse;
    m_held = by;
    ShowPressed(by != Held::No);
    if (by == Held::Mouse)
        SetCapture();
    else if (hadMouse && ::GetCapture() == m_hWnd)
        ::ReleaseCapture();
}

bool ClickCtrl::IsInside(CPoint px) const
{
    CRect client;
    GetClientRect(&client);
    return client.PtInRect(px) != FALSE;
}

void ClickCtrl::Click()
{
    constexpr int clickSound = 0;
    Vant::Snd(clickSound);
    OnClick();
}

int ClickCtrl::Press()
{
    if (!m_hWnd || !IsWindowEnabled() || !IsClickable())
        return 0;
    Click();
    return 1;
}

int ClickCtrl::Jog(int, double, int)
{
    return 0;
}

int ClickCtrl::JogSwitch(bool isOn, int notches)
{
    if (notches == 0 || isOn == (notches > 0))
        return 0;
    Click();
    return 1;
}

void ClickCtrl::OnLButtonDown(UINT flags, CPoint point)
{
    if (!IsClickable())
        return CECtrl::OnLButtonDown(flags, point);
    Hold(Held::Mouse);
    // The last thing: a field that loses the focus calls its callbacks, which may disable or destroy this
    // control, or show a message box that takes the mouse. The click is cancelled then.
    if (GetStyle() & WS_TABSTOP)
        SetFocus();
}

void ClickCtrl::OnMouseMove(UINT flags, CPoint point)
{
    if (m_held == Held::Mouse)
        ShowPressed(IsInside(point));
    CECtrl::OnMouseMove(flags, point);
}

void ClickCtrl::OnLButtonUp(UINT flags, CPoint point)
{
    if (m_held != Held::Mouse)
        return CECtrl::OnLButtonUp(flags, point);
    Hold(Held::No);
    if (IsInside(point))
        Click();
}

void ClickCtrl::OnCaptureChanged(CWnd* to)
{
    if (m_held == Held::Mouse)
        Hold(Held::No);
    CECtrl::OnCaptureChanged(to);
}

void ClickCtrl::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    const bool first = (flags & repeatedKey) == 0;
    if (key == VK_SPACE && IsClickable()) {
        if (first && m_held == Held::No)
            Hold(Held::Key);
    } else if (key == VK_RETURN && IsClickable()) {
        if (first && m_held == Held::No)
            Click();
    } else if (key == VK_ESCAPE && m_held != Held::No) {
        Hold(Held::No);
    } else {
        CECtrl::OnKeyDown(key, repeat, flags);
    }
}

void ClickCtrl::OnKeyUp(UINT key, UINT repeat, UINT flags)
{
    if (key != VK_SPACE || m_held != Held::Key)
        return CECtrl::OnKeyUp(key, repeat, flags);
    Hold(Held::No);
    Click();
}

void ClickCtrl::OnKillFocus(CWnd* to)
{
    if (m_held == Held::Key)
        Hold(Held::No);
    CECtrl::OnKillFocus(to);
}

void ClickCtrl::OnEnable(BOOL enable)
{
    if (!enable)
        Hold(Held::No);
    CECtrl::OnEnable(enable);
}

void ClickCtrl::OnShowWindow(BOOL show, UINT status)
{
    if (!show)
        Hold(Held::No);
    CECtrl::OnShowWindow(show, status);
}

UINT ClickCtrl::OnGetDlgCode()
{
    // In a dialog Enter belongs to the control that has the focus, and not to the dialog's own button.
    const auto* const asked = reinterpret_cast<const MSG*>(GetCurrentMessage()->lParam);
    const bool enter = asked && asked->message == WM_KEYDOWN && asked->wParam == VK_RETURN;
    return DLGC_BUTTON | (enter && IsClickable() ? DLGC_WANTMESSAGE : 0);
}

} // namespace vant::detail
