#include "controls/detail/HoverHook.h"

namespace vant::detail
{

HoverHook& Hover() noexcept
{
    static constinit HoverHook hook;
    return hook;
}

} // namespace vant::detail
