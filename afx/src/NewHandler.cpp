#include "vafx/NewHandler.h"

#include "detail/NewHandler.h"
#include "vafx/CSimpleException.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace
{

std::atomic<_PNH> g_newHandler{nullptr};

bool Retry(std::size_t bytes)
{
    const _PNH handler = g_newHandler;
    return handler != nullptr && handler(bytes) != 0;
}

// The C++ run-time library does not tell its handler how much was asked for.
void OnNewFailed()
{
    if (!Retry(0))
        throw std::bad_alloc();
}

} // namespace

_PNH AfxSetNewHandler(_PNH pfnNewHandler)
{
    std::set_new_handler(pfnNewHandler != nullptr ? &OnNewFailed : nullptr);
    return g_newHandler.exchange(pfnNewHandler);
}

_PNH AfxGetNewHandler()
{
    return g_newHandler;
}

void* vafx::detail::Allocate(std::size_t bytes)
{
    for (;;) {
        if (void* const memory = std::malloc(bytes))
            return memory;
        if (!Retry(bytes))
            AfxThrowMemoryException();
    }
}
