#include "tests/display/ChunkBytes.h"
#include "tests/display/Models.h"

#include <cmath>

namespace support
{

namespace
{

using namespace vant::detail;

std::string ColourChunk(const ColourData& colour)
{
    const auto byte = [](float part) { return static_cast<std::uint8_t>(std::lround(part * 255.0F)); };
    const auto isByte = [&](float part) { return static_cast<float>(byte(part)) / 255.0F == part; };
    if (isByte(colour.red) && isByte(colour.green) && isByte(colour.blue))
        return Chunk(0x0011, Bytes(byte(colour.red), byte(colour.green), byte(colour.blue)));
    return Chunk(0x0010, Bytes(colour.red, colour.green, colour.blue));
}

std::string MaterialChunk(const MaterialData& material)
{
    std::string bytes = Chunk(0xA000, Text(material.name));
    bytes += Chunk(0xA010, ColourChunk(material.ambient));
    bytes += Chunk(0xA020, ColourChunk(material.diffuse));
    bytes += Chunk(0xA030, ColourChunk(material.specular));
    if (material.transparency != 0) {
        const auto percentage = static_cast<std::int16_t>(std::lround(material.transparency * 100.0F));
        bytes += Chunk(0xA050, Chunk(0x0030, Bytes(percentage)));
    }
    if (material.twoSided)
        bytes += Chunk(0xA081, {});
    if (!material.texture.empty())
        bytes += Chunk(0xA200, Chunk(0xA300, Text(material.texture)));
    return Chunk(0xAFFF, bytes);
}

template <class Item>
void Append(std::string& bytes, const std::vector<Item>& items)
{
    bytes.append(reinterpret_cast<const char*>(items.data()), items.size() * sizeof(Item));
}

template <class Item>
std::string Counted(const std::vector<Item>& items)
{
    std::string bytes = U16(static_cast<unsigned>(items.size()));
    Append(bytes, items);
    return bytes;
}

std::string VertexChunk(const MeshData& mesh)
{
    std::vector<float> parts;
    for (const Point3& vertex : mesh.vertices)
        parts.insert(parts.end(), {static_cast<float>(vertex.x), static_cast<float>(vertex.y),
                                   static_cast<float>(vertex.z)});
    std::string bytes = U16(static_cast<unsigned>(mesh.vertices.size()));
    Append(bytes, parts);
    return Chunk(0x4110, bytes);
}

std::string FaceChunk(const MeshData& mesh)
{
    std::vector<MeshFace> faces = mesh.faces;
    for (MeshFace& face : faces) {
        if (face.flags == 7)
            std::swap(face.b, face.c);
    }
    std::string bytes = Counted(faces);
    for (const FaceMaterial& list : mesh.materials)
        bytes += Chunk(0x4130, Text(list.material) + Counted(list.faces));
    if (!mesh.smoothing.empty()) {
        std::string groups;
        Append(groups, mesh.smoothing);
        bytes += Chunk(0x4150, groups);
    }
    return Chunk(0x4120, bytes);
}

std::string ObjectChunk(const MeshData& mesh)
{
    std::string bytes = VertexChunk(mesh);
    if (!mesh.mapping.empty())
        bytes += Chunk(0x4140, Counted(mesh.mapping));
    bytes += Chunk(0x4160, Bytes(mesh.axis));
    bytes += FaceChunk(mesh);
    return Chunk(0x4000, Text(mesh.name) + Chunk(0x4100, bytes));
}

} // namespace

std::string Write3ds(const ModelData& model)
{
    constexpr std::uint32_t version = 3;
    std::string bytes;
    for (const MaterialData& material : model.materials)
        bytes += MaterialChunk(material);
    for (const MeshData& mesh : model.meshes)
        bytes += ObjectChunk(mesh);
    return Chunk(0x4D4D, Chunk(0x0002, Bytes(version)) + Chunk(0x3D3D, bytes));
}

} // namespace support
