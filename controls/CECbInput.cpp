// CECb: mouse and keyboard.
#include "controls/CECb.h"

#include "controls/detail/DropList.h"
#include "controls/detail/PressFocus.h"
#include "platform/Vant.h"

#include <algorithm>

BEGIN_MESSAGE_MAP(CECb, CECtrl)
    ON_WM_DESTROY()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_MOUSEMOVE()
    ON_WM_CAPTURECHANGED()
    ON_WM_MOUSEWHEEL()
    ON_WM_KEYDOWN()
    ON_WM_SYSKEYDOWN()
    ON_WM_SYSKEYUP()
    ON_WM_CHAR()
    ON_WM_GETDLGCODE()
    ON_WM_KILLFOCUS()
END_MESSAGE_MAP()

void CECb::OnDestroy()
{
    m_list->Close();
    CECtrl::OnDestroy();
}

void CECb::OnKillFocus(CWnd* to)
{
    m_altAlone = false;
    Close();
    CECtrl::OnKillFocus(to);
}

void CECb::OnLButtonDown(UINT, CPoint)
{
    constexpr int clickSound = 0;
    if (IsOpen())
        return Close();
    if (!vant::detail::FocusByPress(m_hWnd) || !Open())
        return;
    Vant::Snd(clickSound);
    m_held = true;
    look |= lookPressed;
    SetCapture();
}

void CECb::OnMouseMove(UINT flags, CPoint point)
{
    if (!m_held)
        return CECtrl::OnMouseMove(flags, point);
    ClientToScreen(&point);
    m_list->HoverAt(point);
}

void CECb::OnLButtonUp(UINT flags, CPoint point)
{
    if (!m_held)
        return CECtrl::OnLButtonUp(flags, point);
    ::ReleaseCapture();
    ClientToScreen(&point);
    // Pressed on the box, and released on an entry. Released on the box the list stays open.
    if (CELEnt* const ent = m_list->EntAtScreen(point))
        Choose(ent);
}

void CECb::OnCaptureChanged(CWnd* to)
{
    m_held = false;
    look &= ~lookPressed;
    CECtrl::OnCaptureChanged(to);
}

BOOL CECb::OnMouseWheel(UINT flags, short delta, CPoint point)
{
    if (IsOpen()) {
        m_list->TakeWheel(delta);
        return TRUE;
    }
    if (::GetFocus() != m_hWnd)
        return CECtrl::OnMouseWheel(flags, delta, point);
    const int notches = m_wheel.Take(delta);
    const CELEnt* const shown = GetSel();
    const int to = (shown ? shown->Index() : -1) - notches;
    CELEnt* const ent = List().GetAt(std::clamp(to, 0, std::max(List().GetCount() - 1, 0)));
    if (notches && ent && ent != shown)
        Choose(ent);
    return TRUE;
}

void CECb::ChooseCurrent()
{
    if (CELEnt* const ent = m_list->Current())
        Choose(ent);
    else
        Close();
}

void CECb::OpenOrChoose()
{
    if (IsOpen())
        ChooseCurrent();
    else
        Open();
}

int CECb::Press()
{
    if (!m_hWnd || !IsWindowEnabled())
        return 0;
    OpenOrChoose();
    return 1;
}

int CECb::Jog(int notches, double step, int fine)
{
    m_list->Follow();
    return m_list->Jog(notches, step, fine);
}

void CECb::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    m_altAlone = false;
    switch (key) {
    case VK_F4:
        return OpenOrChoose();
    case VK_RETURN:
        if (IsOpen())
            return ChooseCurrent();
        break;
    case VK_ESCAPE:
        if (IsOpen())
            return Close();
        break;
    default:
        m_list->Follow();
        if (m_list->TakeKey(key))
            return;
        break;
    }
    CECtrl::OnKeyDown(key, repeat, flags);
}

void CECb::OnSysKeyDown(UINT key, UINT repeat, UINT flags)
{
    m_altAlone = key == VK_MENU;
    // First, for the system to learn that Alt was not pressed for the menu.
    CECtrl::OnSysKeyDown(key, repeat, flags);
    if (key == VK_UP || key == VK_DOWN)
        OpenOrChoose();
    else if (key != VK_MENU)
        Close();
}

void CECb::OnSysKeyUp(UINT key, UINT repeat, UINT flags)
{
    if (key == VK_MENU && m_altAlone && IsOpen()) {
        // Only the list is left, and no menu of the window entered.
        m_altAlone = false;
        return Close();
    }
    CECtrl::OnSysKeyUp(key, repeat, flags);
}

void CECb::OnChar(UINT character, UINT repeat, UINT flags)
{
    constexpr UINT blank = L' ';
    if (m_list->TakeChar(static_cast<wchar_t>(character)))
        return;
    if (character == blank)
        return OpenOrChoose();
    CECtrl::OnChar(character, repeat, flags);
}

UINT CECb::OnGetDlgCode()
{
    const auto* const asked = reinterpret_cast<const MSG*>(GetCurrentMessage()->lParam);
    const bool isForList = IsOpen() && asked && asked->message == WM_KEYDOWN &&
                           (asked->wParam == VK_RETURN || asked->wParam == VK_ESCAPE);
    return DLGC_WANTARROWS | DLGC_WANTCHARS | (isForList ? DLGC_WANTMESSAGE : 0);
}

BOOL CECb::PreTranslateMessage(MSG* msg)
{
    if (!IsOpen() || msg->message != WM_KEYDOWN)
        return CECtrl::PreTranslateMessage(msg);
    const HWND self = m_hWnd;
    switch (msg->wParam) {
    case VK_RETURN:
    case VK_ESCAPE:
        ::TranslateMessage(msg);
        ::DispatchMessageW(msg);
        return TRUE;
    case VK_TAB:
        ChooseCurrent();
        // A callback may have destroyed the window; otherwise Tab goes on.
        if (!::IsWindow(self))
            return TRUE;
        break;
    default:
        break;
    }
    return CECtrl::PreTranslateMessage(msg);
}
