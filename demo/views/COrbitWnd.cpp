#include "demo/views/COrbitWnd.h"

#include "demo/draw/ColourSet.h"
#include "demo/scene/Drawing.h"
#include "platform/Vant.h"

#include <algorithm>
#include <cmath>

#include <GL/gl.h>

namespace demo
{
namespace
{

constexpr double firstZoom = 20.0; // metres from the lower to the upper edge
constexpr double firstBearing = 25.0;
constexpr double firstElevation = 17.0;

/** Where the horizon is, -1 at the lower edge of the view to 1 at the upper one; it may be outside. */
double HorizonIn(const CDspCam& cam)
{
    constexpr double steepest = 1.5; // radians: farther up or down it is outside at any angle of view
    const double elev = std::clamp(cam.elev, -steepest, steepest);
    return std::tan(elev) / std::tan(cam.fov / 2);
}

/** The sky, and the depth that is seen through the water where the sea bed is not known. */
void DrawSky(double horizonAt)
{
    constexpr double skyHeight = 1.4; // of half the view, from the horizon to where the sky is darkest
    constexpr double haze = 0.03;     // below the horizon: the drawn sea has an end
    const auto row = [](double at) {
        glVertex2d(-1, at);
        glVertex2d(1, at);
    };
    glMatrixMode(GL_PROJECTION);
    glPushMatrix();
    glLoadIdentity();
    glMatrixMode(GL_MODELVIEW);
    glPushMatrix();
    glLoadIdentity();
    glDisable(GL_DEPTH_TEST);
    glBegin(GL_TRIANGLE_STRIP);
    SetGlColour(CSeaMdl::DeepColour());
    row(-1);
    row(std::max(horizonAt - haze, -1.0));
    SetGlColour(CSeaMdl::HorizonColour());
    row(std::max(horizonAt - haze, -1.0));
    row(horizonAt);
    SetGlColour(Mix(Vant::back, CSeaMdl::HorizonColour(), 0.12));
    row(horizonAt + skyHeight);
    row(std::max(horizonAt + skyHeight, 1.0));
    glEnd();
    glEnable(GL_DEPTH_TEST);
    glPopMatrix();
    glMatrixMode(GL_PROJECTION);
    glPopMatrix();
    glMatrixMode(GL_MODELVIEW);
}

} // namespace

IMPLEMENT_DYNAMIC(COrbitWnd, CSceneWnd)

COrbitWnd::COrbitWnd(Session& session, Scene& scene)
    : CSceneWnd(L"Orbit", L"Orbit view", session, scene, session.settings.orbit)
{
    CDspCam cam = Cam();
    cam.kind = CDspCam::orbit;
    cam.zoom = firstZoom;
    cam.align = ML::D2R(firstBearing);
    cam.elev = ML::D2R(firstElevation);
    SetCam(cam);
    mouseMode = mouseRotate;
    graticule = 0; // the sea is drawn instead
    scaleBar = 0;
    SetLight(0, RGB(255, 246, 230), 0.30, {-0.5, -0.7, 0.75}); // the sun
    SetLight(1, RGB(120, 150, 190), 0.10, {0.7, 0.5, 0.25});   // the sky from the other side
}

void COrbitWnd::DrawScene()
{
    if (!IsPicking())
        DrawSky(HorizonIn(Cam()));
    CSceneWnd::DrawScene();
}

CString COrbitWnd::Note() const
{
    return GetUp() == upCourse ? L"From astern" : L"Orbit";
}

} // namespace demo
