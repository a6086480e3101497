#include "controls/detail/CtrlText.h"

namespace vant::detail
{

void DrawLine(CDC& dc, const CString& text, CRect r, UINT align)
{
    if (text.IsEmpty() || r.IsRectEmpty())
        return;
    dc.DrawText(text, -1, &r, align | DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX);
}

} // namespace vant::detail
