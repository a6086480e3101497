#pragma once

#include "display/detail/ByteFile.h"

#include <cstdint>

namespace vant::detail
{

/** What a chunk of a 3D Studio file holds; the readers skip all others. */
enum class ChunkId : std::uint16_t {
    FloatColour = 0x0010,
    ByteColour = 0x0011,
    IntegerPercentage = 0x0030,
    Editor = 0x3D3D,
    Object = 0x4000,
    TriangleMesh = 0x4100,
    VertexList = 0x4110,
    FaceList = 0x4120,
    FaceMaterial = 0x4130,
    MapList = 0x4140,
    SmoothingGroups = 0x4150,
    LocalAxis = 0x4160,
    Main = 0x4D4D,
    MaterialName = 0xA000,
    Ambient = 0xA010,
    Diffuse = 0xA020,
    Specular = 0xA030,
    Transparency = 0xA050,
    TwoSided = 0xA081,
    TextureMap = 0xA200,
    TextureName = 0xA300,
    Material = 0xAFFF,
};

struct Chunk {
    ChunkId id = {};
    std::size_t end = 0; ///< position behind the chunk, within the chunk around it
};

/** Bytes of a chunk's number and length. */
inline constexpr std::size_t chunkHeaderSize = 6;

/** Takes the next chunk's header, up to the end of the chunk around it. A chunk that claims to reach beyond
 *  that end is cut there. False when nothing more can be read: at the end, when the rest is too short for a
 *  header, and when a length is too short to hold its own header, since the next chunk could be anywhere. */
inline bool NextChunk(ByteFile& file, std::size_t end, Chunk& chunk) noexcept
{
    const std::size_t start = file.Position();
    std::uint32_t length = 0;
    if (file.Left(end) < chunkHeaderSize || !file.Take(chunk.id, end) || !file.Take(length, end) ||
        length < chunkHeaderSize)
        return false;
    chunk.end = start + std::min<std::size_t>(length, chunkHeaderSize + file.Left(end));
    return true;
}

/** Calls `read(chunk)` for each chunk up to an end, with the file behind the chunk's header. Whatever that
 *  reads, the next chunk is looked for behind the end of this one; at last the file stands at the end. */
template <class Read>
void ForEachChunk(ByteFile& file, std::size_t end, Read&& read)
{
    for (Chunk chunk; NextChunk(file, end, chunk); file.Seek(chunk.end))
        read(chunk);
    file.Seek(end);
}

} // namespace vant::detail
