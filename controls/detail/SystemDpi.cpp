#include "controls/detail/SystemDpi.h"

namespace vant::detail
{

int SystemDpi(HWND wnd) noexcept
{
    using DpiForWindow = UINT(WINAPI*)(HWND);
    // Systems before Windows 10 1607 do not have it, and would not load a library that imports it.
    static const auto dpiForWindow = reinterpret_cast<DpiForWindow>(
        reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(L"user32.dll"), "GetDpiForWindow")));
    if (wnd && dpiForWindow)
        return static_cast<int>(dpiForWindow(wnd));
    const HDC screen = ::GetDC(nullptr);
    const int dpi = screen ? ::GetDeviceCaps(screen, LOGPIXELSY) : 0;
    if (screen)
        ::ReleaseDC(nullptr, screen);
    return dpi;
}

} // namespace vant::detail
