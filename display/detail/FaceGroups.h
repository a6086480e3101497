#pragma once

#include "display/detail/ModelData.h"

#include <cstddef>
#include <string_view>
#include <utility>
#include <vector>

namespace vant::detail
{

/** Finds a model's materials by their names. Refers to the materials, which must stay where they are. */
class MaterialNames
{
public:
    static constexpr std::size_t none = static_cast<std::size_t>(-1);

    explicit MaterialNames(const std::vector<MaterialData>& materials);

    /** The number of the first material of exactly that name, or none. */
    std::size_t Find(std::string_view name) const;

private:
    std::vector<std::pair<std::string_view, std::size_t>> m_numbers; // by name, then number
};

/** Faces of a mesh that are drawn with the same material. */
struct FaceGroup {
    std::size_t material =
        MaterialNames::none;          ///< none: the model has no such material, or the mesh names none
    std::vector<std::uint16_t> faces; ///< ascending
    bool operator==(const FaceGroup&) const = default;
};

/** Divides the faces of a mesh by their materials: every face is in exactly one group. The groups ascend by
 *  the materials' numbers, faces without a material come last. A face that several lists name belongs to the
 *  last of them. For meshes as Read3ds() leaves them. */
std::vector<FaceGroup> GroupFaces(const MeshData& mesh, const MaterialNames& names);

} // namespace vant::detail
