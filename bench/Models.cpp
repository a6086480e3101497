// Models: reading their files, against reading the bytes into memory and nothing else; drawing, against the
// arrays of the same triangles.
#include "Compare.h"
#include "Library.h"
#include "TempFile.h"

#include "display/CDsp.h"
#include "display/CDspGrp.h"
#include "display/CMdl.h"
#include "display/CMdlInf.h"
#include "display/CModel.h"
#include "display/detail/ModelData.h"
#include "tests/display/Models.h"

#include <atlimage.h>

#include <catch2/catch.hpp>

#include <GL/gl.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace
{

constexpr int meshes = 16;
constexpr int side = 180; // of a mesh: 64,082 triangles, as many as the format's vertex numbers reach

constexpr int drawnMeshes = 4; // some 200,000 triangles
constexpr int drawnSide = 160;

/** A file of a model. */
class ModelFile : public TempFile
{
public:
    explicit ModelFile(const vant::detail::ModelData& model)
        : TempFile(L"model.3ds")
    {
        std::ofstream(Path(), std::ios::binary) << support::Write3ds(model);
    }
};

/** @return a sum over the bytes' ends, so that they have to be there */
unsigned ReadBytes(const ModelFile& file)
{
    constexpr DWORD block = 65'536;
    const HANDLE handle =
        ::CreateFileW(file.Path().c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    const auto bytes = std::make_unique_for_overwrite<unsigned char[]>(file.Size() + block);
    std::size_t size = 0;
    DWORD got = 0;
    while (::ReadFile(handle, bytes.get() + size, block, &got, nullptr) && got > 0)
        size += got;
    ::CloseHandle(handle);
    return size == file.Size() ? bytes[0] + 256U * bytes[size - 1] + 1 : 0;
}

/** Corners of triangles as OpenGL's GL_T2F_N3F_V3F. */
struct Corner {
    float u, v, nx, ny, nz, x, y, z;
};

std::vector<Corner> Arrays(const vant::detail::ModelData& model)
{
    std::vector<Corner> corners;
    for (const auto& mesh : model.meshes) {
        const auto add = [&](std::size_t vertex) {
            const auto& at = mesh.vertices[vertex];
            corners.push_back({mesh.mapping[vertex].u, mesh.mapping[vertex].v, 0, 0, 1,
                               static_cast<float>(at.x), static_cast<float>(at.y), static_cast<float>(at.z)});
        };
        for (const auto& face : mesh.faces) {
            add(face.a);
            add(face.b);
            add(face.c);
        }
    }
    return corners;
}

/** A view from above of what the round draws. */
class ModelView : public CDsp
{
public:
    static constexpr int size = 400;

    std::function<void()> scene;

    void Render() override
    {
        glMatrixMode(GL_PROJECTION);
        glLoadIdentity();
        glOrtho(0, drawnMeshes * drawnSide, 0, drawnSide, -10, 10);
        glMatrixMode(GL_MODELVIEW);
        glLoadIdentity();
        glClearColor(0, 0, 0, 1);
        glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
        glEnable(GL_DEPTH_TEST);
        glEnable(GL_LIGHT0);
        scene();
    }
};

/** The least that draws the arrays with a light and without their backs. */
void DrawArrays(const std::vector<Corner>& corners)
{
    constexpr float colour[] = {0.1F, 0.3F, 0.5F, 1};
    glEnable(GL_LIGHTING);
    glEnable(GL_CULL_FACE);
    glEnable(GL_NORMALIZE);
    glMaterialfv(GL_FRONT_AND_BACK, GL_DIFFUSE, colour);
    glInterleavedArrays(GL_T2F_N3F_V3F, 0, corners.data());
    glDrawArrays(GL_TRIANGLES, 0, static_cast<GLsizei>(corners.size()));
}

/** Draws a picture, and requires that the middle of it is not empty. */
void Picture(ModelView& view, CImage& image, const std::function<void()>& scene, Stopwatch& watch)
{
    view.scene = scene;
    watch.Measure([&] { view.CapPB(image); });
    REQUIRE(image.GetPixel(ModelView::size / 2, ModelView::size / 2) != 0);
}

/** The model as a drawable of a view. */
class ModelMdl : public CMdl
{
public:
    void Draw(CDsp& dsp) override { model.DrawModel(dsp); }
    void GetInf(CMdlInf& inf) override { inf.hasExt = model.GetExtents(inf.lower, inf.upper); }

    CModel model;
};

/** A view as an application has it, with graticule and instruments, and with what a bare loop needs of it. */
class ShownView : public CDsp
{
public:
    static constexpr int size = 400;

    HGLRC rc = nullptr;
    int lit = 0; // pixels of the first frame

    void Render() override
    {
        CDsp::Render();
        if (!rc)
            lit = CountLit();
        rc = ::wglGetCurrentContext();
    }

    /** How many pixels of what is being drawn are bright enough to be the model's. */
    static int CountLit()
    {
        constexpr unsigned char bright = 60;
        std::vector<unsigned char> pixels(size * size);
        glReadPixels(0, 0, size, size, GL_BLUE, GL_UNSIGNED_BYTE, pixels.data());
        return static_cast<int>(
            std::count_if(pixels.begin(), pixels.end(), [](unsigned char each) { return each > bright; }));
    }
};

/** A frame of the same scene in the same window by OpenGL alone. @param[out] lit  null, or what CountLit()
 * counts in it */
void BareFrame(HDC dc, HGLRC rc, const std::vector<Corner>& corners, int* lit = nullptr)
{
    ::wglMakeCurrent(dc, rc);
    glPushAttrib(GL_ALL_ATTRIB_BITS);
    glViewport(0, 0, ShownView::size, ShownView::size);
    glClearColor(0, 0, 0, 1);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    constexpr double half = drawnMeshes * drawnSide / 2;
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glOrtho(-half, half, -half, half, -half, half);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    glTranslated(-half, -drawnSide / 2.0, 0);
    glEnable(GL_DEPTH_TEST);
    glEnable(GL_LIGHT0);
    glPushClientAttrib(GL_CLIENT_VERTEX_ARRAY_BIT);
    DrawArrays(corners);
    glPopClientAttrib();
    glPopAttrib();
    if (lit)
        *lit = ShownView::CountLit();
    ::SwapBuffers(dc);
    ::wglMakeCurrent(nullptr, nullptr);
}

} // namespace

TEST_CASE("models in a view")
{
    constexpr int frames = 3;
    const Library library;
    const vant::detail::ModelData sea = support::Sea(drawnMeshes, drawnSide);
    const ModelFile file(sea);
    CDspGrp group;
    ModelMdl mdl;
    REQUIRE(mdl.model.Read3DS(file.Path().c_str()));
    const std::vector<Corner> corners = Arrays(sea);
    ShownView view;
    REQUIRE(view.CreateWnd(L"Bench", WS_POPUP | WS_VISIBLE, CRect(0, 0, ShownView::size, ShownView::size)));
    view.SetViewOrg({drawnMeshes * drawnSide / 2.0, drawnSide / 2.0, 0});
    view.SetZoom(drawnMeshes * drawnSide);
    const Round ours = [&](Stopwatch& watch) {
        watch.Measure([&] {
            for (int i = 0; i < frames; ++i) {
                mdl.ModelChanged(0);
                CVantWnd::Poll(0);
            }
        });
        REQUIRE(!view.IsDrawNeeded());
    };
    view.RedrawWnd();
    REQUIRE(view.rc);
    CClientDC dc(&view);
    int lit = 0;
    BareFrame(dc, view.rc, corners, &lit);
    // Both show the model in the same size.
    REQUIRE(lit > ShownView::size * ShownView::size / (drawnMeshes * 2));
    REQUIRE(std::abs(view.lit - lit) < lit / 4);
    const Round bare = [&](Stopwatch& watch) {
        watch.Measure([&] {
            for (int i = 0; i < frames; ++i)
                BareFrame(dc, view.rc, corners);
        });
    };
    Compare("models: a frame of " + std::to_string(mdl.model.GetFaceCount()) +
                " triangles in a CDsp (a bare loop of the same arrays)",
            ours, bare, {.target = 1 / 0.9, .rounds = 21});
}

TEST_CASE("models drawn")
{
    const Library library;
    const vant::detail::ModelData sea = support::Sea(drawnMeshes, drawnSide);
    const ModelFile file(sea);
    CModel model;
    REQUIRE(model.Read3DS(file.Path().c_str()));
    REQUIRE(model.GetFaceCount() > 200'000);
    const std::vector<Corner> corners = Arrays(sea);

    ModelView view;
    REQUIRE(view.CreateWnd(L"Bench", WS_POPUP, CRect(0, 0, 100, 100)));
    {
        CClientDC dc(&view);
        REQUIRE(view.InitPB(dc, ModelView::size, ModelView::size));
    }
    CImage image;
    REQUIRE(image.Create(ModelView::size, ModelView::size, 32));
    const Round ours = [&](Stopwatch& watch) {
        Picture(
            view, image, [&] { model.DrawModel(view); }, watch);
    };
    const Round arrays = [&](Stopwatch& watch) {
        Picture(
            view, image, [&] { DrawArrays(corners); }, watch);
    };
    Compare("models: drawing " + std::to_string(model.GetFaceCount()) + " triangles (the bare arrays)", ours,
            arrays, {.target = 1 / 0.9, .rounds = 21});
}

TEST_CASE("models")
{
    const ModelFile file(support::Sea(meshes, side));
    const Round ours = [&](Stopwatch& watch) {
        CModel model;
        watch.Measure([&] { REQUIRE(model.Read3DS(file.Path().c_str())); });
        REQUIRE(model.GetFaceCount() > 1'000'000);
    };
    const Round bytesAlone = [&](Stopwatch& watch) {
        unsigned sum = 0;
        watch.Measure([&] { sum = ReadBytes(file); });
        REQUIRE(sum > 0);
    };
    Compare("models: reading 1,025,312 triangles, " + std::to_string(file.Size() / 1'000'000) +
                " MB (the bytes alone, in blocks of 64 KB)",
            ours, bytesAlone, {.target = 3.0, .rounds = 21});
}
