#include "display/detail/Read3ds.h"

#include "display/detail/Chunks.h"

#include <cmath>

namespace vant::detail
{

namespace
{

constexpr std::size_t vertexSize = 3 * sizeof(float);

bool IsFinite(const Point3& point)
{
    return std::isfinite(point.x) && std::isfinite(point.y) && std::isfinite(point.z);
}

/** Takes a count and as many items of the file's own layout as there are. False when there is no count. */
template <class Item>
bool TakeCounted(ByteFile& file, std::size_t end, std::vector<Item>& items)
{
    std::uint16_t count = 0;
    if (!file.Take(count, end))
        return false;
    const std::span<const std::byte> bytes = file.TakeItems(count, sizeof(Item), end);
    items.resize(bytes.size() / sizeof(Item));
    if (!items.empty())
        std::memcpy(items.data(), bytes.data(), bytes.size());
    return true;
}

void ReadSmoothingGroups(ByteFile& file, std::size_t end, MeshData& mesh)
{
    constexpr std::size_t mostFaces = 65'535;
    const std::span<const std::byte> bytes = file.TakeItems(mostFaces, sizeof(std::uint32_t), end);
    mesh.smoothing.resize(bytes.size() / sizeof(std::uint32_t));
    if (!bytes.empty())
        std::memcpy(mesh.smoothing.data(), bytes.data(), bytes.size());
}

/** What says something about faces. Files have it within the list of faces; in a mesh it is understood too.
 */
void ReadFaceProperty(ByteFile& file, const Chunk& chunk, MeshData& mesh)
{
    if (chunk.id == ChunkId::FaceMaterial)
        ReadFaceMaterial(file, chunk.end, mesh);
    else if (chunk.id == ChunkId::SmoothingGroups)
        ReadSmoothingGroups(file, chunk.end, mesh);
}

void ReadLocalAxis(ByteFile& file, std::size_t end, MeshData& mesh)
{
    decltype(mesh.axis) axis;
    if (file.Take(axis, end) &&
        std::all_of(axis.begin(), axis.end(), [](float part) { return std::isfinite(part); }))
        mesh.axis = axis;
}

/** Moves the vertices that are nowhere to the first that is somewhere.
 *  @return for each vertex whether it was moved; nothing when none was */
std::vector<bool> MoveVerticesFromNowhere(std::vector<Point3>& vertices)
{
    const auto lost = std::find_if_not(vertices.begin(), vertices.end(), IsFinite);
    if (lost == vertices.end())
        return {};
    const auto found = std::find_if(vertices.begin(), vertices.end(), IsFinite);
    const Point3 somewhere = found == vertices.end() ? Point3{} : *found;
    std::vector<bool> moved(vertices.size());
    for (std::size_t i = 0; i < vertices.size(); ++i) {
        moved[i] = !IsFinite(vertices[i]);
        if (moved[i])
            vertices[i] = somewhere;
    }
    return moved;
}

/** The numbers that faces have once some are left out. */
class FaceNumbers
{
public:
    explicit FaceNumbers(std::size_t count)
        : m_numbers(count)
    {
    }

    void Keep(std::size_t face) { m_numbers[face] = m_kept++; }
    void LeaveOut(std::size_t face) { m_numbers[face] = none; }

    /** Renumbers a list of faces, without those that are left out or never were. */
    void Apply(std::vector<std::uint16_t>& faces) const
    {
        std::size_t size = 0;
        for (const std::uint16_t face : faces) {
            if (face < m_numbers.size() && m_numbers[face] != none)
                faces[size++] = static_cast<std::uint16_t>(m_numbers[face]);
        }
        faces.resize(size);
    }

private:
    static constexpr std::uint32_t none = 0xFFFFFFFF;

