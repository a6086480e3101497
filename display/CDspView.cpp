// CDsp: the camera, and the position that it follows.
#include "display/CDsp.h"

#include "display/CDspGrp.h"
#include "display/CMdl.h"
#include "display/CMdlInf.h"
#include "display/CMdlPos.h"
#include "display/detail/ViewCameraOf.h"
#include "display/detail/ViewState.h"
#include "settings/CESetObj.h"

#include <algorithm>
#include <cmath>

using namespace vant::detail;

namespace
{

void ExchangeSwitch(CESetObj& obj, LPCWSTR key, int& value)
{
    int isOn = value != 0;
    obj.Item(key, isOn);
    if (obj.IsLoading())
        value = isOn != 0;
}

/** Exchanges one of the numbers from 0 to `last`; another one is not taken. */
void ExchangeChoice(CESetObj& obj, LPCWSTR key, int last, int& value)
{
    int chosen = value;
    obj.Item(key, chosen);
    if (chosen >= 0 && chosen <= last)
        value = chosen;
}

} // namespace

ViewGeometry CDsp::Geometry() const
{
    if (m_state->scene)
        return *m_state->scene;
    CRect client;
    if (m_hWnd)
        GetClientRect(&client);
    return {ViewCameraOf(m_cam), static_cast<double>(client.Width() - insetLeft - insetRight),
            static_cast<double>(client.Height() - insetTop - insetBottom)};
}

void CDsp::Apply(const CDspCam& cam)
{
    if (!m_cam.Take(cam))
        return;
    AskDraw();
    OnCam();
}

void CDsp::SetCam(const CDspCam& cam)
{
    const double before = m_cam.align;
    CDspCam next = m_cam;
    next.Take(cam);
    if (next.align != before)
        m_up = upFree;
    Apply(next);
}

void CDsp::SetViewOrg(const CV3& at)
{
    CDspCam cam = m_cam;
    cam.org = at;
    Apply(cam);
}

void CDsp::SetZoom(double metres)
{
    CDspCam cam = m_cam;
    cam.zoom = metres;
    Apply(cam);
}

double CDsp::Course() const
{
    return m_pos && m_pos->CtrlAlign() ? m_pos->align : m_course;
}

void CDsp::SetUp(int up)
{
    if (up < upNorth || up > upFree)
        return;
    m_up = up;
    CDspCam cam = m_cam;
    if (up != upFree)
        cam.align = up == upNorth ? 0 : Course();
    Apply(cam);
}

void CDsp::SetCourse(double course)
{
    m_course = course;
    if (m_up == upCourse)
        SetUp(upCourse);
}

void CDsp::OnCam() {}

double CDsp::PxSize() const
{
    return Geometry().PxSize();
}

int CDsp::Xy2Pt(double atX, double atY, CV3& pt) const
{
    Point3 found;
    if (!Geometry().OnLevel(atX - insetLeft, atY - insetTop, m_cam.org.z, found))
        return 0;
    pt = FromPoint(found);
    return 1;
}

int CDsp::Pt2Xy(const CV3& pt, double& atX, double& atY) const
{
    double right = 0;
    double down = 0;
    if (!pt.Finite() || !Geometry().ToPx(ToPoint(pt), right, down))
        return 0;
    atX = right + insetLeft;
    atY = down + insetTop;
    return 1;
}

const CLstPtr<CMdl*>* CDsp::Mdls() const
{
    return m_grp ? &m_grp->GetMdls() : nullptr;
}

int CDsp::Shows(const CMdl& mdl)
{
    return mdl.visible;
}

std::optional<ViewBox> CDsp::ShownBox(bool& isWhole)
{
    std::optional<ViewBox> box;
    isWhole = true;
    for (CVantPtr* pos = Mdls() ? Mdls()->GetHeadPos() : nullptr; pos;) {
        CMdl& mdl = *Mdls()->GetNext(pos);
        if (!Shows(mdl))
            continue;
        CMdlInf inf;
        mdl.GetInf(inf);
        if (!inf.hasExt || !inf.lower.Finite() || !inf.upper.Finite()) {
            isWhole = false;
            continue;
        }
        if (!box) {
            box = ViewBox{ToPoint(inf.lower), ToPoint(inf.upper)};
            continue;
        }
        box->lower = {std::min(box->lower.x, inf.lower.x), std::min(box->lower.y, inf.lower.y),
                      std::min(box->lower.z, inf.lower.z)};
        box->upper = {std::max(box->upper.x, inf.upper.x), std::max(box->upper.y, inf.upper.y),
                      std::max(box->upper.z, inf.upper.z)};
    }
    return box;
}

