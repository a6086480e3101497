// CDsp: drawing the scene.
#include "display/CDsp.h"

#include "display/CMdl.h"
#include "display/detail/GLState.h"
#include "display/detail/ViewCameraOf.h"
#include "display/detail/ViewState.h"

#include <GL/gl.h>

using namespace vant::detail;

namespace
{

void LoadMatrix(GLenum mode, const ViewMatrix& matrix)
{
    glMatrixMode(mode);
    glLoadMatrixd(matrix.data());
}

void Clear(COLORREF colour)
{
    constexpr float whole = 255;
    glClearColor(static_cast<float>(GetRValue(colour)) / whole, static_cast<float>(GetGValue(colour)) / whole,
                 static_cast<float>(GetBValue(colour)) / whole, 1);
    glDepthMask(GL_TRUE);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
}

} // namespace

/** For a drawing of the whole view, with depths that suit what it shows. */
ViewGeometry CDsp::SceneGeometry(double width, double height)
{
    ViewGeometry geometry(ViewCameraOf(m_cam), width, height);
    if (!m_state->isBoxKnown) {
        bool isWhole = false;
        m_state->box = ShownBox(isWhole);
        if (!isWhole)
            m_state->box.reset();
        m_state->isBoxKnown = true;
    }
    if (m_state->box)
        geometry.FitDepth(*m_state->box);
    return geometry;
}

void CDsp::Render()
{
    Clear(backCol);
    const ViewGeometry geometry = SceneGeometry(ViewRc().Width(), ViewRc().Height());
    if (geometry.IsEmpty())
        return;
    const GLStateKept state;
    m_state->scene = geometry;
    m_state->labels.clear();
    LoadMatrix(GL_PROJECTION, geometry.Projection());
    LoadMatrix(GL_MODELVIEW, geometry.ModelView(ToPoint(CV3())));

    if (!lightsInScene)
        glLoadIdentity();
    SetupLights();
    LoadMatrix(GL_MODELVIEW, geometry.ModelView(ToPoint(CV3())));
    glEnable(GL_DEPTH_TEST);
    glDepthFunc(GL_LEQUAL);
    DrawScene();

    if (graticule)
        DrawGraticule();
    BeginOverlay();
    DrawOverlay();
    m_state->scene.reset();
}

void CDsp::SetupLights()
{
    // What is dark on all sides is black: ambient light is a light's own.
    constexpr float none[] = {0, 0, 0, 1};
    glLightModelfv(GL_LIGHT_MODEL_AMBIENT, none);
    for (int i = 0; i < lightCount; ++i) {
        lights[i].light = GL_LIGHT0 + static_cast<unsigned>(i);
        lights[i].SetupLight();
    }
}

void CDsp::DrawScene()
{
    unsigned number = 0;
    for (CVantPtr* pos = Mdls() ? Mdls()->GetHeadPos() : nullptr; pos;) {
        CMdl& mdl = *Mdls()->GetNext(pos);
        ++number;
        if (!Shows(mdl) || (m_state->isPicking && !mdl.selectable))
            continue;
        glInitNames();
        glPushName(number);
        glPushName(0);
        DrawMdl(mdl);
    }
}

void CDsp::DrawMdl(CMdl& mdl)
{
    const GLStateKept state;
    if (!m_state->isPicking) {
        const CRgbf& colour = mdl.mtrl.diffuse;
        glColor4f(colour.red, colour.green, colour.blue, colour.alpha);
        if (mdl.lit) {
            glEnable(GL_LIGHTING);
            glEnable(GL_NORMALIZE);
            mdl.mtrl.SetMtrl();
        }
    }
    mdl.Draw(*this);
    // Whatever the drawable left behind.
    if (m_state->scene)
        LoadMatrix(GL_MODELVIEW, m_state->scene->ModelView(ToPoint(CV3())));
}

int CDsp::IsPicking() const noexcept
{
    return m_state->isPicking;
}

void CDsp::PushOrg(const CV3& at)
{
    glPushMatrix();
    if (m_state->scene)
        glLoadMatrixd(m_state->scene->ModelView(ToPoint(at)).data());
}

void CDsp::PopOrg()
{
    glPopMatrix();
}

void CDsp::Label(const CV3& pt, const CString& text, COLORREF colour, double dx, double dy, int align)
{
    if (m_state->scene && !m_state->isPicking)
        m_state->labels.push_back({pt, text, colour, dx, dy, align});
}
