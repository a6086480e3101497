// What the keys do that no control wants.
#include "demo/bridge/CBridge.h"

#include "demo/screen/Focus.h"
#include "demo/session/Commands.h"
#include "platform/Vant.h"
#include "windows/CCslAlm.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace demo
{
namespace
{

/** Whether a control has the keyboard, or a view, or the alarms, whose keys select and acknowledge: they have
 * a use of their own for every key. */
bool IsInControl()
{
    const HWND focus = ::GetFocus();
    if (!focus)
        return false;
    const auto style = static_cast<DWORD>(::GetWindowLongPtrW(focus, GWL_STYLE));
    return (style & CECtrl::keepFocus) != 0 || focus == Vant::alarm.m_hWnd ||
           dynamic_cast<CSceneWnd*>(CWnd::FromHandlePermanent(focus));
}

} // namespace

BOOL CBridge::PreTranslateMessage(MSG* message)
{
    if (message->message == WM_KEYDOWN && TakeKey(static_cast<UINT>(message->wParam)))
        return TRUE;
    if (message->message == WM_CHAR && TakeCharacter(static_cast<wchar_t>(message->wParam)))
        return TRUE;
    return CVantWnd::PreTranslateMessage(message);
}

bool CBridge::TakeKey(UINT key)
{
    if (key == VK_F6) {
        GoToNextWindow();
        return true;
    }
    const CVantWnd* const view = dynamic_cast<CSceneWnd*>(FocusedPopup());
    if (key != VK_ESCAPE || (view ? ::GetCapture() != nullptr : IsInControl()))
        return false; // in a view it ends what the mouse does there
    // One level at a time: out of a docked window first, so that leaving a field twice closes nothing.
    if (FocusedGuest() || FocusedPopup())
        SetFocus();
    else
        PostMessage(WM_CLOSE);
    return true;
}

CVantWnd* CBridge::FocusedPopup()
{
    for (CVantWnd* const popup : Popups())
        if (HoldsFocus(popup->m_hWnd))
            return popup;
    return nullptr;
}

CVantWnd* CBridge::FocusedGuest()
{
    for (const auto& dock : m_docks)
        if (HoldsFocus(dock->Guest().m_hWnd))
            return &dock->Guest();
    return nullptr;
}

bool CBridge::TakeCharacter(wchar_t character)
{
    if (IsInControl())
        return false;
    const std::optional<Command> command = CommandOf(character);
    if (command)
        Carry(*command, m_session);
    return command.has_value();
}

void CBridge::GoToNextWindow()
{
    // The bridge itself, then the set-up, the consoles and the views.
    std::vector<CWnd*> windows{this, &m_setup};
    for (const auto& dock : m_docks)
        if (&dock->Guest() != &m_setup && dock->IsWindowVisible())
            windows.push_back(&dock->Guest());
    for (CVantWnd* const popup : Popups())
        if (popup->IsWindowVisible())
            windows.push_back(popup);
    CWnd* const focused = FocusedPopup() ? FocusedPopup() : FocusedGuest();
    const auto current = std::ranges::find(windows, focused);
    const auto index = current != windows.end() ? current - windows.begin() : 0;
    windows[static_cast<std::size_t>(index + 1) % windows.size()]->SetFocus();
}

void CBridge::OnActivate(UINT state, CWnd* other, BOOL minimized)
{
    if (state == WA_INACTIVE) {
        m_focus = ::GetFocus();
        CVantWnd::OnActivate(state, other, minimized);
        return;
    }
    CVantWnd::OnActivate(state, other, minimized);
    if (!minimized && m_focus && ::IsChild(m_hWnd, m_focus))
        ::SetFocus(m_focus);
}

} // namespace demo
