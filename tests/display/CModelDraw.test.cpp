// Models: pictures of them. With VANT_PICTURES naming a directory, those of the boat are saved there as PNG
// files, to be looked at.

#include "display/CModel.h"

#include "tests/display/Models.h"
#include "tests/display/ViewTest.h"

#include <array>
#include <cmath>
#include <cstdlib>

namespace
{

using namespace vant::detail;
using testing::IsEmpty;

constexpr int size = 64;

MaterialData Matt(const std::string& name, float red, float green, float blue)
{
    MaterialData material;
    material.name = name;
    material.ambient = {0, 0, 0};
    material.diffuse = {red, green, blue};
    material.specular = {0, 0, 0};
    return material;
}

/** A square around a place of the z axis, 2 units long, that looks upwards. */
MeshData Square(double z, const std::string& material)
{
    MeshData mesh;
    mesh.name = "Square";
    mesh.vertices = {{-1, -1, z}, {1, -1, z}, {1, 1, z}, {-1, 1, z}};
    mesh.mapping = {{0, 0}, {1, 0}, {1, 1}, {0, 1}};
    mesh.faces = {{0, 1, 2, 0}, {0, 2, 3, 0}};
    if (!material.empty())
        mesh.materials = {{material, {0, 1}}};
    return mesh;
}

class CModelDrawTest : public ViewTest
{
protected:
    CModelDrawTest() { wnd.Open(); }

    void Load(const ModelData& data) { ASSERT_EQ(model.Read3DS(WriteModel(L"model.3ds", data)), 1); }

    using GLTest::At;
    /** Colours of a picture of the model, by places in its coordinates. */
    std::uint32_t At(double x, double y)
    {
        CImage image;
        wnd.Capture(image, size, model);
        return At(image, Pixel(x), size - 1 - Pixel(y));
    }
    std::uint32_t Centre() { return At(0, 0); }

    void LookFrom(const CV3& front, const CV3& up)
    {
        wnd.front = front;
        wnd.up = up;
    }
    void LookFromBelow() { LookFrom({0, 0, -1}, {0, 1, 0}); }

