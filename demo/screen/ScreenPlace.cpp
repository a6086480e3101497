#include "demo/screen/ScreenPlace.h"

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

Box MainWorkArea() noexcept
{
    CRect work;
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    return BoxOf(work);
}

double ScaleOf(CDpi dpi) noexcept
{
    return static_cast<double>(dpi.Dpi()) / CDpi::base;
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

CDpi DpiThatFits(HWND wnd, CDpi asked) noexcept
{
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    if (!::GetMonitorInfoW(::MonitorFromWindow(wnd, MONITOR_DEFAULTTOPRIMARY), &monitor))
        return asked;
    const CRect work(monitor.rcWork);
    const CSize frame = FrameAround(0, 0, asked);
    const int wide = (work.Width() - frame.cx) * CDpi::base / Layout::leastWidth;
    const int high = (work.Height() - frame.cy) * CDpi::base / Layout::leastHeight;
    constexpr int fewest = 48; // below, nobody can read anything
    return CDpi(std::min(asked.Dpi(), std::max({std::min(wide, high), fewest})));
}

Box FirstPlace() noexcept
{
    const HWND desktop = ::GetDesktopWindow();
    const CDpi dpi = DpiThatFits(desktop, CDpi::Of(desktop));
    const CSize size = FrameAround(Layout::designWidth, Layout::designHeight, dpi);
    const CSize whole = FrameAround(Layout::designWidth, Layout::wholeHeight, dpi);
    return BridgePlace(size.cx, size.cy, whole.cy, MainWorkArea(), ScaleOf(dpi));
}

PopupPlaces FirstPlacesOfPopups(const Box& bridge, CDpi dpi) noexcept
{
    return PopupPlaces::Beside(bridge, MainWorkArea(), ScaleOf(dpi));
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
