#include "Compare.h"
#include "Library.h"

#include "display/CGLWnd.h"
#include "platform/CBaseApp.h"

#include <atlimage.h>

#include <catch2/catch.hpp>

#include <GL/gl.h>

namespace
{

// The application object that windows find the module through.
CBaseApp theApp;

constexpr int width = 874;
constexpr int height = 576;
constexpr int passes = 10;

/** A window whose scene is one clear colour. */
class PictureWnd : public CGLWnd
{
public:
    void Render() override
    {
        dc = ::wglGetCurrentDC();
        rc = ::wglGetCurrentContext();
        glClearColor(0.25F, 0.5F, 0.75F, 1);
        glClear(GL_COLOR_BUFFER_BIT);
    }

    HDC dc = nullptr; // of the pixel buffer, once it has been drawn in
    HGLRC rc = nullptr;
};

void Read(CImage& image)
{
    glReadPixels(0, 0, width, height, GL_BGRA_EXT, GL_UNSIGNED_BYTE, image.GetPixelAddress(0, height - 1));
}

/** Reads what the first and the last pixel are, so that both sides have to have them. */
unsigned Ends(const CImage& image)
{
    return *static_cast<const unsigned*>(image.GetPixelAddress(0, 0)) ^
           *static_cast<const unsigned*>(image.GetPixelAddress(width - 1, height - 1));
}

} // namespace

TEST_CASE("display")
{
    const Library library;
    PictureWnd wnd;
    REQUIRE(wnd.CreateWnd(L"Bench", WS_POPUP, CRect(0, 0, 100, 100)));
    {
        CClientDC dc(&wnd);
        REQUIRE(wnd.InitPB(dc, width, height));
    }
    CImage image;
    REQUIRE(image.Create(width, height, 32));

    const Round ours = [&](Stopwatch& watch) {
        watch.Measure([&] {
            for (int i = 0; i < passes; ++i)
                Keep(wnd.CapPB(image));
            Keep(Ends(image));
        });
    };
    REQUIRE(wnd.CapPB(image));
    const unsigned ends = Ends(image);
    // The same buffer, by the calls that nobody can do without.
    const Round byHand = [&](Stopwatch& watch) {
        watch.Measure([&] {
            for (int i = 0; i < passes; ++i) {
                ::wglMakeCurrent(wnd.dc, wnd.rc);
                glViewport(0, 0, width, height);
                glClear(GL_COLOR_BUFFER_BIT);
                glFlush();
                Read(image);
                ::wglMakeCurrent(nullptr, nullptr);
            }
            Keep(Ends(image));
        });
        REQUIRE(Ends(image) == ends);
    };
    Compare("display: picture of 874 x 576 by CapPB (the bare calls around glReadPixels)", ours, byHand,
            {.target = 1.1});
}
