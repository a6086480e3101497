#pragma once

#include "display/detail/ModelData.h"

#include <cstdint>
#include <span>
#include <vector>

/** @file
 *  The solid shapes that a model is put together from. Lengths are metres. Each call adds faces to a mesh
 *  without mapping; Paint() gives them their material afterwards. */

namespace demo::model
{

using vant::detail::MeshData;
using vant::detail::Point3;

using Ring = std::vector<Point3>;

/** Everything that is round is smooth within this group; what is flat is in none. */
inline constexpr std::uint32_t roundGroup = 1;
inline constexpr std::uint32_t flat = 0;

/** A skin over rings of equally many points. Each ring runs anticlockwise for an eye that the rings come
 * towards. */
void AddSkin(MeshData& mesh, std::span<const Ring> rings, std::uint32_t group);

/** Closes a ring with a flat, convex face, seen from where it runs anticlockwise. */
void AddLid(MeshData& mesh, const Ring& ring);

/** What an outline in the plane encloses, from one height to another, with lids. The outline runs
 * anticlockwise seen from above. @param shrink  share of its size that the upper end lacks, 0..1 */
void AddPrism(MeshData& mesh, const Ring& outline, double low, double high, double shrink = 0.0);

/** A box between two corners. */
void AddBlock(MeshData& mesh, const Point3& low, const Point3& high);

/** A round bar along points. */
void AddBar(MeshData& mesh, std::span<const Point3> points, double radius, int sides = 8);

/** A body that is turned around an upright axis through `foot`. */
struct Turn {
    double radius;
    double height; ///< above the foot
};
void AddTurned(MeshData& mesh, const Point3& foot, std::span<const Turn> profile, int sides = 16);

/** A rectangle with round corners, anticlockwise seen from above. */
Ring RoundRect(double left, double right, double rear, double front, double radius, int cornerPoints = 6);

} // namespace demo::model
