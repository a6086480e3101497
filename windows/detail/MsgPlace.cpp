#include "windows/detail/MsgPlace.h"

namespace vant::detail
{

namespace
{

bool IsInside(const CRect& r, const CRect& area)
{
    return r.left >= area.left && r.top >= area.top && r.right <= area.right && r.bottom <= area.bottom;
}

} // namespace

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
