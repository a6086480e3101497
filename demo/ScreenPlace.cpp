#include "demo/ScreenPlace.h"

#include "demo/detail/Layout.h"
#include "demo/detail/WindowPlace.h"

#include <algorithm>
#include <vector>

namespace demo
{
namespace
{

BOOL CALLBACK AddWorkArea(HMONITOR monitor, HDC, LPRECT, LPARAM list)
{
    MONITORINFO info{};
    info.cbSize = sizeof info;
    if (::GetMonitorInfoW(monitor, &info))
        reinterpret_cast<std::vector<Box>*>(list)->push_back(BoxOf(info.rcWork));
    return TRUE;
}

std::vector<Box> WorkAreas()
{
    std::vector<Box> areas;
    ::EnumDisplayMonitors(nullptr, nullptr, AddWorkArea, reinterpret_cast<LPARAM>(&areas));
    return areas;
}

} // namespace

CSize FrameAround(int width, int height, CDpi dpi) noexcept
{
    CRect rect(0, 0, dpi.ToPx(width), dpi.ToPx(height));
    ::AdjustWindowRect(&rect, mainStyle, FALSE);
    return rect.Size();
}

Box FirstPlace() noexcept
{
    const CSize size = FrameAround(Layout::designWidth, Layout::designHeight, CDpi::Of(::GetDesktopWindow()));
    CRect work;
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    const int width = std::min<int>(size.cx, work.Width());
    const int height = std::min<int>(size.cy, work.Height());
    const int left = work.left + (work.Width() - width) / 2;
    const int top = work.top + (work.Height() - height) / 2;
    return {left, top, left + width, top + height};
}

Box PlaceAgain(const Box& saved)
{
    return KeepOnScreen(saved, WorkAreas());
}

Box BoxOf(const RECT& rect) noexcept
{
    return {static_cast<int>(rect.left), static_cast<int>(rect.top), static_cast<int>(rect.right),
            static_cast<int>(rect.bottom)};
}

CRect RectOf(const Box& box) noexcept
{
    return {box.left, box.top, box.right, box.bottom};
}

} // namespace demo
