#include "demo/scene/CBoatMdl.h"

#include "controls/CEMenu.h"
#include "core/CMat.h"
#include "demo/detail/Quantities.h"
#include "demo/detail/Text.h"
#include "demo/scene/Drawing.h"
#include "display/CDsp.h"
#include "display/CDspMHit.h"
#include "display/CMdlInf.h"
#include "platform/Vant.h"

#include <algorithm>
#include <cmath>

#include <GL/gl.h>

namespace demo
{
namespace
{

constexpr double symbolPixels = 34.0; // least length on a chart
constexpr double courseTime = 20.0;   // seconds that the line on a chart looks ahead
constexpr double above = 7.0;         // metres, of the mast over the water
constexpr double below = 2.0;

} // namespace

CBoatMdl::CBoatMdl(const CString& file)
{
    visible = 0;
    m_model.Read3DS(file);
}

void CBoatMdl::Move(const Motion& motion)
{
    if (visible && motion == m_motion)
        return;
    visible = 1;
    m_motion = motion;
    ModelChanged(0);
}

void CBoatMdl::Hide()
{
    if (!visible)
        return;
    visible = 0;
    ModelChanged(0);
}

void CBoatMdl::Draw(CDsp& dsp)
{
    const bool isChart = dsp.Cam().kind == CDspCam::plan;
    if (isChart && !dsp.IsPicking())
        DrawCourse(dsp);
    dsp.PushOrg(m_motion.place);
    glRotated(-ML::R2D(m_motion.heading), 0, 0, 1);
    if (isChart) {
        const double size = std::max(1.0, symbolPixels * dsp.PxSize() / length);
        glScaled(size, size, 1);
    }
    m_model.DrawModel(dsp);
    dsp.PopOrg();
}

void CBoatMdl::DrawCourse(CDsp& dsp) const
{
    const double way = m_motion.speed * courseTime;
    if (!(way > 0))
        return;
    dsp.PushOrg(m_motion.place);
    glDisable(GL_LIGHTING);
    SetGlColour(Vant::light);
    glLineWidth(static_cast<float>(1.5 * dsp.Dpi().Dpi() / CDpi::base));
    glBegin(GL_LINES);
    glVertex3d(0, 0, 0);
    glVertex3d(way * std::sin(m_motion.course), way * std::cos(m_motion.course), 0);
    glEnd();
    glEnable(GL_LIGHTING);
    dsp.PopOrg();
}

void CBoatMdl::GetInf(CMdlInf& inf)
{
    inf.name = boatName;
    inf.kind = L"Boat";
    inf.hasExt = 1;
    inf.lower = m_motion.place - CV3(length, length, below);
    inf.upper = m_motion.place + CV3(length, length, above);
}

int CBoatMdl::OnMenu(CDsp& dsp, CEMenu& menu)
{
    menu.Add(L"&Follow the boat\tF", followInfo, &dsp)
        ->SetMark(dsp.Followed() ? CEMEnt::markCheck : CEMEnt::markNone);
    return 1;
}

int CBoatMdl::GetMdlOrg(CMat& mat, CV3& org, double& size)
{
    if (!visible)
        return 0;
    mat = CMat();
    org = m_motion.place;
    size = length;
    return 1;
}

void CBoatMdl::OnHit(CDsp&, CDspMHit& hit)
{
    hit.text = (std::wstring(boatName) + L"  " + BearingText(m_motion.heading) + L"\u00B0  " +
                FixedText(m_motion.speed / knot, 1) + L" kn")
                   .c_str();
}

} // namespace demo
