#include "windows/detail/MsgPlace.h"

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

bool IsInside(const CRect& r, const CRect& area)
{
    return r.left >= area.left && r.top >= area.top && r.right <= area.right && r.bottom <= area.bottom;
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

HWND MsgOwner()
{
    const HWND main = ::AfxGetMainWnd()->GetSafeHwnd();
    return ::IsWindow(main) ? ::GetAncestor(main, GA_ROOT) : nullptr;
}

CRect MsgPlace(HWND over, CSize size)
{
    const CRect area = WorkArea(over);
    CRect middle = area;
    if (over && ::IsWindowVisible(over) && !::IsIconic(over))
        ::GetWindowRect(over, &middle);
    const CPoint at(middle.left + (middle.Width() - size.cx) / 2,
                    middle.top + (middle.Height() - size.cy) / 2);
    return MovedInto(CRect(at, size), area);
}

CRect MsgPlaceBeside(const CRect& place, const CRect& other)
{
    CRect common;
    if (!common.IntersectRect(place, other))
        return place;
    const CRect area = WorkArea(place.CenterPoint());
    const CPoint moves[] = {
        {0, other.bottom - place.top},
        {0, other.top - place.bottom},
        {other.right - place.left, 0},
        {other.left - place.right, 0},
    };
    for (const CPoint& move : moves) {
        CRect beside = place;
        beside.OffsetRect(move);
        if (IsInside(beside, area))
            return beside;
    }
    return place;
}

} // namespace vant::detail
