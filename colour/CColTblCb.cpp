#include "colour/CColTblCb.h"

#include "controls/detail/CtrlText.h"
#include "platform/Vant.h"

IMPLEMENT_DYNAMIC(CColTblCb, CECb)

CColTblCb::CColTblCb()
{
    SetFill(this, static_cast<FillFn>(&CColTblCb::FillCombo));
    SetDraw(this, static_cast<DrawFn>(&CColTblCb::DrawEntry));
}

CColTblCb::CColTblCb(CColTbl* colTbl)
    : CColTblCb()
{
    SetTbl(colTbl);
}

void CColTblCb::SetTbl(CColTbl* colTbl)
{
    pTbl = colTbl;
    // The user's choice of an entry changes where the table comes from.
    Init(colTbl ? reinterpret_cast<void**>(&colTbl->source) : nullptr);
}

void CColTblCb::Execute()
{
    if (pTbl && pTbl->source)
        *pTbl = *pTbl->source;
    CECb::Execute();
}

CELEnt* CColTblCb::FillCombo(CEList& list, void*)
{
    CELEnt* const black = list.Add(L"<Black>", nullptr);
    const CColTbl* const source = pTbl ? pTbl->source : nullptr;
    CELEnt* chosen = source ? nullptr : black;
    for (CVantPtr* pos = CColTbl::s_colTbls.GetHeadPos(); pos;) {
        CColTbl* const tbl = CColTbl::s_colTbls.GetNext(pos);
        if (!tbl)
            continue;
        CELEnt* const ent = list.Add(tbl->name, tbl);
        if (tbl == source)
            chosen = ent;
    }
    return chosen;
}

void CColTblCb::DrawEntry(CDC* dc, const CRect& place, CELEnt* ent, int selected)
{
    if (!ent)
        return;
    if (!ent->item) {
        constexpr int inset = 4;
        CRect textRc = place;
        textRc.DeflateRect(inset, 0);
        return vant::detail::DrawLine(*dc, ent->text, textRc, DT_LEFT);
    }
    constexpr COLORREF darkGrey = RGB(0x33, 0x33, 0x33);
    CRect strip = place;
    strip.DeflateRect(1, 1);
    dc->SetBkColor(selected ? RGB(0, 0, 0) : darkGrey);
    // The last band of a strip reaches beyond it.
    const int saved = dc->SaveDC();
    dc->IntersectClipRect(strip);
    const auto& tbl = *static_cast<const CColTbl*>(ent->item);
    if (IsVertical())
        tbl.DrawV(strip, dc, drawOpt);
    else
        tbl.DrawH(strip, dc, drawOpt);
    dc->RestoreDC(saved);
    dc->SelectObject(&Vant::blueL);
}
