#include "display/detail/FaceGroups.h"

#include <algorithm>

namespace vant::detail
{

MaterialNames::MaterialNames(const std::vector<MaterialData>& materials)
{
    m_numbers.reserve(materials.size());
    for (const MaterialData& material : materials)
        m_numbers.emplace_back(material.name, m_numbers.size());
    std::sort(m_numbers.begin(), m_numbers.end());
}

std::size_t MaterialNames::Find(std::string_view name) const
{
    const auto found = std::lower_bound(m_numbers.begin(), m_numbers.end(), std::pair(name, std::size_t{0}));
    return found != m_numbers.end() && found->first == name ? found->second : none;
}

std::vector<FaceGroup> GroupFaces(const MeshData& mesh, const MaterialNames& names)
{
    std::vector<std::size_t> ofLists;
    for (const FaceMaterial& list : mesh.materials)
        ofLists.push_back(names.Find(list.material));
    std::vector<std::size_t> materials = ofLists; // each once, ascending, and none behind them
    materials.push_back(MaterialNames::none);
    std::sort(materials.begin(), materials.end());
    materials.erase(std::unique(materials.begin(), materials.end()), materials.end());

    std::vector<std::size_t> groupOfFace(mesh.faces.size(), materials.size() - 1);
    for (std::size_t i = 0; i < ofLists.size(); ++i) {
        const auto group = std::lower_bound(materials.begin(), materials.end(), ofLists[i]);
        for (const std::uint16_t face : mesh.materials[i].faces)
            groupOfFace[face] = static_cast<std::size_t>(group - materials.begin());
    }

    std::vector<FaceGroup> groups(materials.size());
    for (std::size_t i = 0; i < groups.size(); ++i)
        groups[i].material = materials[i];
    for (std::size_t face = 0; face < groupOfFace.size(); ++face)
        groups[groupOfFace[face]].faces.push_back(static_cast<std::uint16_t>(face));
    std::erase_if(groups, [](const FaceGroup& group) { return group.faces.empty(); });
    return groups;
}

} // namespace vant::detail
