#pragma once

#include "display/detail/ModelData.h"

#include <sstream>
#include <string>

namespace support
{

/** A model in one line, without what has its default. Materials come first:
 *  "<name a=1 1 1 d=1 1 1 s=1 1 1 t=0.5 2 x=FILE>", then meshes: "{name: @axis v(x y z) f(a b c/flags) u(u v)
 * s(groups) material[faces]}". */
inline std::string Dump(const vant::detail::ModelData& model)
{
    using namespace vant::detail;
    std::ostringstream out;
    const auto colour = [&](const char* which, const ColourData& value) {
        if (value != ColourData{})
            out << which << value.red << " " << value.green << " " << value.blue;
    };
    for (const MaterialData& material : model.materials) {
        out << "<" << material.name;
        colour(" a=", material.ambient);
        colour(" d=", material.diffuse);
        colour(" s=", material.specular);
        if (material.transparency != 0)
            out << " t=" << material.transparency;
        out << (material.twoSided ? " 2" : "") << (material.texture.empty() ? "" : " x=") << material.texture
            << ">";
    }
    for (const MeshData& mesh : model.meshes) {
        out << "{" << mesh.name << ":";
        if (mesh.axis != MeshData{}.axis) {
            for (const float& part : mesh.axis)
                out << (&part == mesh.axis.data() ? " @" : ",") << part;
        }
        out << (mesh.vertices.empty() ? "" : " v");
        for (const Point3& vertex : mesh.vertices)
            out << "(" << vertex.x << " " << vertex.y << " " << vertex.z << ")";
        out << (mesh.faces.empty() ? "" : " f");
        for (const MeshFace& face : mesh.faces)
            out << "(" << face.a << " " << face.b << " " << face.c << "/" << face.flags << ")";
        out << (mesh.mapping.empty() ? "" : " u");
        for (const MapPoint& point : mesh.mapping)
            out << "(" << point.u << " " << point.v << ")";
        out << (mesh.smoothing.empty() ? "" : " s");
        for (const std::uint32_t groups : mesh.smoothing)
            out << "(" << groups << ")";
        for (const FaceMaterial& list : mesh.materials) {
            out << " " << list.material << "[";
            for (const std::uint16_t& face : list.faces)
                out << (&face == list.faces.data() ? "" : " ") << face;
            out << "]";
        }
        out << "}";
    }
    return out.str();
}

} // namespace support
