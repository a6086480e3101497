#include "controls/detail/CtrlText.h"

#include "controls/CEStyle.h"
#include "platform/Vant.h"

namespace vant::detail
{

void DrawLine(CDC& dc, const CString& text, CRect r, UINT align)
{
    if (text.IsEmpty() || r.IsRectEmpty())
        return;
    TEXTMETRICW font{};
    dc.GetTextMetrics(&font);
    // Centred in pixels: whole units would leave it visibly low or high on a scaled screen.
    CPoint heights[] = {{0, 0}, {0, r.Height()}, {0, font.tmHeight}};
    dc.LPtoDP(heights, 3);
    const int above = (heights[1].y - heights[2].y) / 2;
    const CPoint origin = dc.OffsetViewportOrg(0, above);
    dc.DrawText(text, -1, &r, align | DT_SINGLELINE | DT_TOP | DT_END_ELLIPSIS | DT_NOPREFIX);
    dc.SetViewportOrg(origin);
}

void DrawFocus(CDC& dc, const CRect& r)
{
    const HGDIOBJ pen = Vant::cyanL.m_hObject;
    const HGDIOBJ before = pen ? ::SelectObject(dc.m_hDC, pen) : nullptr;
    CEStyle::Brdr2(&dc, r);
    if (before)
        ::SelectObject(dc.m_hDC, before);
}

} // namespace vant::detail