    ViewWnd wnd;
    CModel model;

private:
    int Pixel(double at) const { return static_cast<int>((at + wnd.range) / (2 * wnd.range) * size); }
};

TEST_F(CModelDrawTest, ShowsEachSideOfACube)
{
    Load(support::Cube());
    const std::uint32_t colours[] = {0xFF00FF, 0x00FF00, 0x008080, 0xFF0000, 0x0000FF, 0xFFFF00};
    for (std::size_t i = 0; i < ViewWnd::sides.size(); ++i) {
        LookFrom(ViewWnd::sides[i].front, ViewWnd::sides[i].up);
        EXPECT_TRUE(IsNear(Centre(), colours[i])) << ViewWnd::sides[i].name;
        EXPECT_TRUE(IsNear(At(0.95, 0.95), colours[i])) << "smooth edge " << ViewWnd::sides[i].name;
        EXPECT_EQ(At(1.2, 0), 0U);
    }
    EXPECT_THAT(alarms, IsEmpty());
}

TEST_F(CModelDrawTest, ShowsTheBackOfTwoSidedMaterialsOnly)
{
    ModelData data;
    data.materials = {Matt("paint", 1, 0.5F, 0)};
    data.meshes = {Square(0, "paint")};
    Load(data);
    EXPECT_TRUE(IsNear(Centre(), 0xFF8000));
    LookFromBelow();
    EXPECT_EQ(Centre(), 0U);

    data.materials[0].twoSided = true;
    Load(data);
    EXPECT_TRUE(IsNear(Centre(), 0xFF8000)); // and lit from the side that is seen

    data.meshes = {Square(0, "")};
    Load(data);
    EXPECT_TRUE(IsNear(Centre(), 0xFFFFFF));
}

TEST_F(CModelDrawTest, GivesEachFaceItsMaterial)
{
    ModelData data;
    data.materials = {Matt("red", 1, 0, 0), Matt("blue", 0, 0, 1)};
    MeshData& mesh = data.meshes.emplace_back(Square(0, "red"));
    mesh.faces.push_back({0, 1, 2, 0}); // without a material, beside
    mesh.vertices.insert(mesh.vertices.end(), {{1, -2, 0}, {2, -2, 0}, {2, -1, 0}});
    mesh.mapping.resize(mesh.vertices.size());
    mesh.faces[2] = {4, 5, 6, 0};
    mesh.materials = {{"red", {0}}, {"blue", {1}}, {"unknown", {2}}};
    Load(data);
    EXPECT_TRUE(IsNear(At(0.5, -0.5), 0xFF0000));
    EXPECT_TRUE(IsNear(At(-0.5, 0.5), 0x0000FF));
    EXPECT_TRUE(IsNear(At(1.8, -1.8), 0xFFFFFF));
}

TEST_F(CModelDrawTest, DrawsWhatIsTransparentLast)
{
    ModelData data;
    data.materials = {Matt("glass", 0, 0, 1), Matt("wall", 1, 0, 0)};
    data.materials[0].transparency = 0.25F;
    data.meshes = {Square(1, "glass"), Square(0, "wall"), Square(-1, "wall")};
    Load(data);
    EXPECT_TRUE(IsNear(Centre(), 0x4000BF));

    // Seen from behind there is no glass; two-sided glass is there, once.
    data.meshes = {Square(0, "glass"), Square(1, "wall")};
    data.materials[1].twoSided = true;
    LookFromBelow();
    Load(data);
    EXPECT_TRUE(IsNear(Centre(), 0xFF0000));
    data.materials[0].twoSided = true;
    Load(data);
    EXPECT_TRUE(IsNear(Centre(), 0x4000BF));

    // 0 % in the file is 1 in the material, and opaque.
    data.materials[0].transparency = 1;
    Load(data);
    EXPECT_TRUE(IsNear(Centre(), 0x0000FF));
}

TEST_F(CModelDrawTest, PutsTexturesTheRightWayUp)
{
    WriteImage(L"flag.bmp", RGB(255, 0, 0), RGB(0, 255, 0));
    ModelData data;
    data.materials = {Matt("flag", 1, 1, 1), Matt("plain", 0.5F, 0.5F, 1)};
    data.materials[0].texture = "FLAG.BMP";
    data.meshes = {Square(0, "flag"), Square(-1, "plain")};
    for (Point3& at : data.meshes[1].vertices)
        at.x *= 1.5;
    Load(data);
    EXPECT_TRUE(IsNear(At(0, -0.5), 0xFF0000));
    EXPECT_TRUE(IsNear(At(0, 0.5), 0x00FF00));
    EXPECT_TRUE(IsNear(At(1.25, 0.5), 0x8080FF));
    EXPECT_NE(model.mtrls[0]->texture, 0U);

    // In the light's colour.
    data.materials[0].diffuse = {0.5F, 0.5F, 0.5F};
    Load(data);
    EXPECT_TRUE(IsNear(At(0, -0.5), 0x800000));
}

TEST_F(CModelDrawTest, ShadesRoundThingsSmoothly)
{
    Load(support::Sphere(16, 24));
    LookFrom({0, -1, 0}, {0, 0, 1});
    wnd.range = 1.25;
    CImage image;
    // Whatever the scale of the view.
    wnd.scene = [&] {
        glScaled(0.5, 0.5, 0.5);
        glScaled(2.2, 2.2, 2.2);
        model.DrawModel(wnd);
    };
    wnd.Capture(image, 256);
    const auto blue = [&](int x) { return static_cast<int>(At(image, x, 128) & 0xFF); };
    EXPECT_NEAR(blue(128), 204, 4);
    EXPECT_NEAR(blue(128 + 56), 177, 8); // half way to the edge: the cosine of 30 degrees
    for (int x = 40; x < 216; ++x)
        EXPECT_LE(std::abs(blue(x) - blue(x + 1)), 8) << x;
}

TEST_F(CModelDrawTest, CompilesOneListAndLetsItGo)
{
    Load(support::Cube());
    const int before = ListCount(wnd);
    Centre();
    Centre();
    EXPECT_EQ(ListCount(wnd), before + 1);

    model.mtrls[4]->diffuse = {1, 1, 1};
    EXPECT_TRUE(IsNear(Centre(), 0x0000FF));
    model.MtrlsChanged();
    EXPECT_TRUE(IsNear(Centre(), 0xFFFFFF));
    {
        CModel copy(model);
        copy.mtrls[4]->diffuse = {0, 1, 0};
        CImage image;
        wnd.Capture(image, size, copy);
        EXPECT_TRUE(IsNear(At(image, size / 2, size / 2), 0x00FF00));
        EXPECT_EQ(ListCount(wnd), before + 2);
    }
    EXPECT_EQ(ListCount(wnd), before + 1);
    model.Clear();
    EXPECT_EQ(Centre(), 0U);
    EXPECT_EQ(ListCount(wnd), before);

    // Within a list of the application there is none of the model's.
    Load(support::Cube());
    wnd.InContext([&] {
        const GLuint own = glGenLists(1);
        glNewList(own, GL_COMPILE);
        model.DrawModel(wnd);
        glEndList();
        glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
        glCallList(own);
        std::uint32_t pixel = 0;
        glReadPixels(size / 2, size / 2, 1, 1, GL_BGRA_EXT, GL_UNSIGNED_BYTE, &pixel);
        EXPECT_TRUE(IsNear(pixel & 0xFFFFFF, 0x0000FF));
        glDeleteLists(own, 1);
    });
    EXPECT_EQ(ListCount(wnd), before);
}

TEST_F(CModelDrawTest, StaysWhenTheContextsGo)
{
    WriteImage(L"flag.bmp", RGB(255, 0, 0), RGB(0, 255, 0));
    ModelData data;
    data.materials = {Matt("flag", 1, 1, 1)};
    data.materials[0].texture = "FLAG.BMP";
    data.meshes = {Square(0, "flag")};
    Load(data);
    EXPECT_TRUE(IsNear(At(0, -0.5), 0xFF0000));
    wnd.DestroyWindow();
    CDsp::ReleaseLists();
    wnd.Open();
    EXPECT_TRUE(IsNear(At(0, -0.5), 0xFF0000));
    EXPECT_TRUE(IsNear(At(0, 0.5), 0x00FF00));
}

TEST_F(CModelDrawTest, LeavesTheSettingsAsTheyWere)
{
    Load(support::Boat());
    wnd.InContext([&] {
        for (int round = 0; round < 2; ++round) { // compiling, then calling
            glColor3d(0.25, 0.5, 0.75);
            model.DrawModel(wnd);
            EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
            for (const GLenum setting :
                 {GL_LIGHTING, GL_CULL_FACE, GL_TEXTURE_2D, GL_COLOR_MATERIAL, GL_BLEND})
                EXPECT_FALSE(glIsEnabled(setting)) << std::hex << setting;
            GLboolean writesDepth = GL_FALSE;
            glGetBooleanv(GL_DEPTH_WRITEMASK, &writesDepth);
            EXPECT_TRUE(writesDepth);
            std::array<float, 4> colour{};
            glGetFloatv(GL_CURRENT_COLOR, colour.data());
            EXPECT_EQ(colour[1], 0.5F);
            EXPECT_FALSE(glIsEnabled(GL_VERTEX_ARRAY));
        }
        CModel empty;
        empty.DrawModel(wnd);
        EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
    });
}

TEST_F(CModelDrawTest, ShowsTheBoatFromSixSides)
{
    WriteImage(L"TEAK.BMP", RGB(200, 160, 110), RGB(240, 200, 150));
    ModelData data = support::Boat();
    Load(data);
    wnd.range = 5.5;
    constexpr int large = 400;
    const char* const folder = std::getenv("VANT_PICTURES");
    wnd.scene = [&] {
        const float everywhere[] = {0.5F, 0.5F, 0.5F, 1};
        glLightModelfv(GL_LIGHT_MODEL_AMBIENT, everywhere);
        model.DrawModel(wnd);
    };
    std::array<CImage, 6> pictures;
    const auto capture = [&](std::size_t i, CImage& image) {
        LookFrom(ViewWnd::sides[i].front, ViewWnd::sides[i].up);
        wnd.Capture(image, large);
    };
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        capture(i, pictures[i]);
        if (folder) {
            const CString path = CString(folder) + L"\\boat-" + CString(ViewWnd::sides[i].name) + L".png";
            EXPECT_EQ(pictures[i].Save(path), S_OK);
        }
    }

    // What is drawn of its outside alone looks like what is drawn of both sides, or faces would look inwards.
    // But for lines at the rim, where deck and bulwark are sheets without a thickness.
    const auto setSides = [&](int dblSided) {
        for (unsigned i = 0; i < model.mtrls.GetSize(); ++i) {
            model.mtrls[i]->dblSided = dblSided;
            model.mtrls[i]->transparency = 0;
        }
        model.MtrlsChanged();
    };
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        CImage both;
        CImage outside;
        setSides(1);
        capture(i, both);
        setSides(0);
        capture(i, outside);
        int seen = 0;
        int differences = 0;
        for (int y = 0; y < large; ++y) {
            for (int x = 0; x < large; ++x) {
                seen += At(both, x, y) != 0;
                differences += !IsNear(At(outside, x, y), At(both, x, y));
            }
        }
        EXPECT_GT(seen, large * large / 40) << ViewWnd::sides[i].name;
        EXPECT_LE(differences, seen / 20) << ViewWnd::sides[i].name;
    }
}

} // namespace
