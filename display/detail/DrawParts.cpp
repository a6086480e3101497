#include "display/detail/DrawParts.h"

#include "display/detail/CornerNormals.h"

namespace vant::detail
{

std::vector<DrawPart> MakeParts(const MeshData& mesh, const MaterialNames& names)
{
    const std::vector<Normal> normals = CornerNormals(mesh);
    const auto corner = [&](std::uint16_t vertex, const Normal& normal) {
        const Point3& at = mesh.vertices[vertex];
        const MapPoint texture = mesh.mapping.empty() ? MapPoint{} : mesh.mapping[vertex];
        return Corner{texture.u,
                      texture.v,
                      {normal.x, normal.y, normal.z},
                      {static_cast<float>(at.x), static_cast<float>(at.y), static_cast<float>(at.z)}};
    };
    std::vector<DrawPart> parts;
    for (const FaceGroup& group : GroupFaces(mesh, names)) {
        DrawPart& part = parts.emplace_back();
        part.material = group.material;
        part.corners.reserve(group.faces.size() * 3);
        for (const std::uint16_t number : group.faces) {
            const MeshFace& face = mesh.faces[number];
            const Normal* const normal = &normals[std::size_t{3} * number];
            part.corners.push_back(corner(face.a, normal[0]));
            part.corners.push_back(corner(face.b, normal[1]));
            part.corners.push_back(corner(face.c, normal[2]));
        }
    }
    return parts;
}

} // namespace vant::detail
