#include "colour/CPalCb.h"

IMPLEMENT_DYNAMIC(CPalCb, CECb)

CPalCb::CPalCb(CPal*& pal)
    : m_pal(pal)
{
    Init(reinterpret_cast<void**>(&pal));
    SetFill(this, static_cast<FillFn>(&CPalCb::FillCombo));
    Fill();
}

CELEnt* CPalCb::FillCombo(CEList& list, void*)
{
    CELEnt* const none = list.Add(L"<Select Here>", nullptr);
    CELEnt* chosen = m_pal ? nullptr : none;
    for (CVantPtr* pos = CPal::s_pals.GetHeadPos(); pos;) {
        CPal* const pal = CPal::s_pals.GetNext(pos);
        CELEnt* const ent = list.Add(pal->name, pal);
        if (pal == m_pal)
            chosen = ent;
    }
    return chosen;
}