int CDsp::PlaceOf(CMdl* mdl, CV3& at, double& size)
{
    std::optional<ViewBox> box;
    if (mdl) {
        CMat mat;
        if (mdl->GetMdlOrg(mat, at, size))
            return 1;
        CMdlInf inf;
        mdl->GetInf(inf);
        if (inf.hasExt)
            box = ViewBox{ToPoint(inf.lower), ToPoint(inf.upper)};
    } else {
        bool isWhole = false;
        box = ShownBox(isWhole);
    }
    if (!box)
        return 0;
    at = FromPoint((box->lower + box->upper) * 0.5);
    const CV3 span = FromPoint(box->upper - box->lower);
    // A chart has to show the ground only, from any side.
    size = m_cam.kind == CDspCam::plan ? ML::Hypot(span.x, span.y) : span.Length();
    return 1;
}

int CDsp::ShowMdl(CMdl* mdl)
{
    CDspCam cam = m_cam;
    if (!FitTo(mdl, cam))
        return 0;
    Apply(cam);
    return 1;
}

bool CDsp::FitTo(CMdl* mdl, CDspCam& cam)
{
    constexpr double margin = 1.1;
    CV3 at;
    double size = 0;
    if (!PlaceOf(mdl, at, size) || !at.Finite() || !std::isfinite(size))
        return false;
    const ViewGeometry geometry = Geometry();
    const double narrowness = geometry.IsEmpty() ? 1 : std::max(1.0, geometry.Height() / geometry.Width());
    cam.org = at;
    if (size > 0) // a point leaves the zoom
        cam.zoom = size * margin * narrowness;
    return true;
}

void CDsp::OnMdlPos(int msg, void*)
{
    if (msg == CMdlPos::moved && m_pos)
        TakeFrom(*m_pos);
    AskDraw();
}

void CDsp::TakeFrom(const CMdlPos& pos)
{
    CDspCam cam = m_cam;
    if (pos.CtrlPan())
        cam.org = pos.Org();
    if (pos.CtrlZoom() && pos.zoom > 0) // 0: not set yet
        cam.zoom = pos.zoom;
    if (pos.CtrlAlign() && m_up == upCourse)
        cam.align = pos.align;
    Apply(cam);
}

void CDsp::Follow(CMdlPos* pos)
{
    if (m_pos)
        m_pos->DeRegDsp(this);
    m_pos = pos;
    m_posName = pos ? pos->name : CString();
    m_seeksPos = false;
    if (!pos)
        return;
    pos->RegDsp(this);
    TakeFrom(*pos);
}

int CDsp::Follow(const CString& posName)
{
    const CString wanted = posName; // the caller's may be the name here
    Follow(wanted.IsEmpty() ? nullptr : CMdlPos::GetMdlPos(wanted));
    m_posName = wanted;
    m_seeksPos = true;
    return m_pos != nullptr;
}

void CDsp::FindPos()
{
    if (!m_pos && m_seeksPos && !m_posName.IsEmpty())
        Follow(m_posName);
}

void CDsp::PosGone(const CMdlPos& pos) noexcept
{
    if (m_pos == &pos)
        m_pos = nullptr;
}

/** A change by the user: of what a followed position controls only as much as it allows, and then for all
 * that follow it. */
void CDsp::ApplyByUser(const CDspCam& cam)
{
    CDspCam next = m_cam;
    next.Take(cam);
    if (m_pos && !m_pos->AllowUserPan())
        next.org = m_cam.org;
    if (m_pos && !m_pos->AllowUserZoom())
        next.zoom = m_cam.zoom;
    if (m_pos && !m_pos->AllowUserAlign())
        next.align = m_cam.align;
    const bool pans = !(next.org == m_cam.org);
    const bool zooms = next.zoom != m_cam.zoom;
    const bool turns = next.align != m_cam.align;
    if (turns)
        m_up = m_pos && m_pos->CtrlAlign() ? upCourse : upFree;
    if (next == m_cam)
        return;
    Apply(next);
    AskDrawSoon();
    // What was not changed here stays what it is for the others: this view need not show it.
    if (m_pos &&
        ((pans && m_pos->CtrlPan()) || (zooms && m_pos->CtrlZoom()) || (turns && m_pos->CtrlAlign())))
        m_pos->SetFromDsp(this, pans ? m_cam.org : m_pos->Org(), zooms ? m_cam.zoom : m_pos->zoom,
                          turns ? m_cam.align : m_pos->align);
}

/** What the user does is seen at once, whenever the next poll may be. */
void CDsp::AskDrawSoon()
{
    AskDraw();
    if (m_hWnd)
        Invalidate(FALSE);
}

void CDsp::Settings(CESetObj& obj)
{
    CGLWnd::Settings(obj);
    CDspCam cam = m_cam;
    cam.Settings(obj);
    ExchangeChoice(obj, L"Up", upFree, m_up);
    ExchangeChoice(obj, L"MouseMode", mousePick, mouseMode);
    ExchangeSwitch(obj, L"Graticule", graticule);
    ExchangeSwitch(obj, L"NorthArrow", northArrow);
    ExchangeSwitch(obj, L"ScaleBar", scaleBar);
    CString follow = m_posName;
    obj.Item(L"Follow", follow);
    if (!obj.IsLoading())
        return;
    if (m_up == upNorth)
        cam.align = 0;
    Apply(cam);
    AskDraw();
    if (follow != m_posName)
        Follow(follow);
}
