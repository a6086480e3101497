#pragma once

#include "display/detail/ByteFile.h"
#include "display/detail/ModelData.h"

/** @file
 *  Reads 3D Studio (.3DS) files: chunks within chunks, each with its number and its length. The chunks named
 *  below are taken, all others skipped by their lengths.
 *
 *  Every file gives a model, however damaged it is, in time and memory proportional to its size: each byte is
 *  taken at most once, and chunks that nest deeper than the format's have no meaning. What becomes of damage:
 *
 *  | Damage | What is read |
 *  |---|---|
 *  | length below 6, or rest of a chunk too short for a header | the rest of the chunk around it is skipped |
 *  | length beyond the chunk around it | the chunk ends with the one around it |
 *  | count of vertices, faces and the like beyond the chunk | as many whole ones as there are |
 *  | no room for the count itself, a colour, an axis, a percentage | what was there before stays |
 *  | object or list of faces whose name has no end | the chunk has a name, and nothing else |
 *  | name of a material or texture without an end | it ends with its chunk |
 *  | second list of the same kind in a mesh | takes the place of the first; material lists add up |
 *  | vertex that is not a finite place | it moves to the first that is, and faces that use it are left out |
 *  | face with a corner beyond the vertices | left out; what counts faces counts on without it |
 *  | material for faces beyond the last | left out, and the list too when no face remains |
 *  | more or fewer mapping coordinates than vertices | cut, or filled with (0, 0) |
 *  | more or fewer smoothing sets than faces | cut, or filled with sets of no group |
 *  | mapping coordinate that is no finite number | 0 |
 *  | colour or axis that holds one | what was there before stays |
 *  | meshes or materials beyond the 65,536th | left out |
 *
 *  So every number in a model that was read is a number of a vertex or face that it has, and every coordinate
 *  is finite: whoever draws need not look again. */

namespace vant::detail
{

enum class ModelResult : std::uint8_t {
    Read,
    NotAThreeDs, ///< the first chunk is not a 3D Studio file's, or there is none; the model is empty
};

inline constexpr std::size_t longestMaterialName = 17; ///< bytes; as many as the format allows, and one more
inline constexpr std::size_t longestObjectName = 255;  ///< bytes; what is longer loses its rest
inline constexpr std::size_t longestTextureName = 260; ///< bytes; what is longer names no file
inline constexpr std::size_t mostMeshes = 65'536;      ///< so that empty chunks cannot fill the memory
inline constexpr std::size_t mostMaterials = 65'536;

/** Reads a whole file into a model, which is emptied first. */
ModelResult Read3ds(std::span<const std::byte> bytes, ModelData& model);

/** The readers of chunks. Each begins behind the chunk's header and is told the chunk's end.
 *  @{ */

/** Objects and materials of the editor's chunk. */
void ReadObjMeshBlocks(ByteFile& file, std::size_t end, ModelData& model);

/** An object: its name, then its meshes. A mesh joins the model when its chunk has been read to the end. */
void ReadObjBlocks(ByteFile& file, std::size_t end, ModelData& model);

/** The parts of a mesh. Numbers in it are not checked before the whole mesh is there. */
void ReadTriMeshBlocks(ByteFile& file, std::size_t end, MeshData& mesh);

void ReadVertList(ByteFile& file, std::size_t end, MeshData& mesh);

/** The faces, then the chunks within their list. A face whose flags are exactly 7 is stored as (a, c, b): a
 *  deliberate correction of its winding.
 *  @return how many faces there were */
std::size_t ReadFaceList(ByteFile& file, std::size_t end, MeshData& mesh);

void ReadMapList(ByteFile& file, std::size_t end, MeshData& mesh);

void ReadFaceMaterial(ByteFile& file, std::size_t end, MeshData& mesh);

/** A material's properties; the material is part of the model already. */
void ReadMaterialBlocks(ByteFile& file, std::size_t end, MaterialData& material);

/** A name of at most longestMaterialName bytes, up to its NUL or the end. */
void ReadName(ByteFile& file, std::size_t end, std::string& name);

/** A colour as three floats or as three bytes; the last one counts. Clamped to 0..1. */
void ReadShadingChunk(ByteFile& file, std::size_t end, ColourData& colour);

/** The name of a texture's file. */
void ReadTextureChunk(ByteFile& file, std::size_t end, std::string& name);

/** A percentage / 100. Below 0.01, and so for 0 %, the value is 1: a deliberate substitution. */
void ReadTransparencyChunk(ByteFile& file, std::size_t end, float& transparency);

/** @} */

} // namespace vant::detail
