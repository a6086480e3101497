#include "controls/detail/WorkArea.h"

#include <algorithm>

namespace vant::detail
{

namespace
{

CRect WorkAreaOf(HMONITOR monitor)
{
    MONITORINFO info{};
    info.cbSize = sizeof info;
    if (::GetMonitorInfoW(monitor, &info))
        return info.rcWork;
    return {0, 0, ::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN)};
}

} // namespace

CRect WorkArea(HWND wnd)
{
    return WorkAreaOf(::MonitorFromWindow(wnd, wnd ? MONITOR_DEFAULTTONEAREST : MONITOR_DEFAULTTOPRIMARY));
}

CRect WorkArea(CPoint screenPt)
{
    return WorkAreaOf(::MonitorFromPoint(screenPt, MONITOR_DEFAULTTONEAREST));
}

CRect MovedInto(CRect r, const CRect& area)
{
    r.OffsetRect(std::min<int>(area.right - r.right, 0), std::min<int>(area.bottom - r.bottom, 0));
    r.OffsetRect(std::max<int>(area.left - r.left, 0), std::max<int>(area.top - r.top, 0));
    return r;
}

} // namespace vant::detail
