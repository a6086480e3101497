#pragma once

#include "display/detail/ModelData.h"

#include <string>
#include <vector>

/** @file
 *  Models for tests, and the files that hold them. Coordinates are multiples of 1/1024, so that the sines of
 *  different machines make the same files. */

namespace support
{

/** The file of a model; reading it gives the model again. Colours are written as bytes where that loses
 *  nothing. */
std::string Write3ds(const vant::detail::ModelData& model);

/** Six sides with a material each, 2 units long, around the origin. Smoothing sets keep the edges sharp. */
vant::detail::ModelData Cube();

/** A sphere of radius 1 around the origin, in `rings` from pole to pole and `segments` around, all in one
 *  smoothing group. The texture runs around it, so that there is a seam with two vertices at each place. */
vant::detail::ModelData Sphere(int rings, int segments);

/** A boat of 10 units that heads along y, with its waterline at 0: hull, deck and cabin, materials with a
 *  texture and with transparency. The faces of its port side are marked as stored the wrong way round. */
vant::detail::ModelData Boat(int stations = 10);

/** Wavy squares of `side` x `side` vertices with everything that a mesh can have: as large a model as wanted.
 *  A side of 180 gives 64,082 faces. */
vant::detail::ModelData Sea(int meshes, int side);

struct ModelFile {
    std::string name;
    std::string bytes;
};

/** What the fuzzer starts from: fuzz/corpus/models. */
std::vector<ModelFile> SeedFiles();

} // namespace support
