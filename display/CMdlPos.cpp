#include "display/CMdlPos.h"

#include "display/CDsp.h"
#include "display/CMdl.h"

constinit CLstMgd<CMdlPos> CMdlPos::s_mdlPos;
constexpr int CMdlPos::moved;

namespace
{

template <class Follower>
void RemoveEvery(CLstPtr<Follower*>& list, Follower* follower)
{
    while (CVantPtr* const pos = list.Find(follower))
        list.RemoveAt(pos);
}

/** Calls OnMdlPos() of each follower but the one that is `except`, by whichever of its bases that is known.
 */
template <class Follower>
void Send(const CLstPtr<Follower*>& list, int msg, void* data, const void* except)
{
    for (CVantPtr* pos = list.GetHeadPos(); pos;) {
        Follower* const follower = list.GetNext(pos);
        if (!except || (follower != except && dynamic_cast<const void*>(follower) != except))
            follower->OnMdlPos(msg, data);
    }
}

} // namespace

CMdlPos::CMdlPos()
{
    s_mdlPos.AddTail(this);
}

CMdlPos::CMdlPos(const CMdlPos& other)
    : CMdlPos()
{
    *this = other;
}

CMdlPos::~CMdlPos()
{
    while (CDsp* const dsp = m_dsps.RemoveHead())
        dsp->PosGone(*this);
    s_mdlPos.RemoveAt(s_mdlPos.Find(this));
}

CMdlPos& CMdlPos::operator=(const CMdlPos& other)
{
    SetMat(other);
    name = other.name;
    tm = other.tm;
    zoom = other.zoom;
    align = other.align;
    vel = other.vel;
    flags = other.flags;
    return *this;
}

CMdlPos* CMdlPos::GetMdlPos(const CString& key)
{
    for (CVantPtr* pos = s_mdlPos.GetHeadPos(); pos;) {
        CMdlPos* const found = s_mdlPos.GetNext(pos);
        if (found->name == key)
            return found;
    }
    return nullptr;
}

void CMdlPos::RegDsp(CDsp* dsp)
{
    if (dsp)
        m_dsps.AddTail(dsp);
}

void CMdlPos::RegMdl(CMdl* mdl)
{
    if (mdl)
        m_mdls.AddTail(mdl);
}

void CMdlPos::DeRegDsp(CDsp* dsp)
{
    RemoveEvery(m_dsps, dsp);
}

void CMdlPos::DeRegMdl(CMdl* mdl)
{
    RemoveEvery(m_mdls, mdl);
}

void CMdlPos::Forget(CDsp* dsp)
{
    for (CVantPtr* pos = s_mdlPos.GetHeadPos(); pos;)
        s_mdlPos.GetNext(pos)->DeRegDsp(dsp);
}

void CMdlPos::Forget(CMdl* mdl)
{
    for (CVantPtr* pos = s_mdlPos.GetHeadPos(); pos;)
        s_mdlPos.GetNext(pos)->DeRegMdl(mdl);
}

void CMdlPos::DspMsg(int msg, void* data)
{
    Send(m_dsps, msg, data, nullptr);
}

void CMdlPos::MdlMsg(int msg, void* data)
{
    Send(m_mdls, msg, data, nullptr);
}

void CMdlPos::Update(void* source)
{
    Send(m_dsps, moved, source, source);
    Send(m_mdls, moved, source, source);
}

bool CMdlPos::Take(unsigned long which, const CV3& org, double newZoom, double newAlign)
{
    if (which & ctrlPan)
        SetOrg(org);
    if (which & ctrlZoom)
        zoom = newZoom;
    if (which & ctrlAlign)
        align = newAlign;
    return which != 0;
}

void CMdlPos::SetFromDsp(CDsp* source, const CV3& org, double newZoom, double newAlign)
{
    constexpr unsigned userShift = 4; // from a bit that controls to the one that allows
    const unsigned long allowed = flags & flags >> userShift & (ctrlPan | ctrlAlign | ctrlZoom);
    if (Take(allowed, org, newZoom, newAlign))
        Update(source);
}

void CMdlPos::SetFromMdl(CMdl* source, const CV3& org, double newZoom, double newAlign)
{
    if (Take(flags & (ctrlPan | ctrlAlign | ctrlZoom), org, newZoom, newAlign))
        Update(source);
}
