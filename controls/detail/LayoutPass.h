#pragma once

#include "controls/CDpi.h"

#include <afxwin.h>

namespace vant::detail
{

/** One layout of the children of a window. Children that are where they belong are left alone, the others are
 *  moved without being redrawn, and the window is redrawn once at the end. Passes of the same window inside
 * one another count as one. */
class LayoutPass
{
public:
    /** @param current  where the window keeps its pass; null outside any */
    LayoutPass(HWND wnd, LayoutPass*& current);
    ~LayoutPass();
    LayoutPass(const LayoutPass&) = delete;
    LayoutPass& operator=(const LayoutPass&) = delete;

    /** Moves a child, in units, and shows it if `show` says so. */
    void Place(HWND child, const CRect& place, bool show);
    /** Shows a child where it is. */
    void Show(HWND child);
    /** Hides a child; the focus, should it be inside, goes to `focusTo`. */
    void Hide(HWND child, HWND focusTo);

private:
    bool HasFocus(HWND child) const noexcept;

    const HWND m_wnd;
    const CDpi m_dpi;
    LayoutPass*& m_current;
    LayoutPass& m_outermost;
    bool m_changed = false;
};

} // namespace vant::detail
