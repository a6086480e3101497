#include "display/CDspGrp.h"

#include "display/CDsp.h"
#include "display/CMdl.h"

IMPLEMENT_DYNAMIC(CDspGrp, CVantWnd)

CDspGrp::CDspGrp()
{
    name = L"DspGrp";
    s_pollRx.AddTail(this);
    if (!CDsp::s_pDspGrp)
        CDsp::s_pDspGrp = this;
}

CDspGrp::~CDspGrp()
{
    if (CDsp::s_pDspGrp == this)
        CDsp::s_pDspGrp = nullptr;
    while (!m_dsps.IsEmpty())
        DeRegDsp(m_dsps.GetHead());
    s_pollRx.RemoveAt(s_pollRx.Find(this));
}

void CDspGrp::RegMdl(CMdl* mdl)
{
    if (!mdl || m_mdls.Find(mdl))
        return;
    m_mdls.AddTail(mdl);
    MdlUpdated(mdl, mdlAdded);
}

void CDspGrp::DeRegMdl(CMdl* mdl)
{
    CVantPtr* const pos = m_mdls.Find(mdl);
    if (!pos)
        return;
    m_mdls.RemoveAt(pos);
    for (CVantPtr* view = m_dsps.GetHeadPos(); view;)
        m_dsps.GetNext(view)->CancelMenu(); // its entries may be the drawable's
    MdlUpdated(mdl, mdlRemoved);
}

void CDspGrp::RegDsp(CDsp* dsp)
{
    if (!dsp || dsp->m_grp == this)
        return;
    if (dsp->m_grp)
        dsp->m_grp->DeRegDsp(dsp);
    m_dsps.AddTail(dsp);
    dsp->m_grp = this;
    dsp->NeedDraw();
}

void CDspGrp::DeRegDsp(CDsp* dsp)
{
    CVantPtr* const pos = m_dsps.Find(dsp);
    if (!pos)
        return;
    m_dsps.RemoveAt(pos);
    dsp->m_grp = nullptr;
}

void CDspGrp::GetInfs(CLstMgd<CMdlInf>& infs) const
{
    infs.RemoveAll();
    for (CVantPtr* pos = m_mdls.GetHeadPos(); pos;) {
        CMdl* const mdl = m_mdls.GetNext(pos);
        auto inf = std::make_unique<CMdlInf>();
        mdl->GetInf(*inf);
        inf->mdl = mdl;
        infs.AddTail(inf.get());
        inf.release();
    }
}

void CDspGrp::MdlUpdated(CMdl* mdl, int what)
{
    for (CVantPtr* pos = m_dsps.GetHeadPos(); pos;)
        m_dsps.GetNext(pos)->OnMdlUpdated(mdl, what);
}

void CDspGrp::OnPoll(double)
{
    for (CVantPtr* pos = m_dsps.GetHeadPos(); pos;) {
        CDsp* const dsp = m_dsps.GetNext(pos);
        dsp->FindPos();
        dsp->DrawIfNeeded();
    }
}
