#include "display/detail/FaceGroups.h"

#include "tests/display/Models.h"

#include <gtest/gtest.h>

namespace
{

using namespace vant::detail;

std::vector<MaterialData> Materials(std::initializer_list<const char*> names)
{
    std::vector<MaterialData> materials;
    for (const char* name : names)
        materials.emplace_back().name = name;
    return materials;
}

constexpr std::size_t none = MaterialNames::none;

} // namespace

TEST(MaterialNames, FindTheFirstOfExactlyThatName)
{
    const std::vector<MaterialData> materials = Materials({"red", "blue", "Red", "red", ""});
    const MaterialNames names(materials);
    EXPECT_EQ(names.Find("red"), 0U);
    EXPECT_EQ(names.Find("Red"), 2U);
    EXPECT_EQ(names.Find("blue"), 1U);
    EXPECT_EQ(names.Find(""), 4U);
    for (const char* missing : {"re", "redd", "RED", "a", "z"})
        EXPECT_EQ(names.Find(missing), none) << missing;
    EXPECT_EQ(MaterialNames({}).Find("red"), none);
}

TEST(FaceGroups, HaveEveryFaceOnce)
{
    const std::vector<MaterialData> materials = Materials({"a", "b", "c"});
    const MaterialNames names(materials);
    MeshData mesh;
    mesh.faces.resize(7);
    EXPECT_EQ(GroupFaces(mesh, names), (std::vector<FaceGroup>{{none, {0, 1, 2, 3, 4, 5, 6}}}));
    mesh.materials = {{"c", {6, 0, 2}}, {"a", {1, 1}}, {"unknown", {3}}, {"a", {5, 2}}};
    EXPECT_EQ(GroupFaces(mesh, names), (std::vector<FaceGroup>{{0, {1, 2, 5}}, {2, {0, 6}}, {none, {3, 4}}}));
    mesh.materials.push_back({"b", {0, 1, 2, 3, 4, 5, 6}});
    EXPECT_EQ(GroupFaces(mesh, names), (std::vector<FaceGroup>{{1, {0, 1, 2, 3, 4, 5, 6}}}));
    EXPECT_TRUE(GroupFaces({}, names).empty());
}

TEST(FaceGroups, AreTheBoatsParts)
{
    const ModelData boat = support::Boat();
    const MaterialNames names(boat.materials);
    const std::vector<FaceGroup> cabin = GroupFaces(boat.meshes[2], names);
    ASSERT_EQ(cabin.size(), 2U);
    EXPECT_EQ(boat.materials[cabin[0].material].name, "Cabin paint");
    EXPECT_EQ(cabin[0].faces.size(), 24U); // two boxes
    EXPECT_EQ(boat.materials[cabin[1].material].name, "Glass");
    EXPECT_EQ(cabin[1].faces.size(), 12U);
}
