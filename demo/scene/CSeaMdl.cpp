#include "demo/scene/CSeaMdl.h"

#include "demo/draw/ColourSet.h"
#include "demo/scene/Drawing.h"
#include "display/CDsp.h"
#include "display/CMdlInf.h"
#include "platform/Vant.h"

#include <cmath>
#include <iterator>
#include <numbers>

#include <GL/gl.h>

namespace demo
{
namespace
{

constexpr double horizon = 4000.0; // metres
constexpr int sectors = 64;

/** How the water looks at a distance from the boat. */
struct Ring {
    double radius;  // metres
    double towards; // the horizon's colour, 0 to 1
    double opacity;
};
constexpr Ring rings[] = {{0, 0, 0.42},      {30, 0, 0.45},     {90, 0.05, 0.62}, {220, 0.2, 0.85},
                          {600, 0.55, 0.97}, {1500, 0.85, 1.0}, {horizon, 1, 1.0}};

COLORREF NearColour()
{
    return Mix(Vant::back, RGB(20, 110, 150), 0.6);
}

void Corner(const Ring& ring, int sector)
{
    const double angle = 2 * std::numbers::pi * sector / sectors;
    const COLORREF colour = Mix(NearColour(), CSeaMdl::HorizonColour(), ring.towards);
    SetGlColour(colour, static_cast<GLubyte>(std::lround(ring.opacity * 255)));
    glVertex2d(ring.radius * std::cos(angle), ring.radius * std::sin(angle));
}

} // namespace

COLORREF CSeaMdl::DeepColour() noexcept
{
    return Mix(Vant::back, RGB(0, 30, 60), 0.5);
}

COLORREF CSeaMdl::HorizonColour() noexcept
{
    return Mix(Vant::med, Vant::light, 0.45);
}

CSeaMdl::CSeaMdl()
{
    lit = 0;
    selectable = 0;
}

void CSeaMdl::Draw(CDsp& dsp)
{
    dsp.PushOrg(m_middle);
    glEnable(GL_BLEND);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    glDepthMask(GL_FALSE);
    for (std::size_t i = 1; i < std::size(rings); ++i) {
        glBegin(GL_TRIANGLE_STRIP);
        for (int sector = 0; sector <= sectors; ++sector) {
            Corner(rings[i - 1], sector);
            Corner(rings[i], sector);
        }
        glEnd();
    }
    glDepthMask(GL_TRUE);
    dsp.PopOrg();
}

void CSeaMdl::GetInf(CMdlInf& inf)
{
    inf.name = L"Sea";
    inf.kind = L"Surface";
    inf.hasExt = 1;
    inf.lower = m_middle - CV3(horizon, horizon, 0);
    inf.upper = m_middle + CV3(horizon, horizon, 0);
}

} // namespace demo
