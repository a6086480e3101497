// CVantWnd: background and drawing helpers.
#include "controls/CVantWnd.h"

#include "controls/detail/PaintBuffer.h"
#include "platform/Vant.h"

namespace
{

constexpr UINT oneLine = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS;

} // namespace

void CVantWnd::Draw(CDC* dc)
{
    dc->FillRect(ClientRc(), IsHlt(this) ? &Vant::tealB : &Vant::backB);
}

BOOL CVantWnd::OnEraseBkgnd(CDC* dc)
{
    // Only the first time: from then on OnPaint covers the whole window, and erasing before it would flicker.
    if (!erasePending)
        return TRUE;
    erasePending = 0;
    CRect client;
    GetClientRect(&client);
    dc->FillRect(client, IsHlt(this) ? &Vant::tealB : &Vant::backB);
    return TRUE;
}

void CVantWnd::OnPaint()
{
    CPaintDC dc(this);
    CRect client;
    GetClientRect(&client);
    if (client.IsRectEmpty())
        return;
    vant::detail::PaintBuffer buffer(dc, client.Size(), Dpi(), Vant::back);
    Draw(&buffer.Dc());
    buffer.Show();
}

void CVantWnd::StdTxt(CDC* dc, CRect& r, const CString& text)
{
    catStyle.Set(dc);
    CRect line = r;
    dc->DrawText(text, &line, DT_LEFT | oneLine);
    r.OffsetRect(0, r.Height());
}

void CVantWnd::DualTxt(CDC* dc, CRect& r, int split, const CString& left, const CString& right)
{
    catStyle.Set(dc);
    CRect line = r;
    line.right = line.left + split;
    dc->DrawText(left, &line, DT_LEFT | oneLine);
    line = CRect(r.left + split, r.top, r.right, r.bottom);
    dc->DrawText(right, &line, DT_RIGHT | oneLine);
    r.OffsetRect(0, r.Height());
}

void CVantWnd::RedrawWnd()
{
    if (m_hWnd)
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
}
