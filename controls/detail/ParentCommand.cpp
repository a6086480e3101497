#include "controls/detail/ParentCommand.h"

namespace vant::detail
{

void SendCommand(HWND ctrl, int id, int code)
{
    if (id && ::IsWindow(ctrl))
        ::SendMessageW(::GetAncestor(ctrl, GA_PARENT), WM_COMMAND,
                       MAKEWPARAM(static_cast<WORD>(id), static_cast<WORD>(code)),
                       reinterpret_cast<LPARAM>(ctrl));
}

} // namespace vant::detail
