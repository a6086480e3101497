#include "CSeabed.h"

#include <GL/gl.h>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace
{

constexpr int lineCount = 161;
constexpr double side = 800; // metres
constexpr double step = side / (lineCount - 1);
constexpr double shallowest = 6;
constexpr double deepest = 62;

struct Tint {
    double depth;
    float colour[3];
};
constexpr Tint tints[] = {{6, {0.93F, 0.84F, 0.58F}},
                          {12, {0.55F, 0.78F, 0.62F}},
                          {22, {0.22F, 0.60F, 0.66F}},
                          {38, {0.13F, 0.38F, 0.62F}},
                          {62, {0.09F, 0.17F, 0.42F}}};

void ColourOf(double depth, float (&colour)[4])
{
    const Tint* upper = std::find_if(std::begin(tints) + 1, std::end(tints) - 1,
                                     [depth](const Tint& tint) { return depth < tint.depth; });
    const Tint& lower = *(upper - 1);
    const auto share =
        static_cast<float>(std::clamp((depth - lower.depth) / (upper->depth - lower.depth), 0.0, 1.0));
    for (int i = 0; i < 3; ++i)
        colour[i] = lower.colour[i] + (upper->colour[i] - lower.colour[i]) * share;
    colour[3] = 1;
}

} // namespace

double CSeabed::DepthAt(double east, double north)
{
    const double channel = std::exp(-ML::Sqr((north - 0.35 * east + 60 * std::sin(east / 130)) / 95));
    const double bank = std::exp(-(ML::Sqr((east + 190) / 120) + ML::Sqr((north - 190) / 100)));
    const double knoll = std::exp(-(ML::Sqr((east - 215) / 70) + ML::Sqr((north + 170) / 85)));
    const double ripples = 1.1 * std::sin(east / 17 + north / 40) + 0.7 * std::sin(north / 13 - east / 31);
    return std::clamp(26 + 33 * channel - 22 * bank - 17 * knoll + ripples, shallowest, deepest);
}

CSeabed::CSeabed(const CV3& centre)
    : m_centre(centre)
{
    mtrl.name = L"Sea bed";
    mtrl.specular = CRgbf(0, 0, 0); // mud does not shine
    m_corners.reserve(lineCount * lineCount);
    for (int row = 0; row < lineCount; ++row) {
        for (int column = 0; column < lineCount; ++column) {
            const double east = column * step - side / 2;
            const double north = row * step - side / 2;
            const double depth = DepthAt(east, north);
            CV3 normal((DepthAt(east + step, north) - DepthAt(east - step, north)) / (2 * step),
                       (DepthAt(east, north + step) - DepthAt(east, north - step)) / (2 * step), 0.45);
            normal.Normalise(); // flatter than it is, for the relief to be seen
            Corner& corner = m_corners.emplace_back();
            ColourOf(depth, corner.colour);
            for (int i = 0; i < 3; ++i)
                corner.normal[i] = static_cast<float>(normal[i]);
            corner.place[0] = static_cast<float>(east);
            corner.place[1] = static_cast<float>(north);
            corner.place[2] = static_cast<float>(-depth);
        }
    }
    for (unsigned row = 0; row + 1 < lineCount; ++row) {
        for (unsigned column = 0; column + 1 < lineCount; ++column) {
            const unsigned corner = row * lineCount + column;
            for (const unsigned each : {corner, corner + 1, corner + lineCount + 1, corner + lineCount})
                m_faces.push_back(each);
        }
    }
}

void CSeabed::Draw(CDsp& dsp)
{
    dsp.PushOrg(m_centre); // floats are exact from here, not from zero
    glEnable(GL_COLOR_MATERIAL);
    glInterleavedArrays(GL_C4F_N3F_V3F, 0, m_corners.data());
    glDrawElements(GL_QUADS, static_cast<GLsizei>(m_faces.size()), GL_UNSIGNED_INT, m_faces.data());
    dsp.PopOrg();
}

void CSeabed::GetInf(CMdlInf& inf)
{
    inf.name = mtrl.name;
    inf.kind = L"Surface";
    inf.hasExt = 1;
    inf.lower = m_centre + CV3(-side / 2, -side / 2, -deepest);
    inf.upper = m_centre + CV3(side / 2, side / 2, -shallowest);
}

void CSeabed::OnHit(CDsp&, CDspMHit& hit)
{
    hit.text = L"Sea bed, " + EUnits::Get(0, m_centre.z - hit.pt.z, L"%.1lf", 1);
}
