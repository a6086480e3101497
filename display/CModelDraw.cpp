// CModel: drawing.
#include "display/CModel.h"

#include "display/CDsp.h"
#include "display/detail/DrawParts.h"
#include "display/detail/GLName.h"
#include "display/detail/GLState.h"

#include <cstdint>
#include <vector>

using namespace vant::detail;

namespace
{

/** The share of what is behind that a surface hides, 0..1. */
float Opacity(const CDspMtrl& mtrl)
{
    // 1 is what the reader makes of a file that says 0 %.
    const bool isTransparent = mtrl.transparency > 0 && mtrl.transparency < 1;
    return (isTransparent ? 1 - mtrl.transparency : 1) * mtrl.diffuse.alpha;
}

void DrawTriangles(const std::vector<Corner>& corners)
{
    glInterleavedArrays(GL_T2F_N3F_V3F, 0, corners.data());
    glDrawArrays(GL_TRIANGLES, 0, static_cast<GLsizei>(corners.size()));
}

void UseMtrl(CDspMtrl& mtrl)
{
    mtrl.SetMtrl();
    // The diffuse colour is that of the vertices: see SetUp().
    glColor4f(mtrl.diffuse.red, mtrl.diffuse.green, mtrl.diffuse.blue, Opacity(mtrl));
    (mtrl.texture ? glEnable : glDisable)(GL_TEXTURE_2D);
}

void DrawOpaque(CDspMtrl& mtrl, const std::vector<Corner>& corners)
{
    UseMtrl(mtrl);
    // Light falls on the side that is seen.
    glLightModeli(GL_LIGHT_MODEL_TWO_SIDE, mtrl.dblSided);
    (mtrl.dblSided ? glDisable : glEnable)(GL_CULL_FACE);
    DrawTriangles(corners);
}

void DrawTransparent(CDspMtrl& mtrl, const std::vector<Corner>& corners)
{
    UseMtrl(mtrl);
    glLightModeli(GL_LIGHT_MODEL_TWO_SIDE, mtrl.dblSided);
    glEnable(GL_CULL_FACE);
    if (mtrl.dblSided) { // the far side first, which is seen through the near one
        glCullFace(GL_FRONT);
        DrawTriangles(corners);
    }
    glCullFace(GL_BACK);
    DrawTriangles(corners);
}

void SetUp()
{
    glColorMaterial(GL_FRONT_AND_BACK, GL_DIFFUSE);
    glEnable(GL_COLOR_MATERIAL);
    glEnable(GL_CULL_FACE);
    glEnable(GL_LIGHTING);
    glEnable(GL_TEXTURE_2D);
    glEnable(GL_NORMALIZE); // the view may scale
    glFrontFace(GL_CCW);
    glCullFace(GL_BACK);
    glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_MODULATE);
}

/** Makes the textures of the materials that faces have: in a list that is being compiled it would be too
 * late. */
void LoadTextures(const ModelData& model, const MaterialNames& names, CPtrAry<CDspMtrl>& mtrls)
{
    std::vector<bool> isLoaded(mtrls.GetSize());
    for (const MeshData& mesh : model.meshes) {
        for (const FaceMaterial& list : mesh.materials) {
            const std::size_t number = names.Find(list.material);
            if (number >= isLoaded.size() || isLoaded[number])
                continue;
            mtrls.GetAt(static_cast<unsigned>(number))->SetMtrl();
            isLoaded[number] = true;
        }
    }
}

void DrawMeshes(const ModelData& model, const MaterialNames& names, CPtrAry<CDspMtrl>& mtrls)
{
    SetUp();
    CDspMtrl plain;
    const auto mtrlOf = [&](const DrawPart& part) -> CDspMtrl& {
        return part.material < mtrls.GetSize() ? *mtrls.GetAt(static_cast<unsigned>(part.material)) : plain;
    };
    std::vector<DrawPart> transparent;
    for (const MeshData& mesh : model.meshes) {
        for (DrawPart& part : MakeParts(mesh, names)) {
            CDspMtrl& mtrl = mtrlOf(part);
            if (Opacity(mtrl) < 1)
                transparent.push_back(std::move(part));
            else
                DrawOpaque(mtrl, part.corners);
        }
    }
    if (transparent.empty())
        return;
    glEnable(GL_BLEND);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    glDepthMask(GL_FALSE);
    for (const DrawPart& part : transparent)
        DrawTransparent(mtrlOf(part), part.corners);
}

/** The same triangles with nothing but their places and sides. Not the list: drivers replay one for a pick
 * slowly, and some keep what they made of it for good. */
void DrawForPick(const ModelData& model, CPtrAry<CDspMtrl>& mtrls)
{
    const MaterialNames names(model.materials);
    glFrontFace(GL_CCW);
    glCullFace(GL_BACK);
    glEnableClientState(GL_VERTEX_ARRAY);
    std::vector<GLushort> corners;
    for (const MeshData& mesh : model.meshes) {
        glVertexPointer(3, GL_DOUBLE, sizeof(Point3), mesh.vertices.data());
        for (const FaceGroup& group : GroupFaces(mesh, names)) {
            const bool isOneSided = group.material < mtrls.GetSize() &&
                                    !mtrls.GetAt(static_cast<unsigned>(group.material))->dblSided;
            (isOneSided ? glEnable : glDisable)(GL_CULL_FACE);
            corners.clear();
            for (const std::uint16_t number : group.faces) {
                const MeshFace& face = mesh.faces[number];
                corners.insert(corners.end(), {face.a, face.b, face.c});
            }
            glDrawElements(GL_TRIANGLES, static_cast<GLsizei>(corners.size()), GL_UNSIGNED_SHORT,
                           corners.data());
        }
    }
}

/** The settings that drawing a model changes. */
constexpr GLbitfield changedSettings = GL_ENABLE_BIT | GL_LIGHTING_BIT | GL_POLYGON_BIT | GL_TEXTURE_BIT |
                                       GL_CURRENT_BIT | GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT;

bool IsCompiling()
{
    GLint list = 0;
    glGetIntegerv(GL_LIST_INDEX, &list);
    return list != 0;
}

} // namespace

void CModel::DrawModel(CDsp& dsp)
{
    if (m_data->meshes.empty())
        return;
    const GLStateKept state(changedSettings);
    if (dsp.IsPicking()) {
        DrawForPick(*m_data, mtrls);
        return;
    }
    if (m_list && m_list->Exists()) {
        glCallList(m_list->First());
        return;
    }
    const MaterialNames names(m_data->materials);
    LoadTextures(*m_data, names, mtrls);
    // Lists cannot be compiled within one another.
    const GLuint list = IsCompiling() ? 0 : glGenLists(1);
    if (!list) {
        DrawMeshes(*m_data, names, mtrls);
        return;
    }
    m_list = std::make_unique<const GLName>(GLName::Kind::lists, list);
    glNewList(list, GL_COMPILE);
    DrawMeshes(*m_data, names, mtrls);
    glEndList();
    glCallList(list);
}
