#pragma once

#include <windows.h>

namespace vant::detail
{

/** Whether a key was held down when the message that is being handled came. @param key  virtual key code */
inline bool IsKeyDown(int key) noexcept
{
    return ::GetKeyState(key) < 0;
}

} // namespace vant::detail
