#pragma once

#include "controls/detail/RowScroll.h"

#include <afxwin.h>

class CVantWnd;

namespace vant::detail
{

/** The scroll bar at the right edge of a platform window. Like the system's own it is a part of the window's
 * frame: the client area is narrower by it, so that no child and no drawing of the window gets under it or
 * over it. It is no stop of the Tab key and never has the focus. A click beside the thumb turns a page; the
 * thumb can be dragged until the button is released or the mouse taken away. Lengths are units. */
class ScrollStrip
{
public:
    static constexpr int width = 12;
    static constexpr int leastThumb = 24; ///< can still be grasped
    enum class Look { Normal, Hover, Held };

    /** Draws a scroll bar. @param dc  takes units */
    static void Draw(CDC& dc, const CRect& bar, RowScroll::Span thumb, Look look);
    /** The same for a bar that lies. */
    static void DrawAcross(CDC& dc, const CRect& bar, RowScroll::Span thumb, Look look);

    /** @param wnd  outlives this */
    explicit ScrollStrip(CVantWnd& wnd) noexcept
        : m_wnd(wnd)
    {
    }

    /** Shows what is in view: `page` of `content`, from `first` on. */
    void Show(int content, int page, int first);
    /** Takes the bar away, and ends the drag of its thumb. */
    void Hide();

    /** @name What the window passes on @{ */
    /** Sees a message first. @return whether it was the bar's, and is done; the point of a WM_NCHITTEST then
     * is on the bar. The window may be gone when a click was taken. */
    bool Takes(UINT message, LPARAM lParam);
    /** Cuts the bar off a client area, pixels: after WM_NCCALCSIZE. */
    void TakeRoom(RECT& client);
    /** Draws the bar at once: after WM_NCPAINT. */
    void Redraw();
    /** @} */

private:
    CRect ScreenRc() const;
    int Length() const;
    int UnitsBelowTop(CPoint screen) const;
    RowScroll::Span Thumb() const;
    void SetRoom(int px);
    void Press(int at);
    void Drag(CPoint screen);
    void SetLook(Look look);

    CVantWnd& m_wnd;
    RowScroll m_scroll; // a row is a unit
    int m_room = 0;     // pixels that the client area is to leave; 0: not shown
    int m_taken = 0;    // pixels that it left
    int m_grip = -1;    // where the thumb was gripped, from its top; -1: it is not
    Look m_look = Look::Normal;
};

} // namespace vant::detail
