#include "tests/display/ModelCheck.h"

#include "display/detail/CornerNormals.h"
#include "display/detail/FaceGroups.h"
#include "display/detail/Read3ds.h"
#include "tests/display/Models.h"

#include <algorithm>
#include <cmath>

namespace support
{

namespace
{

using namespace vant::detail;

bool IsFinite(const Point3& point)
{
    return std::isfinite(point.x) && std::isfinite(point.y) && std::isfinite(point.z);
}

bool IsPart(float part)
{
    return part >= 0 && part <= 1;
}

bool IsColour(const ColourData& colour)
{
    return IsPart(colour.red) && IsPart(colour.green) && IsPart(colour.blue);
}

const char* FaultOf(const MaterialData& material)
{
    if (material.name.size() > longestMaterialName || material.texture.size() > longestTextureName)
        return "long material name";
    if (!IsColour(material.ambient) || !IsColour(material.diffuse) || !IsColour(material.specular))
        return "colour";
    if (material.transparency != 0 && !(material.transparency >= 0.01F && material.transparency <= 327.67F))
        return "transparency";
    return "";
}

const char* FaultOfLists(const MeshData& mesh)
{
    if (mesh.name.size() > longestObjectName)
        return "long object name";
    if (!std::all_of(mesh.axis.begin(), mesh.axis.end(), [](float part) { return std::isfinite(part); }))
        return "axis";
    if (!std::all_of(mesh.vertices.begin(), mesh.vertices.end(), IsFinite))
        return "vertex";
    for (const MeshFace& face : mesh.faces) {
        if (std::max({face.a, face.b, face.c}) >= mesh.vertices.size())
            return "corner beyond the vertices";
    }
    if (!mesh.mapping.empty() && mesh.mapping.size() != mesh.vertices.size())
        return "number of mapping coordinates";
    for (const MapPoint& point : mesh.mapping) {
        if (!std::isfinite(point.u) || !std::isfinite(point.v))
            return "mapping coordinate";
    }
    if (!mesh.smoothing.empty() && mesh.smoothing.size() != mesh.faces.size())
        return "number of smoothing sets";
    for (const FaceMaterial& list : mesh.materials) {
        if (list.faces.empty() || list.material.size() > longestMaterialName)
            return "material list";
        if (*std::max_element(list.faces.begin(), list.faces.end()) >= mesh.faces.size())
            return "material beyond the faces";
    }
    return "";
}

const char* FaultOfNormals(const MeshData& mesh)
{
    const std::vector<Normal> normals = CornerNormals(mesh);
    if (normals.size() != 3 * mesh.faces.size())
        return "number of normals";
    for (const Normal& normal : normals) {
        constexpr float tolerance = 1e-4F;
        if (!(std::fabs(std::hypot(normal.x, normal.y, normal.z) - 1) < tolerance))
            return "length of a normal";
    }
    return "";
}

const char* FaultOfGroups(const MeshData& mesh, const ModelData& model, const MaterialNames& names)
{
    std::vector<int> seen(mesh.faces.size());
    std::size_t last = 0;
    for (const FaceGroup& group : GroupFaces(mesh, names)) {
        if (group.material != MaterialNames::none && group.material >= model.materials.size())
            return "group of no material";
        if (!std::is_sorted(group.faces.begin(), group.faces.end()))
            return "order of a group's faces";
        if (group.material < last)
            return "order of the groups";
        last = group.material;
        for (const std::uint16_t face : group.faces)
            ++seen[face];
    }
    const bool eachOnce = std::all_of(seen.begin(), seen.end(), [](int times) { return times == 1; });
    return eachOnce ? "" : "face not in one group";
}

} // namespace

std::string FaultOf(const ModelData& model)
{
    std::string fault;
    const auto note = [&fault](const char* found) {
        if (fault.empty())
            fault = found;
    };
    for (const MaterialData& material : model.materials)
        note(FaultOf(material));
    const MaterialNames names(model.materials);
    for (const MeshData& mesh : model.meshes) {
        note(FaultOfLists(mesh));
        if (!fault.empty())
            return fault; // what follows would go beyond the lists
        note(FaultOfNormals(mesh));
        note(FaultOfGroups(mesh, model, names));
    }
    if (Read(Write3ds(model)) != model)
        note("written and read again it differs");
    return fault;
}

ModelData Read(std::string_view bytes)
{
    ModelData model;
    Read3ds(std::as_bytes(std::span(bytes)), model);
    return model;
}

std::size_t MostMemory(std::size_t fileSize)
{
    // The worst are meshes that are nothing but a header, in an object with a long name. Vectors that grow
    // may be twice as large as their contents.
    constexpr std::size_t worst = 2 * (sizeof(MeshData) + longestObjectName + 1) / 6 + 1;
    return worst * fileSize;
}

std::size_t MemoryOf(const ModelData& model)
{
    const auto text = [](const std::string& string) {
        return string.capacity() > std::string().capacity() ? string.capacity() : 0;
    };
    std::size_t size = model.materials.capacity() * sizeof(MaterialData);
    for (const MaterialData& material : model.materials)
        size += text(material.name) + text(material.texture);
    size += model.meshes.capacity() * sizeof(MeshData);
    for (const MeshData& mesh : model.meshes) {
        size += text(mesh.name) + mesh.vertices.capacity() * sizeof(Point3) +
                mesh.faces.capacity() * sizeof(MeshFace) + mesh.mapping.capacity() * sizeof(MapPoint) +
                mesh.smoothing.capacity() * sizeof(std::uint32_t) +
                mesh.materials.capacity() * sizeof(FaceMaterial);
        for (const FaceMaterial& list : mesh.materials)
            size += text(list.material) + list.faces.capacity() * sizeof(std::uint16_t);
    }
    return size;
}

} // namespace support
