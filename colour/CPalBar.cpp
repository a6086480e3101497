#include "colour/CPalBar.h"

#include "colour/detail/BarPainter.h"
#include "platform/Vant.h"

using vant::detail::BarPainter;

IMPLEMENT_DYNAMIC(CPalBar, CECtrl)

BEGIN_MESSAGE_MAP(CPalBar, CECtrl)
    ON_WM_SIZE()
END_MESSAGE_MAP()

namespace
{

constexpr int inset = 3;     // from the control's edge to bar and values
constexpr int belowText = 1; // of the inset, which the font leaves free anyway
constexpr int leastBar = 5;  // of a bar that has its values beside it

} // namespace

CPalBar::CPalBar() = default;

void CPalBar::Init(CColTbl& colTbl, double& startVal, double& endVal)
{
    pTbl = &colTbl;
    pStart = &startVal;
    pEnd = &endVal;
    TakeValues();
}

void CPalBar::TakeValues()
{
    if (pStart)
        start = *pStart;
    if (pEnd)
        end = *pEnd;
}

void CPalBar::Update(int arg)
{
    TakeValues();
    CECtrl::Update(arg);
}

void CPalBar::Retreive() {}

void CPalBar::Draw(CDC* dc)
{
    TakeValues();
    const CRect client = ClientRc();
    DrawBack(dc);
    style.Set(dc);
    dc->SelectObject(&Vant::medL);
    CEStyle::Brdr2(dc, client);
    CRect strip = client;
    strip.DeflateRect(inset, inset);
    if (!pTbl || strip.IsRectEmpty())
        return;
    const bool isUpright = client.Height() > client.Width();
    const BarPainter bar{*pTbl, start, end, wrap != 0, isUpright, units};
    const int room = bar.ScaleRoom(*dc, isUpright ? strip.Height() : strip.Width());
    const int across = isUpright ? strip.Width() : strip.Height() + belowText;
    const bool hasScale = room > 0 && across - room >= leastBar;
    if (hasScale && isUpright)
        strip.right -= room;
    else if (hasScale)
        strip.bottom -= room - belowText;
    bar.DrawStrip(*dc, strip);
    dc->SelectObject(&Vant::darkL);
    if (hasScale)
        bar.DrawScale(*dc, strip);
}

void CPalBar::OnSize(UINT how, int width, int height)
{
    CECtrl::OnSize(how, width, height);
    Invalidate();
}
