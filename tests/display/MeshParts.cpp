#include "tests/display/MeshParts.h"

#include <cmath>

namespace support
{

using namespace vant::detail;

namespace
{

constexpr std::uint16_t usualFlags = 6; // two visible edges; 7 says that a face is stored the wrong way round

} // namespace

double Rounded(double coordinate)
{
    constexpr double steps = 1024;
    return std::floor(coordinate * steps + 0.5) / steps;
}

std::uint16_t Add(MeshData& mesh, double x, double y, double z)
{
    mesh.vertices.push_back({Rounded(x), Rounded(y), Rounded(z)});
    return static_cast<std::uint16_t>(mesh.vertices.size() - 1);
}

std::uint16_t Add(MeshData& mesh, const Point3& place, double u, double v)
{
    mesh.mapping.push_back({static_cast<float>(Rounded(u)), static_cast<float>(Rounded(v))});
    return Add(mesh, place.x, place.y, place.z);
}

void AddFace(MeshData& mesh, int a, int b, int c, std::uint32_t groups)
{
    mesh.faces.push_back({static_cast<std::uint16_t>(a), static_cast<std::uint16_t>(b),
                          static_cast<std::uint16_t>(c), usualFlags});
    mesh.smoothing.push_back(groups);
}

void AddQuad(MeshData& mesh, int a, int b, int c, int d, std::uint32_t groups)
{
    const auto isSame = [&](int i, int j) {
        return mesh.vertices[static_cast<std::size_t>(i)] == mesh.vertices[static_cast<std::size_t>(j)];
    };
    if (!isSame(a, b) && !isSame(b, c) && !isSame(c, a))
        AddFace(mesh, a, b, c, groups);
    if (!isSame(a, c) && !isSame(c, d) && !isSame(d, a))
        AddFace(mesh, a, c, d, groups);
}

void Paint(MeshData& mesh, const std::string& material)
{
    const std::size_t done = mesh.materials.empty() ? 0 : mesh.materials.back().faces.back() + std::size_t{1};
    FaceMaterial list{material, {}};
    for (std::size_t face = done; face < mesh.faces.size(); ++face)
        list.faces.push_back(static_cast<std::uint16_t>(face));
    if (!list.faces.empty())
        mesh.materials.push_back(list);
}

MaterialData Matt(const std::string& name, float red, float green, float blue)
{
    MaterialData material;
    material.name = name;
    material.ambient = {red * 0.5F, green * 0.5F, blue * 0.5F};
    material.diffuse = {red, green, blue};
    material.specular = {0, 0, 0};
    return material;
}

} // namespace support
