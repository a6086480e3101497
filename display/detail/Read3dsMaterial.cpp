#include "display/detail/Chunks.h"
#include "display/detail/Read3ds.h"

#include <array>
#include <cmath>

namespace vant::detail
{

namespace
{

using Rgb = std::array<float, 3>;

void SetColour(ColourData& colour, const Rgb& rgb)
{
    if (!std::all_of(rgb.begin(), rgb.end(), [](float part) { return std::isfinite(part); }))
        return;
    const auto clamped = [](float part) { return std::clamp(part, 0.0F, 1.0F); };
    colour = {clamped(rgb[0]), clamped(rgb[1]), clamped(rgb[2])};
}

} // namespace

void ReadMaterialBlocks(ByteFile& file, std::size_t end, MaterialData& material)
{
    ForEachChunk(file, end, [&](const Chunk& chunk) {
        switch (chunk.id) {
        case ChunkId::MaterialName:
            ReadName(file, chunk.end, material.name);
            break;
        case ChunkId::Ambient:
            ReadShadingChunk(file, chunk.end, material.ambient);
            break;
        case ChunkId::Diffuse:
            ReadShadingChunk(file, chunk.end, material.diffuse);
            break;
        case ChunkId::Specular:
            ReadShadingChunk(file, chunk.end, material.specular);
            break;
        case ChunkId::Transparency:
            ReadTransparencyChunk(file, chunk.end, material.transparency);
            break;
        case ChunkId::TwoSided:
            material.twoSided = true;
            break;
        case ChunkId::TextureMap:
            ReadTextureChunk(file, chunk.end, material.texture);
            break;
        default:
            break;
        }
    });
}

void ReadName(ByteFile& file, std::size_t end, std::string& name)
{
    file.TakeText(name, longestMaterialName, end);
}

void ReadShadingChunk(ByteFile& file, std::size_t end, ColourData& colour)
{
    ForEachChunk(file, end, [&](const Chunk& chunk) {
        Rgb floats;
        std::array<std::uint8_t, 3> bytes;
        if (chunk.id == ChunkId::FloatColour && file.Take(floats, chunk.end)) {
            SetColour(colour, floats);
        } else if (chunk.id == ChunkId::ByteColour && file.Take(bytes, chunk.end)) {
            const auto part = [&](std::size_t i) { return static_cast<float>(bytes[i]) / 255.0F; };
            SetColour(colour, {part(0), part(1), part(2)});
        }
    });
}

void ReadTextureChunk(ByteFile& file, std::size_t end, std::string& name)
{
    ForEachChunk(file, end, [&](const Chunk& chunk) {
        if (chunk.id == ChunkId::TextureName)
            file.TakeText(name, longestTextureName, chunk.end);
    });
}

void ReadTransparencyChunk(ByteFile& file, std::size_t end, float& transparency)
{
    ForEachChunk(file, end, [&](const Chunk& chunk) {
        std::int16_t percentage = 0;
        if (chunk.id != ChunkId::IntegerPercentage || !file.Take(percentage, chunk.end))
            return;
        // Deliberate: what is not transparent at all has the value 1, as what is transparent altogether has.
        transparency = percentage < 1 ? 1.0F : static_cast<float>(percentage) / 100.0F;
    });
}

} // namespace vant::detail
