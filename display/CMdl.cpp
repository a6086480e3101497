#include "display/CMdl.h"

#include "controls/CVantWnd.h"
#include "core/CMat.h"
#include "core/ML.h"
#include "display/CDsp.h"
#include "display/CDspGrp.h"
#include "display/CMdlPos.h"
#include "settings/CESetObj.h"

#include <GL/gl.h>

#include <algorithm>
#include <cmath>

vant::detail::PresetTable& CMdl::s_defaultMtrl = vant::detail::PresetMtrls();

namespace
{

void ExchangeFlag(CESetObj& obj, LPCWSTR key, int& flag)
{
    int isSet = flag != 0;
    obj.Item(key, isSet);
    if (obj.IsLoading())
        flag = isSet != 0;
}

/** A unit vector across another unit vector, for turning by half. */
CV3 Across(const CV3& unit)
{
    // Of the axes, one that is far from parallel.
    CV3 axis = unit % (std::abs(unit.x) < ML::root2_2 ? CV3(1, 0, 0) : CV3(0, 1, 0));
    axis.Normalise();
    return axis;
}

} // namespace

CMdl::CMdl()
{
    if (CDsp::s_pDspGrp)
        CDsp::s_pDspGrp->RegMdl(this);
}

CMdl::CMdl(const CMdl& other)
    : CMdl()
{
    *this = other;
}

CMdl& CMdl::operator=(const CMdl& other)
{
    mtrl = other.mtrl;
    visible = other.visible;
    selectable = other.selectable;
    lit = other.lit;
    return *this;
}

CMdl::~CMdl()
{
    CMdlPos::Forget(this);
    if (CDsp::s_pDspGrp)
        CDsp::s_pDspGrp->DeRegMdl(this);
}

void CMdl::Settings(CESetObj& obj)
{
    mtrl.Settings(obj);
    ExchangeFlag(obj, L"Visible", visible);
    ExchangeFlag(obj, L"Selectable", selectable);
    ExchangeFlag(obj, L"Lit", lit);
}

int CMdl::OnMenu(CDsp&, CEMenu&)
{
    return 0;
}

void CMdl::DrawSectionAsModel(CDsp&) {}

void CMdl::OnMdlPos(int, void*) {}

int CMdl::GetMdlOrg(CMat&, CV3&, double&)
{
    return 0;
}

void CMdl::LegInf(CDsp*, const CV3&, CLstPtr<CLegInf*>&) {}

void CMdl::OnHit(CDsp&, CDspMHit&) {}

void CMdl::RegWnd(CVantWnd* wnd)
{
    if (wnd && !m_wnds.Find(wnd))
        m_wnds.AddTail(wnd);
}

void CMdl::DeRegWnd(CVantWnd* wnd)
{
    m_wnds.RemoveAt(m_wnds.Find(wnd));
}

void CMdl::SendWndMsg(int msg, void* data)
{
    for (CVantPtr* pos = m_wnds.GetHeadPos(); pos;)
        m_wnds.GetNext(pos)->OnMdlMsg(this, msg, data);
}

void CMdl::ModelChanged(int what)
{
    if (CDsp::s_pDspGrp)
        CDsp::s_pDspGrp->MdlUpdated(this, what);
}

void CMdl::RotateVectorToVector(const CV3& from, const CV3& to)
{
    CV3 a = from;
    CV3 b = to;
    if (a.Normalise() == 0 || b.Normalise() == 0)
        return;
    // The arc cosine of what rounding puts beyond 1 is no number.
    const double angle = std::acos(std::clamp(a | b, -1.0, 1.0));
    CV3 axis = a % b;
    if (axis.Normalise() < ML::threshold) { // no axis, or none that could be trusted
        if (angle < ML::pi_2)
            return;
        axis = Across(a);
    }
    glRotated(angle * ML::r2d, axis.x, axis.y, axis.z);
}
