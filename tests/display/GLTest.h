#pragma once

#include "display/CDsp.h"
#include "display/detail/GLCalls.h"
#include "display/detail/Pbuffer.h"
#include "platform/PlatformTest.h"

#include <atlimage.h>

#include <GL/gl.h>

#include <cstdint>
#include <functional>
#include <string>

/** Draws the scene of a window into an image of this size, which is made; so is the window's buffer, unless
 * it has one of that size. */
void CaptureScene(CGLWnd& wnd, CImage& image, CSize size, bool topDown = false);

/** A 3D window whose scene is the test's. Its projection is one unit per pixel, y upwards from the lower left
 * corner. */
class SceneWnd : public CGLWnd
{
public:
    std::function<void()> scene = [] {};
    int renders = 0;

    void Render() override;
    /** A window without a frame: its client area is the whole of it. Not shown. */
    void CreatePopup(int width = 200, int height = 150, CPoint at = CPoint(0, 0));
    int InitPB(int width, int height);
    /** The scene as CapPB() has it. */
    void Capture(CImage& image, int width, int height, bool topDown = false);
    /** Runs the test's code where the contexts' lists and textures are. */
    void InContext(const std::function<void()>& code);

    using CGLWnd::InitPB;
};

/** The platform started, alarms recorded, the edge to the driver put back and the shared context released in
 * the end. */
class GLTest : public PlatformTest
{
protected:
    GLTest() { Vant::Init(); }
    ~GLTest() override;

    /** Colour of a pixel as 0xRRGGBB. */
    static std::uint32_t At(const CImage& image, int x, int y);
    /** Whether no channel of two colours 0xRRGGBB is farther apart. */
    static testing::AssertionResult IsNear(std::uint32_t got, std::uint32_t wanted, int tolerance = 3);
    /** Whether a pixel is nearer to white than to black. */
    static bool IsLit(const CImage& image, int x, int y);
    /** The smallest rectangle around the lit pixels; empty without one. */
    static CRect Ink(const CImage& image);
    /** Separate strokes that a row of the picture goes through. */
    static int Strokes(const CImage& image, int y);
    static std::vector<std::wstring> AlarmTexts();
    /** How many of the first 20,000 list names are in use in all windows that share. */
    template <class Wnd>
    static int ListCount(Wnd& wnd)
    {
        int count = 0;
        wnd.InContext([&count] {
            for (GLuint list = 1; list <= 20'000; ++list)
                count += glIsList(list);
        });
        return count;
    }

private:
    const vant::detail::GLCalls m_gl = vant::detail::GL();
    const vant::detail::PbufferCalls m_pbuffers = vant::detail::Pbuffers();
};
