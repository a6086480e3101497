#pragma once

#include "display/detail/ModelData.h"

/** @file
 *  What meshes are put together from. */

namespace support
{

/** The nearest multiple of 1/1024: the sines of different machines make the same files. */
double Rounded(double coordinate);

/** Adds a vertex, rounded. @return its number */
std::uint16_t Add(vant::detail::MeshData& mesh, double x, double y, double z);
/** Adds a vertex with its place in the texture. */
std::uint16_t Add(vant::detail::MeshData& mesh, const vant::detail::Point3& place, double u, double v);

/** Adds a face of three vertices, which run anticlockwise seen from its front. @param groups  its smoothing
 * groups */
void AddFace(vant::detail::MeshData& mesh, int a, int b, int c, std::uint32_t groups);

/** Two faces; the corners run anticlockwise. Those that have become one point are left out. */
void AddQuad(vant::detail::MeshData& mesh, int a, int b, int c, int d, std::uint32_t groups);

/** Names a material for the faces that came since the last one. */
void Paint(vant::detail::MeshData& mesh, const std::string& material);

/** A material without highlights. */
vant::detail::MaterialData Matt(const std::string& name, float red, float green, float blue);

} // namespace support
