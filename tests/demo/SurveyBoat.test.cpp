// The boat beside the program, and what makes it.
#include "demo/model/SurveyBoat.h"

#include "display/detail/Read3ds.h"
#include "tests/display/Models.h"

#include "Files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <span>

using namespace demo::model;
using vant::detail::MeshFace;
using vant::detail::ModelData;

namespace
{

std::string Committed(const char* name)
{
    return Contents(fs::path(DEMO_DATA_DIR) / name);
}

ModelData Read(const std::string& bytes)
{
    ModelData model;
    EXPECT_EQ(vant::detail::ModelResult::Read,
              vant::detail::Read3ds(std::as_bytes(std::span(bytes.data(), bytes.size())), model));
    return model;
}

} // namespace

TEST(SurveyBoat, TheCommittedFilesAreTheOnesThatAreMade)
{
    EXPECT_TRUE(Committed("boat.3ds") == support::Write3ds(SurveyBoat())) << "make_boat demo/data";
    EXPECT_TRUE(Committed(hullPictureName) == HullPicture());
    EXPECT_TRUE(Committed(deckPictureName) == DeckPicture());
}

TEST(SurveyBoat, EveryFaceHasOneOfItsMaterials)
{
    const ModelData model = Read(Committed("boat.3ds"));
    ASSERT_EQ(SurveyBoat(), model);
    std::map<std::string, bool> used;
    for (const auto& material : model.materials) {
        EXPECT_LE(material.name.size(), vant::detail::longestMaterialName - 1) << material.name;
        used[material.name] = false;
    }
    for (const auto& mesh : model.meshes) {
        std::size_t painted = 0;
        for (const auto& list : mesh.materials) {
            painted += list.faces.size();
            EXPECT_TRUE(used.contains(list.material)) << list.material;
            used[list.material] = true;
        }
        EXPECT_EQ(mesh.faces.size(), painted) << mesh.name;
    }
    for (const auto& [name, is] : used)
        EXPECT_TRUE(is) << name;
}

TEST(SurveyBoat, IsFourteenMetresLongAndFloats)
{
    double low = 0.0;
    double front = 0.0;
    double rear = 0.0;
    for (const auto& mesh : Read(Committed("boat.3ds")).meshes) {
        for (const auto& vertex : mesh.vertices) {
            low = std::min(low, vertex.z);
            front = std::max(front, vertex.y);
            rear = std::min(rear, vertex.y);
        }
    }
    EXPECT_EQ(bowPlace, front);
    EXPECT_NEAR(sternPlace - 0.75, rear, 0.01) << "the engines";
    EXPECT_LT(low, -1.5) << "the sounder is in the water";
}

TEST(SurveyBoat, ClosedShapesLookOutwards)
{
    MeshData mesh;
    AddPrism(mesh, RoundRect(-1, 1, -2, 2, 0.5), 1, 3);
    const Point3 bar[] = {{0, 0, 5}, {1, 0, 6}, {1, 2, 6}};
    AddBar(mesh, bar, 0.25);
    // Six times the volume that the faces enclose, positive when they look outwards.
    double volume = 0.0;
    for (const MeshFace& face : mesh.faces) {
        const Point3& a = mesh.vertices[face.a];
        const Point3& b = mesh.vertices[face.b];
        const Point3& c = mesh.vertices[face.c];
        volume +=
            a.x * (b.y * c.z - b.z * c.y) + a.y * (b.z * c.x - b.x * c.z) + a.z * (b.x * c.y - b.y * c.x);
    }
    const double prism = 2.0 * (2.0 * 4.0 - (4.0 - 3.0) * 0.25); // the corners lack less than a square does
    EXPECT_NEAR(prism + 0.6, volume / 6.0, 0.3);
}
