#pragma once

#include "display/detail/FaceGroups.h"
#include "display/detail/ModelData.h"

#include <vector>

namespace vant::detail
{

/** A corner of a triangle, laid out as OpenGL's GL_T2F_N3F_V3F. */
struct Corner {
    float u, v;
    float normal[3];
    float place[3];
};
static_assert(sizeof(Corner) == 8 * sizeof(float), "OpenGL counts on it");

/** Triangles of one material, three corners each. */
struct DrawPart {
    std::size_t material = MaterialNames::none; ///< its number; none: the faces have no material
    std::vector<Corner> corners;
};

/** Divides a mesh into parts that are drawn with one material each, in the order of GroupFaces(). For meshes
 * as Read3ds() leaves them. */
std::vector<DrawPart> MakeParts(const MeshData& mesh, const MaterialNames& names);

} // namespace vant::detail
