#include "demo/scene/CSeaBedMdl.h"

#include "colour/CPal.h"
#include "demo/draw/ColourSet.h"
#include "demo/scene/Drawing.h"
#include "display/CDsp.h"
#include "display/CMdlInf.h"
#include "platform/Vant.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include <GL/gl.h>

namespace demo
{
namespace
{

constexpr double strength = 0.55; // of the palette's colours at 0 dB, so that the track stands out
constexpr float relief = 4.0F;    // slopes are shaded as if they were so much steeper: real ones hardly show

/** A corner as OpenGL takes it. */
struct Corner {
    float place[3];
    float normal[3];
    GLubyte colour[4];
};

Corner CornerOf(const SeaBed::Vertex& vertex, COLORREF colour)
{
    return {{vertex.x, vertex.y, -vertex.depth},
            {vertex.slopeEast * relief, vertex.slopeNorth * relief, 1.0F},
            {GetRValue(colour), GetGValue(colour), GetBValue(colour),
             static_cast<GLubyte>(std::lround(vertex.surety * 255.0F))}};
}

} // namespace

CSeaBedMdl::CSeaBedMdl(const CPal& pal)
    : m_pal(pal)
{
    selectable = 0;
    mtrl.specular = {0, 0, 0};
}

void CSeaBedMdl::Take(SeaBed& bed)
{
    for (const SeaBed::Key& key : bed.TakeChanged())
        m_tiles[key] = bed.Surface(key);
    m_shallowest = bed.Shallowest();
    m_deepest = bed.Deepest();
    ModelChanged(0);
}

void CSeaBedMdl::Clear()
{
    m_tiles.clear();
    ModelChanged(0);
}

void CSeaBedMdl::SetGain(double decibels)
{
    m_gain = decibels;
    ModelChanged(0);
}

void CSeaBedMdl::Draw(CDsp& dsp)
{
    constexpr double decade = 20.0; // decibels of a tenfold amplitude
    const double dimming = 1.0 - std::min(strength * std::pow(10.0, m_gain / decade), 1.0);
    const auto colourOf = [&](double depth) { return Mix(m_pal.GetCol(depth), Vant::back, dimming); };
    glColorMaterial(GL_FRONT_AND_BACK, GL_AMBIENT_AND_DIFFUSE);
    glEnable(GL_COLOR_MATERIAL);
    glEnable(GL_BLEND);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    glEnableClientState(GL_VERTEX_ARRAY);
    glEnableClientState(GL_NORMAL_ARRAY);
    glEnableClientState(GL_COLOR_ARRAY);
    std::vector<Corner> corners;
    for (const auto& [key, tile] : m_tiles) {
        if (tile.triangles.empty())
            continue;
        corners.clear();
        for (const SeaBed::Vertex& vertex : tile.vertices)
            corners.push_back(CornerOf(vertex, colourOf(static_cast<double>(vertex.depth))));
        dsp.PushOrg({tile.origin.east, tile.origin.north, 0});
        glVertexPointer(3, GL_FLOAT, sizeof(Corner), corners.front().place);
        glNormalPointer(GL_FLOAT, sizeof(Corner), corners.front().normal);
        glColorPointer(4, GL_UNSIGNED_BYTE, sizeof(Corner), corners.front().colour);
        glDrawElements(GL_TRIANGLES, static_cast<GLsizei>(tile.triangles.size()), GL_UNSIGNED_INT,
                       tile.triangles.data());
        dsp.PopOrg();
    }
    glDisableClientState(GL_COLOR_ARRAY);
    glDisableClientState(GL_NORMAL_ARRAY);
    glDisableClientState(GL_VERTEX_ARRAY);
}

void CSeaBedMdl::GetInf(CMdlInf& inf)
{
    constexpr double tileSize = SeaBed::mesh * SeaBed::tileSide;
    inf.name = L"Sea bed";
    inf.kind = L"Surface";
    for (const auto& [key, tile] : m_tiles) {
        const CV3 low(tile.origin.east, tile.origin.north, -m_deepest);
        const CV3 high(low.x + tileSize, low.y + tileSize, -m_shallowest);
        Widen(inf, low, high);
    }
}

} // namespace demo
