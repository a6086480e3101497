#pragma once

#include "resources/Skins.h"

#include <afxwin.h>

namespace vant::detail
{

/** How a push button looks. */
struct BtnFace {
    vant::skins::Look drawn;
    bool isOn;    ///< switched on
    bool isHover; ///< the mouse is over it, whatever else it looks like
};

/** Draws the face, without its skin an outline with the current pen. @param back  what it stands on */
void DrawBtnFace(CDC& dc, const CRect& r, const BtnFace& face, COLORREF back);

/** Draws a caption in the middle of `r`, one unit lower while pressed. @param txtCol  of a button at rest */
void DrawBtnCaption(CDC& dc, const CString& caption, CRect r, const BtnFace& face, COLORREF txtCol);

} // namespace vant::detail
