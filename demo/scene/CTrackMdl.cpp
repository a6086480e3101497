#include "demo/scene/CTrackMdl.h"

#include "colour/CPal.h"
#include "demo/scene/Drawing.h"
#include "display/CDsp.h"
#include "display/CMdlInf.h"
#include "platform/Vant.h"

#include <cmath>
#include <utility>

#include <GL/gl.h>

namespace demo
{
namespace
{

constexpr double lineWidth = 4.0;  // units
constexpr double rimWidth = 1.0;   // of the dark rim that tells it from the sea bed
constexpr double height = 0.05;    // metres over the water, which would cover it
constexpr double everything = 1e9; // metres

/** What a view shows of the ground: all of it from an orbit camera. */
GroundWindow ShownGround(const CDsp& dsp)
{
    const CDspCam& cam = dsp.Cam();
    const CRect& view = dsp.ViewRc();
    GroundWindow window;
    window.origin = {cam.org.x, cam.org.y};
    window.mesh = dsp.PxSize();
    double radius = everything;
    if (cam.kind == CDspCam::plan &&
        view.Height() != 0) // deliberately signed: the view's top is its lower edge
        radius = cam.zoom / 2 * std::hypot(1.0, static_cast<double>(view.Width()) / view.Height());
    window.low = {cam.org.x - radius, cam.org.y - radius};
    window.high = {cam.org.x + radius, cam.org.y + radius};
    return window;
}

} // namespace

CTrackMdl::CTrackMdl(const Playback& playback, const LocalPlane& plane, const CPal& pal)
    : m_playback(playback)
    , m_plane(plane)
    , m_pal(pal)
{
    lit = 0;
    selectable = 0;
}

void CTrackMdl::Draw(CDsp& dsp)
{
    const GroundWindow window = ShownGround(dsp);
    m_runs = TrackRuns::Of(m_playback.Track(), m_plane, window, std::move(m_runs));
    if (m_runs.vertices.empty())
        return;
    m_colours.clear();
    for (const std::size_t point : m_runs.points) {
        const double depth = m_playback.Track()[point].depth;
        CRgb colour;
        if (IsMissing(depth))
            colour.SetCol(Vant::light);
        else
            m_pal.GetCol(depth, colour);
        m_colours.push_back(colour);
    }
    const double unit = static_cast<double>(dsp.Dpi().Dpi()) / CDpi::base;
    dsp.PushOrg({window.origin.east, window.origin.north, height});
    glEnableClientState(GL_VERTEX_ARRAY);
    glVertexPointer(2, GL_FLOAT, sizeof(TrackRuns::Vertex), m_runs.vertices.data());
    SetGlColour(Vant::back);
    DrawLines((lineWidth + 2 * rimWidth) * unit);
    glEnableClientState(GL_COLOR_ARRAY);
    glColorPointer(4, GL_UNSIGNED_BYTE, sizeof(CRgb), m_colours.data());
    DrawLines(lineWidth * unit);
    glDisableClientState(GL_COLOR_ARRAY);
    glDisableClientState(GL_VERTEX_ARRAY);
    dsp.PopOrg();
}

void CTrackMdl::DrawLines(double width) const
{
    glLineWidth(static_cast<float>(width));
    std::size_t first = 0;
    for (const std::size_t end : m_runs.ends) {
        glDrawArrays(GL_LINE_STRIP, static_cast<GLint>(first), static_cast<GLsizei>(end - first));
        first = end;
    }
}

void CTrackMdl::GetInf(CMdlInf& inf)
{
    inf.name = L"Track";
    inf.kind = L"Track";
    const History<TrackPoint>& track = m_playback.Track();
    for (std::size_t i = 0; i < track.Size(); ++i) {
        const GroundPoint place = m_plane.PlaceOf(track[i].latitude, track[i].longitude);
        const CV3 at(place.east, place.north, height);
        Widen(inf, at, at);
    }
}

} // namespace demo
