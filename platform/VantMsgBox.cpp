#include "platform/Vant.h"
#include "platform/detail/SystemCalls.h"
#include "platform/detail/WindowHooks.h"

#include <cstdarg>

namespace vant::detail
{

namespace
{

UINT SystemStyle(int type) noexcept
{
    UINT style = MB_TASKMODAL;
    if (type & Vant::msgStopIcon)
        style |= MB_ICONERROR;
    else if (type & Vant::msgWarnIcon)
        style |= MB_ICONWARNING;
    else
        style |= MB_ICONINFORMATION;

    const bool cancel = (type & Vant::msgCancel) != 0;
    if (type & Vant::msgYesNo)
        style |= cancel ? MB_YESNOCANCEL : MB_YESNO;
    else
        style |= cancel ? MB_OKCANCEL : MB_OK;
    return style;
}

int ShowSystemBox(int type, const CString& text)
{
    return Calls().messageBox(text, Vant::appTitle, SystemStyle(type));
}

void ShowOnConsole(int, const CString& text, int)
{
    Vant::Console(0, L"%s", text.GetString());
}

constinit WindowHooks inUse{nullptr, &ShowSystemBox, &ShowOnConsole};

} // namespace

WindowHooks& Windows() noexcept
{
    return inUse;
}

} // namespace vant::detail

int Vant::MsgBox(int type, CString fmt, ...)
{
    constexpr int ticks = 5;
    const bool modal = (type & msgModal) != 0;
    va_list args;
    va_start(args, fmt);
    int result = modal ? 0 : 1;
    try {
        CString text;
        text.FormatV(fmt, args);
        if (modal)
            result = vant::detail::Windows().showModal(type, text);
        else
            vant::detail::Windows().show(type, text, ticks);
    } catch (CException* e) {
        e->Delete();
    } catch (...) {
        // A message that cannot be shown is no reason to end its caller.
    }
    va_end(args);
    return result;
}
