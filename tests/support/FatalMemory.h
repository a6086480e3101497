#pragma once

#include "platform/detail/SystemCalls.h"

#include <cstddef>
#include <cstdio>
#include <cstdlib>

namespace vant::test
{

/** Prints the last message of a process that is about to die, "[caption] text", instead of showing it. */
inline void PrintFatalErrors()
{
    vant::detail::Calls().showFatalError = [](LPCWSTR text, LPCWSTR caption) {
        std::fprintf(stderr, "[%ls] %ls\n", caption, text);
        std::fflush(stderr);
    };
}

/** From now on blocks of up to so many bytes are granted, and larger ones are not. */
inline void LeaveNoRoomBeyond(std::size_t bytes)
{
    static std::size_t room = 0;
    room = bytes;
    vant::detail::Calls().reallocate = [](void* block, std::size_t size) {
        return size <= room ? std::realloc(block, size) : nullptr;
    };
}

} // namespace vant::test
