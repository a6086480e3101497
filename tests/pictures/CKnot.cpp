#include "CKnot.h"

#include <GL/gl.h>

#include <cmath>

namespace
{

constexpr int alongCount = 480;
constexpr int aroundCount = 56;
constexpr double thickness = 0.52; // radius of the rope
constexpr double reach = 3;        // of the rope's middle

/** The middle of the rope. */
CV3 Middle(double t)
{
    return {std::sin(t) + 2 * std::sin(2 * t), std::cos(t) - 2 * std::cos(2 * t), -1.15 * std::sin(3 * t)};
}

void Copy(float (&to)[3], const CV3& from)
{
    to[0] = static_cast<float>(from.x);
    to[1] = static_cast<float>(from.y);
    to[2] = static_cast<float>(from.z);
}

} // namespace

CKnot::CKnot()
{
    constexpr double step = 1e-3; // for the direction of the rope
    m_corners.resize(alongCount * aroundCount);
    for (int i = 0; i < alongCount; ++i) {
        const double t = ML::pi2 * i / alongCount;
        const CV3 middle = Middle(t);
        CV3 ahead = Middle(t + step) - Middle(t - step);
        ahead.Normalise();
        CV3 side = ahead % CV3(0, 0, 1);
        side.Normalise();
        const CV3 top = side % ahead;
        for (int k = 0; k < aroundCount; ++k) {
            const double angle = ML::pi2 * k / aroundCount;
            const CV3 out = side * std::cos(angle) + top * std::sin(angle);
            Corner& corner = m_corners[static_cast<std::size_t>(i * aroundCount + k)];
            Copy(corner.normal, out);
            Copy(corner.place, (middle + out * thickness) * (1 / (reach + thickness)));
        }
    }
    for (int i = 0; i < alongCount; ++i) {
        for (int k = 0; k < aroundCount; ++k) {
            const int nextI = (i + 1) % alongCount;
            const int nextK = (k + 1) % aroundCount;
            for (const int corner : {i * aroundCount + k, nextI * aroundCount + k,
                                     nextI * aroundCount + nextK, i * aroundCount + nextK})
                m_faces.push_back(static_cast<unsigned>(corner));
        }
    }
}

void CKnot::GetInf(CMdlInf& inf)
{
    inf.name = mtrl.name;
    inf.kind = L"Knot";
    inf.hasExt = 1;
    inf.lower = {-1, -1, -0.5};
    inf.upper = {1, 1, 0.5};
}

void CKnot::DrawFaces() const
{
    glDrawElements(GL_QUADS, static_cast<GLsizei>(m_faces.size()), GL_UNSIGNED_INT, m_faces.data());
}

void CKnot::Draw(CDsp& dsp)
{
    // The view has set the material, and brings every setting back afterwards.
    glInterleavedArrays(GL_N3F_V3F, 0, m_corners.data());
    glEnable(GL_CULL_FACE);
    if (mtrl.diffuse.alpha < 1 && !dsp.IsPicking()) {
        // Through the front one sees the back, and of each only what is nearest.
        glEnable(GL_BLEND);
        glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
        glLightModeli(GL_LIGHT_MODEL_TWO_SIDE, GL_TRUE);
        glCullFace(GL_FRONT);
        DrawFaces();
        glClear(GL_DEPTH_BUFFER_BIT);
    }
    glCullFace(GL_BACK);
    DrawFaces();
}
