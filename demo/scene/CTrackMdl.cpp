#include "demo/scene/CTrackMdl.h"

#include "display/CDsp.h"
#include "display/CMdlInf.h"
#include "platform/Vant.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <GL/gl.h>

namespace demo
{
namespace
{

constexpr double lineWidth = 2.5;  // units
constexpr double height = 0.05;    // metres over the water, which would cover it
constexpr double everything = 1e9; // metres

} // namespace

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

CTrackMdl::CTrackMdl(const Playback& playback, const LocalPlane& plane)
    : m_playback(playback)
    , m_plane(plane)
{
    lit = 0;
    selectable = 0;
    const COLORREF colour = Vant::light;
    mtrl.diffuse = {GetRValue(colour) / 255.0F, GetGValue(colour) / 255.0F, GetBValue(colour) / 255.0F};
}

void CTrackMdl::Draw(CDsp& dsp)
{
    const GroundWindow window = ShownGround(dsp);
    m_runs = TrackRuns::Of(m_playback.Track(), m_plane, window, std::move(m_runs));
    if (m_runs.vertices.empty())
        return;
    dsp.PushOrg({window.origin.east, window.origin.north, height});
    glLineWidth(static_cast<float>(lineWidth * dsp.Dpi().Dpi() / CDpi::base));
    glEnableClientState(GL_VERTEX_ARRAY);
    glVertexPointer(2, GL_FLOAT, sizeof(TrackRuns::Vertex), m_runs.vertices.data());
    std::size_t first = 0;
    for (const std::size_t end : m_runs.ends) {
        glDrawArrays(GL_LINE_STRIP, static_cast<GLint>(first), static_cast<GLsizei>(end - first));
        first = end;
    }
    glDisableClientState(GL_VERTEX_ARRAY);
    dsp.PopOrg();
}

void CTrackMdl::GetInf(CMdlInf& inf)
{
    inf.name = L"Track";
    inf.kind = L"Track";
    const History<TrackPoint>& track = m_playback.Track();
    for (std::size_t i = 0; i < track.Size(); ++i) {
        const GroundPoint place = m_plane.PlaceOf(track[i].latitude, track[i].longitude);
        const CV3 at(place.east, place.north, height);
        inf.lower = i > 0 ? CV3(std::min(inf.lower.x, at.x), std::min(inf.lower.y, at.y), height) : at;
        inf.upper = i > 0 ? CV3(std::max(inf.upper.x, at.x), std::max(inf.upper.y, at.y), height) : at;
        inf.hasExt = 1;
    }
}

} // namespace demo
