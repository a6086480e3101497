#include "CBoat.h"

#include <GL/gl.h>

#include <algorithm>
#include <cmath>

namespace
{

constexpr double hullLength = 14; // metres
constexpr double smallest = 26;   // pixels: from afar it is a symbol
constexpr double beamPerLength = 0.34;
constexpr double freeboard = 0.12; // of the length
constexpr std::size_t trackMost = 900;

CV3 PlaceAt(double t)
{
    const double angle = t / 60;
    return {230 * std::sin(angle), 130 * std::sin(2 * angle), 0};
}

} // namespace

CBoat::CBoat(const CV3& centre)
    : m_centre(centre)
{
    pos.name = L"Boat";
    pos.flags = CMdlPos::ctrlAlign; // the course; views stay where they are
    mtrl = CMdl::s_defaultMtrl[14];
}

void CBoat::MoveTo(double t)
{
    constexpr double step = 0.1;
    const CV3 at = PlaceAt(t);
    m_track.push_back(at);
    if (m_track.size() > trackMost)
        m_track.pop_front();
    const CV3 way = PlaceAt(t + step) - at;
    pos.SetFromMdl(this, m_centre + at, 0, way.Brg());
    pos.SetOrg(m_centre + at);
    ModelChanged(0);
}

void CBoat::DrawHull(double length) const
{
    const double half = length * beamPerLength / 2;
    const double deck = length * freeboard;
    const double stern = -length / 2;
    // Waterline to deck, then the deck.
    const double outline[][2] = {
        {0, length / 2},      {half * 0.75, length * 0.2}, {half, -length * 0.1},        {half * 0.9, stern},
        {-half * 0.9, stern}, {-half, -length * 0.1},      {-half * 0.75, length * 0.2}, {0, length / 2}};
    glBegin(GL_QUAD_STRIP);
    for (const auto& [right, ahead] : outline) {
        glNormal3d(right, ahead, 0);
        glVertex3d(right * 0.8, ahead * 0.94, 0);
        glVertex3d(right, ahead, deck);
    }
    glEnd();
    glNormal3d(0, 0, 1);
    glBegin(GL_TRIANGLE_FAN);
    glVertex3d(0, 0, deck);
    for (const auto& [right, ahead] : outline)
        glVertex3d(right, ahead, deck);
    glEnd();
}

void CBoat::Draw(CDsp& dsp)
{
    const CV3 at = pos.Org();
    glLoadName(partTrack);
    glDisable(GL_LIGHTING);
    glEnable(GL_LINE_SMOOTH);
    glEnable(GL_BLEND);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    glDepthMask(GL_FALSE); // its smooth edges would cut into themselves
    glLineWidth(2);
    dsp.PushOrg(m_centre);
    glBegin(GL_LINE_STRIP);
    std::size_t number = 0;
    for (const CV3& each : m_track) {
        const double age = static_cast<double>(m_track.size() - ++number) / trackMost;
        glColor4d(1, 0.82, 0.35, 1 - age * 0.85);
        glVertex3d(each.x, each.y, each.z);
    }
    glEnd();
    dsp.PopOrg();

    glLoadName(partHull);
    glEnable(GL_LIGHTING);
    glDisable(GL_BLEND);
    glDepthMask(GL_TRUE);
    dsp.PushOrg(at);
    glRotated(-ML::R2D(pos.align), 0, 0, 1);
    DrawHull(std::max(hullLength, smallest * dsp.PxSize()));
    dsp.PopOrg();
    dsp.Label(at, L"RV Tern", Vant::light, 14, 0);
}

void CBoat::GetInf(CMdlInf& inf)
{
    inf.name = L"RV Tern";
    inf.kind = L"Boat";
    inf.hasExt = 1;
    inf.lower = m_centre + CV3(-250, -150, 0);
    inf.upper = m_centre + CV3(250, 150, 20);
}

void CBoat::OnHit(CDsp&, CDspMHit& hit)
{
    if (hit.part == partTrack)
        hit.text = L"Track of the " + hit.text;
}
