#include "platform/Vant.h"
#include "platform/detail/HelpRegistry.h"
#include "platform/detail/SystemCalls.h"

namespace vant::detail
{

HelpRegistry& Help() noexcept
{
    static constinit HelpRegistry registry;
    return registry;
}

} // namespace vant::detail

namespace
{

HWND WindowUnderMouse() noexcept
{
    POINT mouse{};
    return ::GetCursorPos(&mouse) ? ::WindowFromPoint(mouse) : nullptr;
}

CString TopicOf(HWND wnd)
{
    const vant::detail::HelpRegistry& registry = vant::detail::Help();
    CString topic;
    HWND parent = nullptr;
    if (registry.findControl && registry.findControl(wnd, topic, parent)) {
        if (!topic.IsEmpty())
            return topic;
        wnd = parent;
    }
    // The parent is looked up among the windows only, even where it is a control itself.
    topic.Empty();
    if (registry.findWindow && registry.findWindow(wnd, topic) && !topic.IsEmpty())
        return topic;
    return Vant::helpDefault;
}

} // namespace

void Vant::SpawnHelp()
{
    SpawnHelpTopic(TopicOf(WindowUnderMouse()));
}

void Vant::SpawnHelpTopic(CString topic)
{
    for (const wchar_t dropped : {L' ', L',', L'(', L')', L'/'})
        topic.Remove(dropped);
    if (topic.IsEmpty())
        return;
    const CString page = topic + L".htm";
    const CWnd* const mainWnd = AfxGetMainWnd();
    vant::detail::Calls().openHelp(mainWnd ? mainWnd->GetSafeHwnd() : nullptr, helpFile, page);
    Status(0, 0, L"Spawned Help Topic = %s", static_cast<LPCWSTR>(page));
}
