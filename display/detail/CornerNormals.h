#pragma once

#include "display/detail/ModelData.h"

#include <numbers>
#include <vector>

/** @file
 *  Which way the faces of a mesh look, for light to fall on them. All of this is for meshes as Read3ds()
 * leaves them: every corner is a vertex of the mesh, every coordinate finite. */

namespace vant::detail
{

/** A direction, of length 1. */
struct Normal {
    float x = 0;
    float y = 0;
    float z = 1;
    bool operator==(const Normal&) const = default;
};

/** Radians between two faces from which on an edge stays sharp, where the file does not say. A cylinder of
 * ten sides is round with it, a post of eight sides has edges. */
inline constexpr double usualCreaseAngle = 40.0 * std::numbers::pi / 180.0;

/** A normal for each corner of each face: those of face i are at 3 * i, in the order a, b, c. They look to
 * the front of their face, from where its corners run anticlockwise; those of a face without an area along z.
 *
 *  Faces that meet at a place are smooth there when they share a smoothing group, if the mesh has smoothing
 *  sets; a face in no group is flat. In a mesh without them they are smooth when less than the crease angle
 * is between them. Vertices that lie at exactly the same place count as one, so that a seam between two
 * textures does not show.
 *
 *  The time is proportional to the size of the mesh whatever it looks like (but for the sorting of the
 *  vertices). For that, where very many faces meet at a place, they are compared by the bundle: with more
 * than 32 faces the crease angle is measured to groups of faces that look the same way within some 11
 * degrees, and with more than 64 different smoothing sets all of these are smooth together. */
std::vector<Normal> CornerNormals(const MeshData& mesh, double creaseAngle = usualCreaseAngle);

} // namespace vant::detail
