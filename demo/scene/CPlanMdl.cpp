#include "demo/scene/CPlanMdl.h"

#include "controls/CEMenu.h"
#include "demo/scene/Drawing.h"
#include "display/CDsp.h"
#include "display/CMdlInf.h"

#include <GL/gl.h>

namespace demo
{
namespace
{

constexpr COLORREF planColour = RGB(246, 190, 92);
constexpr double height = 0.03;      // metres over the water, below the track
constexpr double lineWidth = 1.5;    // units
constexpr GLubyte edgeOpacity = 120; // of the corridor's edges
constexpr GLushort dashes = 0x0FFF;  // twelve pixels on, four off

} // namespace

CPlanMdl::CPlanMdl(const PlannedRoute& route)
    : m_route(route)
{
    lit = 0;
}

void CPlanMdl::Draw(CDsp& dsp)
{
    if (m_route.Smooth().IsEmpty() || (dsp.IsPicking() && dsp.Cam().kind != CDspCam::plan))
        return;
    const CV3 org(dsp.Cam().org.x, dsp.Cam().org.y, height);
    const auto unit = static_cast<float>(dsp.Dpi().Dpi()) / CDpi::base;
    glEnable(GL_BLEND);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    dsp.PushOrg(org);
    glLineWidth(unit);
    SetGlColour(planColour, edgeOpacity);
    DrawLine(m_route.PortEdge(), org);
    DrawLine(m_route.StarboardEdge(), org);
    glEnable(GL_LINE_STIPPLE);
    glLineStipple(1, dashes);
    glLineWidth(static_cast<float>(lineWidth) * unit);
    SetGlColour(planColour);
    DrawLine(m_route.Smooth(), org);
    dsp.PopOrg();
    if (dsp.Cam().kind == CDspCam::plan)
        LabelLines(dsp);
}

void CPlanMdl::DrawLine(const CRoute& line, const CV3& org) const
{
    glBegin(GL_LINE_STRIP);
    for (CVantPtr* pos = line.GetHeadPos(); pos;) {
        const CRtV3& node = *line.GetNext(pos);
        glVertex2d(node.x - org.x, node.y - org.y);
    }
    glEnd();
}

/** The number of each line, where it begins. */
void CPlanMdl::LabelLines(CDsp& dsp) const
{
    constexpr double beside = 10.0; // units
    int before = 0;
    for (const PlanPoint& point : m_route.Points()) {
        if (point.line == 0 || point.line == before)
            continue;
        before = point.line;
        CString text;
        text.Format(L"%d", point.line);
        dsp.Label({point.place.east, point.place.north, 0}, text, planColour, -beside, beside,
                  CDsp::alignRight | CDsp::alignMiddle);
    }
}

int CPlanMdl::OnMenu(CDsp& dsp, CEMenu& menu)
{
    menu.Add(L"Show the planned &route", showInfo, &dsp);
    return 1;
}

void CPlanMdl::GetInf(CMdlInf& inf)
{
    inf.name = L"Planned route";
    inf.kind = L"Route";
    for (const PlanPoint& point : m_route.Points()) {
        const CV3 low(point.place.east - PlannedRoute::corridor, point.place.north - PlannedRoute::corridor,
                      height);
        const CV3 high(point.place.east + PlannedRoute::corridor, point.place.north + PlannedRoute::corridor,
                       height);
        Widen(inf, low, high);
    }
}

} // namespace demo
