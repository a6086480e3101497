#include "controls/CEWnd.h"

#include "controls/CVantWnd.h"

IMPLEMENT_DYNAMIC(CEWnd, CECtrl)

CEWnd::CEWnd()
{
    ctrlType = typeWnd;
}

void CEWnd::SetTarget(CVantWnd* w)
{
    pTarget = w;
    pfnDraw = static_cast<DrawFn>(&CVantWnd::DrawEWnd);
}

void CEWnd::SetCallback(CObject* target, DrawFn fn)
{
    pTarget = target;
    pfnDraw = fn;
}

void CEWnd::Draw(CDC* dc)
{
    if (!pTarget || !pfnDraw)
        return;
    CRect client = ClientRc();
    (pTarget->*pfnDraw)(this, dc, client);
}
