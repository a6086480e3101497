// CDsp: finding what the user points at.
#include "display/CDsp.h"

#include "controls/CEMenu.h"
#include "display/CDspMInf.h"
#include "display/CMdl.h"
#include "display/CMdlInf.h"
#include "display/detail/GLState.h"
#include "display/detail/SelectHits.h"
#include "display/detail/ViewCameraOf.h"
#include "display/detail/ViewState.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <memory>
#include <vector>

using namespace vant::detail;

namespace
{

/** Side of the square in which something has to be drawn to be hit, units: as exactly as a hand aims. */
constexpr double aim = 7;

/** What CDspMInf tells of the pick itself. */
void Describe(const ViewGeometry& geometry, double x, double y, CDspMInf& inf)
{
    const Point3 ends[] = {geometry.AtDepth(x, y, geometry.Near()), geometry.AtDepth(x, y, geometry.Far())};
    double* out = inf.ray;
    for (const Point3& at : ends) {
        for (const double number : {at.x, at.y, at.z})
            *out++ = number;
    }
    std::fill(out, std::end(inf.ray), 0.0);
    out = inf.view;
    const ViewAxes& axes = geometry.Axes();
    const Point3 zero = geometry.ToEye({});
    const double origin[] = {zero.x, zero.y, zero.z};
    const Point3 rows[] = {axes.right, axes.up, axes.front};
    for (int row = 0; row < 3; ++row) {
        for (const double number : {rows[row].x, rows[row].y, rows[row].z, origin[row]})
            *out++ = number;
    }
}

/** Draws for selection, with as large a buffer as it takes. */
template <class Draw>
std::vector<SelectHit> Select(Draw draw)
{
    constexpr std::size_t leastSize = 16'384;
    constexpr std::size_t mostSize = 16'777'216;
    for (std::size_t size = leastSize;; size *= 4) {
        std::vector<std::uint32_t> buffer(size);
        static_assert(sizeof(GLuint) == sizeof(std::uint32_t));
        glSelectBuffer(static_cast<GLsizei>(size), reinterpret_cast<GLuint*>(buffer.data()));
        glRenderMode(GL_SELECT);
        draw();
        const GLint records = glRenderMode(GL_RENDER);
        if (records >= 0 || size >= mostSize)
            return ReadSelectHits(buffer, records >= 0 ? records : static_cast<int>(size));
    }
}

} // namespace

int CDsp::Pick(double atX, double atY, CDspMInf& inf)
{
    inf.ClearHits();
    CRect client;
    if (m_hWnd)
        GetClientRect(&client);
    const ViewGeometry geometry =
        SceneGeometry(client.Width() - insetLeft - insetRight, client.Height() - insetTop - insetBottom);
    if (geometry.IsEmpty() || m_state->scene || !std::isfinite(atX) || !std::isfinite(atY))
        return 0;
    atX -= insetLeft;
    atY -= insetTop;
    Describe(geometry, atX, atY, inf);
    std::vector<SelectHit> found;
    WithContext([&] {
        const GLStateKept state;
        m_state->scene = geometry;
        m_state->isPicking = true;
        glMatrixMode(GL_PROJECTION);
        glLoadMatrixd(geometry.PickProjection(atX, atY, aim * OverlayScale()).data());
        found = Select([&] {
            glMatrixMode(GL_MODELVIEW);
            glLoadMatrixd(geometry.ModelView(Point3()).data());
            glInitNames();
            DrawScene();
        });
        m_state->isPicking = false;
        m_state->scene.reset();
    });
    // The nearest first: each is then the last so far, also where a pick finds thousands.
    std::stable_sort(found.begin(), found.end(),
                     [](const SelectHit& a, const SelectHit& b) { return a.depth < b.depth; });
    m_state->hitNames.clear();
    for (const SelectHit& each : found)
        TakeHit(geometry, atX, atY, each, inf);
    if (inf.count > 0) {
        const CV3& nearest = inf.hits.GetHead()->pt;
        std::copy(nearest.V(), nearest.V() + 3, inf.ray + 6);
    }
    return inf.count;
}

void CDsp::TakeHit(const ViewGeometry& geometry, double atX, double atY, const SelectHit& found,
                   CDspMInf& inf)
{
    auto hit = std::make_unique<CDspMHit>();
    const double depth = geometry.DepthOfWindow(found.depth);
    hit->part = static_cast<int>(found.part);
    hit->depth = geometry.DistanceOf(atX, atY, depth);
    hit->pt = FromPoint(geometry.AtDepth(atX, atY, depth));
    // Drawables are numbered from 1 on, in their order.
    CVantPtr* pos = found.owner > 0 && Mdls() ? Mdls()->GetHeadPos() : nullptr;
    for (unsigned number = 1; pos && number < found.owner; ++number)
        pos = pos->next;
    if (pos) {
        hit->mdl = Mdls()->GetAt(pos);
        const auto [known, isNew] = m_state->hitNames.try_emplace(found.owner);
        if (isNew) {
            CMdlInf about;
            hit->mdl->GetInf(about);
            known->second = about.name;
        }
        hit->text = known->second;
        hit->mdl->OnHit(*this, *hit);
    }
    inf.AddHit(std::move(hit));
}

void CDsp::OnPick(CDspMInf&, int) {}

void CDsp::PickFor(int how, double atX, double atY)
{
    CDspMInf inf;
    Pick(atX, atY, inf);
    const HWND wnd = m_hWnd;
    OnPick(inf, how);
    if (how != pickMenu || !::IsWindow(wnd))
        return;
    CPoint at(static_cast<int>(atX), static_cast<int>(atY));
    ClientToScreen(&at);
    OpenMenu(inf, at);
}

void CDsp::OnMenu(CDspMInf& inf, CEMenu& menu)
{
    std::vector<const CMdl*> asked; // a drawable may have been hit in several parts
    for (CVantPtr* pos = inf.hits.GetHeadPos(); pos;) {
        CMdl* const mdl = inf.hits.GetNext(pos)->mdl;
        // What heard of the pick may have removed it.
        if (!mdl || !Mdls() || !Mdls()->Find(mdl) ||
            std::find(asked.begin(), asked.end(), mdl) != asked.end())
            continue;
        asked.push_back(mdl);
        menu.AddSep();
        mdl->OnMenu(*this, menu);
    }
}

void CDsp::OpenMenu(CDspMInf& inf, CPoint screenPt)
{
    const auto menu = std::make_shared<CEMenu>();
    OnMenu(inf, *menu);
    m_state->menu = menu;
    menu->TrackPopup(screenPt, this); // what is chosen may destroy the view
}

void CDsp::CancelMenu()
{
    if (const auto menu = m_state->menu.lock())
        menu->Cancel();
}