    std::vector<std::uint32_t> m_numbers;
    std::uint32_t m_kept = 0;
};

/** Leaves out the faces that cannot be drawn, wherever faces are counted. */
template <class CanBeDrawn>
void LeaveOutFaces(MeshData& mesh, CanBeDrawn canBeDrawn)
{
    FaceNumbers numbers(mesh.faces.size());
    std::size_t kept = 0;
    for (std::size_t i = 0; i < mesh.faces.size(); ++i) {
        if (!canBeDrawn(mesh.faces[i])) {
            numbers.LeaveOut(i);
            continue;
        }
        numbers.Keep(i);
        mesh.faces[kept] = mesh.faces[i];
        if (!mesh.smoothing.empty())
            mesh.smoothing[kept] = mesh.smoothing[i];
        ++kept;
    }
    mesh.faces.resize(kept);
    if (!mesh.smoothing.empty())
        mesh.smoothing.resize(kept);
    for (FaceMaterial& list : mesh.materials)
        numbers.Apply(list.faces);
}

void LeaveOutMaterialsBeyond(MeshData& mesh)
{
    const std::size_t count = mesh.faces.size();
    for (FaceMaterial& list : mesh.materials)
        std::erase_if(list.faces, [count](std::uint16_t face) { return face >= count; });
    std::erase_if(mesh.materials, [](const FaceMaterial& list) { return list.faces.empty(); });
}

/** Puts a mesh that was read in order: its lists may have come in any order and of any length. */
void Complete(MeshData& mesh)
{
    const std::vector<bool> moved = MoveVerticesFromNowhere(mesh.vertices);
    if (!mesh.mapping.empty())
        mesh.mapping.resize(mesh.vertices.size());
    if (!mesh.smoothing.empty())
        mesh.smoothing.resize(mesh.faces.size());

    const std::size_t count = mesh.vertices.size();
    const auto isVertex = [&](std::uint16_t corner) {
        return corner < count && (moved.empty() || !moved[corner]);
    };
    const auto canBeDrawn = [&](const MeshFace& face) {
        return isVertex(face.a) && isVertex(face.b) && isVertex(face.c);
    };
    if (!std::all_of(mesh.faces.begin(), mesh.faces.end(), canBeDrawn))
        LeaveOutFaces(mesh, canBeDrawn);
    LeaveOutMaterialsBeyond(mesh);
}

} // namespace

ModelResult Read3ds(std::span<const std::byte> bytes, ModelData& model)
{
    model = {};
    ByteFile file(bytes);
    ChunkId id = {};
    if (file.Size() < chunkHeaderSize || !file.Take(id, file.Size()) || id != ChunkId::Main)
        return ModelResult::NotAThreeDs;
    // The first chunk is the file, whatever length it claims.
    file.Seek(chunkHeaderSize);
    ForEachChunk(file, file.Size(), [&](const Chunk& chunk) {
        if (chunk.id == ChunkId::Editor)
            ReadObjMeshBlocks(file, chunk.end, model);
    });
    return ModelResult::Read;
}

void ReadObjMeshBlocks(ByteFile& file, std::size_t end, ModelData& model)
{
    ForEachChunk(file, end, [&](const Chunk& chunk) {
        if (chunk.id == ChunkId::Object)
            ReadObjBlocks(file, chunk.end, model);
        else if (chunk.id == ChunkId::Material && model.materials.size() < mostMaterials)
            ReadMaterialBlocks(file, chunk.end, model.materials.emplace_back());
    });
}

void ReadObjBlocks(ByteFile& file, std::size_t end, ModelData& model)
{
    std::string name;
    if (!file.TakeText(name, longestObjectName, end))
        return;
    ForEachChunk(file, end, [&](const Chunk& chunk) {
        if (chunk.id != ChunkId::TriangleMesh || model.meshes.size() == mostMeshes)
            return;
        MeshData mesh;
        mesh.name = name;
        ReadTriMeshBlocks(file, chunk.end, mesh);
        Complete(mesh);
        model.meshes.push_back(std::move(mesh));
    });
}

void ReadTriMeshBlocks(ByteFile& file, std::size_t end, MeshData& mesh)
{
    ForEachChunk(file, end, [&](const Chunk& chunk) {
        switch (chunk.id) {
        case ChunkId::VertexList:
            ReadVertList(file, chunk.end, mesh);
            break;
        case ChunkId::FaceList:
            ReadFaceList(file, chunk.end, mesh);
            break;
        case ChunkId::MapList:
            ReadMapList(file, chunk.end, mesh);
            break;
        case ChunkId::LocalAxis:
            ReadLocalAxis(file, chunk.end, mesh);
            break;
        default:
            ReadFaceProperty(file, chunk, mesh);
            break;
        }
    });
}

void ReadVertList(ByteFile& file, std::size_t end, MeshData& mesh)
{
    std::uint16_t count = 0;
    if (!file.Take(count, end))
        return;
    const std::span<const std::byte> bytes = file.TakeItems(count, vertexSize, end);
    mesh.vertices.resize(bytes.size() / vertexSize);
    const std::byte* from = bytes.data();
    for (Point3& vertex : mesh.vertices) {
        std::array<float, 3> parts;
        std::memcpy(&parts, from, vertexSize);
        from += vertexSize;
        vertex = {parts[0], parts[1], parts[2]};
    }
}

std::size_t ReadFaceList(ByteFile& file, std::size_t end, MeshData& mesh)
{
    if (!TakeCounted(file, end, mesh.faces))
        return 0;
    // Deliberate: these flags, exactly, tell that the face was stored the wrong way round.
    constexpr std::uint16_t wrongWayRound = 7;
    for (MeshFace& face : mesh.faces) {
        if (face.flags == wrongWayRound)
            std::swap(face.b, face.c);
    }
    ForEachChunk(file, end, [&](const Chunk& chunk) { ReadFaceProperty(file, chunk, mesh); });
    return mesh.faces.size();
}

void ReadMapList(ByteFile& file, std::size_t end, MeshData& mesh)
{
    if (!TakeCounted(file, end, mesh.mapping))
        return;
    for (MapPoint& point : mesh.mapping) {
        point.u = std::isfinite(point.u) ? point.u : 0.0F;
        point.v = std::isfinite(point.v) ? point.v : 0.0F;
    }
}

void ReadFaceMaterial(ByteFile& file, std::size_t end, MeshData& mesh)
{
    FaceMaterial list;
    if (file.TakeText(list.material, longestMaterialName, end) && TakeCounted(file, end, list.faces) &&
        !list.faces.empty())
        mesh.materials.push_back(std::move(list));
}

} // namespace vant::detail
