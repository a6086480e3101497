#include "platform/detail/Module.h"

// The linker defines this at the start of every image, so that no DllMain is needed to learn the handle.
extern "C" IMAGE_DOS_HEADER __ImageBase;

namespace vant::detail
{

HINSTANCE Module() noexcept
{
    return reinterpret_cast<HINSTANCE>(&__ImageBase);
}

} // namespace vant::detail
