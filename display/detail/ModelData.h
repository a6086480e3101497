#pragma once

#include "display/detail/Point3.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

/** @file
 *  A model as it is read from a file and before it is drawn. Texts are bytes of the code page that the file
 *  was written in. */

namespace vant::detail
{

/** Three corners, anticlockwise seen from the front, as numbers of vertices. The flags are the file's. */
struct MeshFace {
    std::uint16_t a = 0;
    std::uint16_t b = 0;
    std::uint16_t c = 0;
    std::uint16_t flags = 0;
    bool operator==(const MeshFace&) const = default;
};

/** A place in the texture: 0..1 is the picture once, to the right and upwards. */
struct MapPoint {
    float u = 0;
    float v = 0;
    bool operator==(const MapPoint&) const = default;
};

/** The faces of a mesh that a material is named for, as numbers of faces. */
struct FaceMaterial {
    std::string material;
    std::vector<std::uint16_t> faces;
    bool operator==(const FaceMaterial&) const = default;
};

struct MeshData {
    std::string name; ///< of the object that the mesh belongs to
    /** Three axis vectors and the origin. The vertices are in the model's coordinates whatever stands here.
     */
    std::array<float, 12> axis = {1, 0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0};
    std::vector<Point3> vertices;
    std::vector<MeshFace> faces;
    std::vector<MapPoint> mapping;        ///< none, or one for each vertex
    std::vector<std::uint32_t> smoothing; ///< none, or for each face the set of smoothing groups it is in
    std::vector<FaceMaterial> materials;
    bool operator==(const MeshData&) const = default;
};

/** Each component 0..1. */
struct ColourData {
    float red = 1;
    float green = 1;
    float blue = 1;
    bool operator==(const ColourData&) const = default;
};

/** What the file leaves out keeps these values. */
struct MaterialData {
    std::string name = "Default";
    ColourData ambient;
    ColourData diffuse;
    ColourData specular;
    float transparency = 0; ///< as the file's percentage / 100, which a damaged file may take to 327.67
    bool twoSided = false;  ///< the file says so
    std::string texture;    ///< name of the texture's file, with any directory the file gives; empty for none
    bool operator==(const MaterialData&) const = default;
};

struct ModelData {
    std::vector<MeshData> meshes;
    std::vector<MaterialData> materials;
    bool operator==(const ModelData&) const = default;
};

} // namespace vant::detail
