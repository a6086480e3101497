#include "controls/CDpi.h"

#include "controls/detail/SystemDpi.h"

#include <algorithm>
#include <cstdint>
#include <limits>

constexpr int CDpi::base;

namespace
{

constexpr wchar_t property[] = L"VantCore.Dpi";

/** value * to / from, rounded to the nearest, halves away from zero; what no int holds becomes the nearest
 * one. */
int Rescale(int value, int to, int from) noexcept
{
    const std::int64_t twice = std::int64_t{2} * value * to;
    const std::int64_t rounded = (twice + (twice < 0 ? -from : from)) / (std::int64_t{2} * from);
    return static_cast<int>(
        std::clamp<std::int64_t>(rounded, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

CPoint Rescale(CPoint p, int to, int from) noexcept
{
    return {Rescale(p.x, to, from), Rescale(p.y, to, from)};
}

CRect Rescale(const CRect& r, int to, int from) noexcept
{
    return {Rescale(r.TopLeft(), to, from), Rescale(r.BottomRight(), to, from)};
}

} // namespace

CDpi CDpi::Of(HWND wnd) noexcept
{
    if (!wnd)
        return {};
    for (HWND at = wnd; at; at = ::GetAncestor(at, GA_PARENT)) {
        if (const HANDLE own = ::GetPropW(at, property))
            return CDpi(static_cast<int>(reinterpret_cast<std::intptr_t>(own)));
    }
    return CDpi(vant::detail::SystemDpi(wnd));
}

void CDpi::Set(HWND wnd) const noexcept
{
    ::SetPropW(wnd, property, reinterpret_cast<HANDLE>(static_cast<std::intptr_t>(m_dpi)));
}

int CDpi::ToPx(int units) const noexcept
{
    return Rescale(units, m_dpi, base);
}

CPoint CDpi::ToPx(CPoint units) const noexcept
{
    return Rescale(units, m_dpi, base);
}

CRect CDpi::ToPx(const CRect& units) const noexcept
{
    return Rescale(units, m_dpi, base);
}

int CDpi::ToUnits(int px) const noexcept
{
    return Rescale(px, base, m_dpi);
}

CPoint CDpi::ToUnits(CPoint px) const noexcept
{
    return Rescale(px, base, m_dpi);
}

CRect CDpi::ToUnits(const CRect& px) const noexcept
{
    return Rescale(px, base, m_dpi);
}

void CDpi::Apply(CDC& dc) const
{
    if (IsUnit())
        return;
    dc.SetMapMode(MM_ANISOTROPIC);
    dc.SetWindowExt(base, base);
    dc.SetViewportExt(m_dpi, m_dpi);
}
