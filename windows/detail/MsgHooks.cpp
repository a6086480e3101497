// How Vant::MsgBox(), Vant::Init() and Vant::Exit() reach the message boxes and the tool tip.
#include "controls/detail/HoverHook.h"
#include "platform/Vant.h"
#include "platform/detail/Startup.h"
#include "platform/detail/WindowHooks.h"
#include "windows/CEMsgBox.h"
#include "windows/CEMsgBoxModal.h"
#include "windows/CEToolTip.h"
#include "windows/detail/UiThread.h"

#include <algorithm>
#include <memory>

namespace
{

using vant::detail::WindowHooks;

// Open from Vant::Init() to Vant::Exit().
vant::detail::UiThread ui;

// What the platform class does without boxes, for the time outside of these two.
WindowHooks without;

int Ask(int type, const CString& text)
{
    const auto box = std::make_unique<CEMsgBoxModal>();
    box->DisplayMsg(type, text);
    const auto answer = static_cast<int>(box->DoModal());
    box->DestroyWindow();
    // The dialog's -1 is no answer.
    return std::max(answer, 0);
}

int ShowModal(int type, const CString& text)
{
    if (!ui.IsOpen())
        return without.showModal(type, text);
    int answer = 0;
    ui.Run([&] { answer = Ask(type, text); });
    return answer;
}

void Show(int type, const CString& text, int ticks)
{
    const auto show = [type, text, ticks] {
        if (!Vant::msgBox.DisplayMsg(type, text, ticks))
            without.show(type, text, ticks);
    };
    if (ui.IsHere())
        show();
    else if (!ui.Post(show))
        without.show(type, text, ticks);
}

void Moved(CECtrl& ctrl)
{
    Vant::toolTip.Follow(ctrl);
}

void Left(CECtrl& ctrl)
{
    Vant::toolTip.Leave(ctrl);
}

void CreateToolTip()
{
    ui.Open();
    Vant::toolTip.Create();
    vant::detail::Hover() = {Moved, Left};
}

void DestroyWindows()
{
    vant::detail::Hover() = {};
    Vant::toolTip.DestroyWindow();
    Vant::msgBox.DestroyWindow();
    ui.Close();
}

const bool isConnected = [] {
    WindowHooks& hooks = vant::detail::Windows();
    without = hooks;
    hooks.showModal = ShowModal;
    hooks.show = Show;
    vant::detail::Startup().createToolTip = CreateToolTip;
    vant::detail::Startup().destroyWindows = DestroyWindows;
    return true;
}();

} // namespace
