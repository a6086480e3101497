#pragma once

#include "core/VantApi.h"

#include <afxwin.h>

/** How many pixels of a window make one layout unit.
 *
 *  Controls, categories and windows are laid out and drawn in units of 1/96 inch: at 96 DPI a unit is a
 * pixel. This class alone turns units into pixels and back. What places windows or takes positions from
 * messages converts with it; what paints gets a device context that takes units already (Apply()), with
 * fonts, lines and skins scaled by the system. A scale is copied by value and belongs to nobody. */
class VANT_API CDpi
{
public:
    static constexpr int base = 96; ///< dots per inch at which a unit is a pixel

    CDpi() noexcept = default;
    /** @param dpi  dots per inch; one that is not positive counts as 96 */
    explicit CDpi(int dpi) noexcept
        : m_dpi(dpi > 0 ? dpi : base)
    {
    }

    /** The scale of a window: what Set() gave it or the nearest of its parents, else the system's for the
     * window; 96 DPI for a null handle. */
    static CDpi Of(HWND wnd) noexcept;

    /** Gives a window, and its children that have none of their own, this scale from now on. The platform
     * windows do so when they are created and when they come to another monitor. */
    void Set(HWND wnd) const noexcept;

    /** Pixels per inch. */
    int Dpi() const noexcept { return m_dpi; }
    /** Whether a unit is a pixel: 96 dots per inch. */
    bool IsUnit() const noexcept { return m_dpi == base; }
    bool operator==(const CDpi&) const noexcept = default;

    /** @name Units to pixels
     *  Each rounds to the nearest, halves away from zero. A rectangle's edges are rounded one by one, so that
     * neighbours still meet. @{ */
    int ToPx(int units) const noexcept;
    CPoint ToPx(CPoint units) const noexcept;
    CRect ToPx(const CRect& units) const noexcept;
    /** @} */

    /** @name Pixels to units
     *  Each rounds as ToPx() does. @{ */
    int ToUnits(int px) const noexcept;
    CPoint ToUnits(CPoint px) const noexcept;
    CRect ToUnits(const CRect& px) const noexcept;
    /** @} */

    /** Lets a device context take units instead of pixels. At 96 DPI it stays as it is. */
    void Apply(CDC& dc) const;

private:
    int m_dpi = base;
};
