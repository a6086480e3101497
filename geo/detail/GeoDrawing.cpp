#include "geo/detail/GeoDrawing.h"

#include "display/CDsp.h"
#include "display/CDspMtrl.h"
#include "display/detail/ViewCameraOf.h"
#include "geo/detail/Ribbon.h"

#include <cmath>

namespace vant::detail
{

namespace
{

/** Pixels that nobody misses; the orbit camera shows what is near the eye a few times larger. */
constexpr double unseen = 0.2;
constexpr double penWidth = 2; // units of 1/96 inch

double Scale(const CDsp& dsp)
{
    return static_cast<double>(dsp.Dpi().Dpi()) / CDpi::base;
}

} // namespace

GeoDrawing::GeoDrawing(CDsp& dsp)
    : m_dsp(dsp)
    , m_org(ToPoint(dsp.Cam().org))
    , m_unit(dsp.PxSize() * Scale(dsp))
    , m_least2(ML::Sqr(dsp.PxSize() * unseen))
    , m_wasLit(glIsEnabled(GL_LIGHTING))
{
    m_dsp.PushOrg(dsp.Cam().org);
    glDisable(GL_LIGHTING);
    glDisable(GL_TEXTURE_2D);
}

GeoDrawing::~GeoDrawing()
{
    m_dsp.PopOrg();
}

void GeoDrawing::UsePen(const CDspMtrl& mtrl)
{
    glColor4f(mtrl.diffuse.red, mtrl.diffuse.green, mtrl.diffuse.blue, mtrl.diffuse.alpha);
    glLineWidth(static_cast<float>(penWidth * Scale(m_dsp)));
    glEnable(GL_LINE_SMOOTH);
    glEnable(GL_BLEND);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    glDepthMask(GL_FALSE); // smooth edges would cut into one another
}

void GeoDrawing::KeepLight()
{
    if (m_wasLit)
        glEnable(GL_LIGHTING);
}

void GeoDrawing::To(const CV3& pt)
{
    if (!pt.Finite())
        return;
    m_last = ToPoint(pt) - m_org;
    if (!m_line.empty()) {
        const Point3 way = m_last - m_line.back();
        if (Dot(way, way) < m_least2)
            return;
    }
    m_line.push_back(m_last);
}

void GeoDrawing::EndLine()
{
    if (!m_line.empty() && !(m_line.back() == m_last))
        m_line.push_back(m_last);
}

void GeoDrawing::DrawLine(unsigned mode)
{
    EndLine();
    if (m_line.size() > 1)
        DrawPoints(mode, m_line);
    m_line.clear();
}

void GeoDrawing::DrawRibbon(double width)
{
    EndLine();
    glNormal3d(0, 0, 1);
    if (std::isfinite(width))
        DrawPoints(GL_TRIANGLE_STRIP, RibbonAlong(m_line, width));
    m_line.clear();
}

void GeoDrawing::Diamond(const CV3& at, double size)
{
    if (!at.Finite())
        return;
    const Point3 middle = ToPoint(at) - m_org;
    const double half = size / 2 * m_unit;
    const Point3 right = ToPoint(m_dsp.Cam().Right()) * half;
    const Point3 up = ToPoint(m_dsp.Cam().Up()) * half;
    DrawPoints(GL_TRIANGLE_FAN, {middle + right, middle + up, middle - right, middle - up});
}

void GeoDrawing::DrawPoints(unsigned mode, const std::vector<Point3>& points)
{
    std::vector<float> places;
    places.reserve(3 * points.size());
    for (const Point3& point : points)
        places.insert(places.end(), {static_cast<float>(point.x), static_cast<float>(point.y),
                                     static_cast<float>(point.z)});
    glEnableClientState(GL_VERTEX_ARRAY);
    glDisableClientState(GL_COLOR_ARRAY);
    glDisableClientState(GL_NORMAL_ARRAY);
    glDisableClientState(GL_TEXTURE_COORD_ARRAY);
    glVertexPointer(3, GL_FLOAT, 0, places.data());
    glDrawArrays(mode, 0, static_cast<GLsizei>(points.size()));
}

} // namespace vant::detail
