#include "display/GLTest.h"

namespace
{

using namespace vant::detail;

/** Text and circles in a picture of 400 x 200. */
class SceneText : public GLTest
{
protected:
    static constexpr int width = 400;
    static constexpr int height = 200;

    SceneText() { wnd.CreatePopup(); }

    CRect InkOf(const std::function<void()>& scene)
    {
        wnd.scene = scene;
        wnd.Capture(image, width, height);
        return Ink(image);
    }
    CRect InkOfText(double x, double y, double angle, double size, int flags, const CString& text)
    {
        return InkOf([&] { CGLWnd::XyText(x, y, angle, size, flags, text); });
    }

    SceneWnd wnd;
    CImage image;
};

TEST_F(SceneText, IsPutToItsPointAsTheFlagsSay)
{
    constexpr double size = 60;
    constexpr int x = 200;
    constexpr int y = 100; // from the bottom, and so from the top as well
    const CString text = L"HOME";
    const CRect left = InkOfText(x, y, 0, size, CGLWnd::alignLeft | CGLWnd::alignBaseline, text);
    EXPECT_NEAR(left.left, x, 6);
    EXPECT_NEAR(left.bottom, height - y, 2);
    EXPECT_NEAR(left.Height(), size * 0.72, 4); // capitals
    EXPECT_NEAR(left.Width(), size * 2.9, 0.1 * size * 2.9);

    const CRect centre = InkOfText(x, y, 0, size, CGLWnd::alignCentre | CGLWnd::alignMiddle, text);
    EXPECT_NEAR(centre.CenterPoint().x, x, 4);
    EXPECT_NEAR(centre.CenterPoint().y, height - y, 4);

    const CRect right = InkOfText(x, y, 0, size, CGLWnd::alignRight | CGLWnd::alignTop, text);
    EXPECT_NEAR(right.right, x, 6);
    EXPECT_NEAR(right.top, height - y, 5);
    EXPECT_NEAR(right.Width(), left.Width(), 1);

    // A third and two thirds of the size, whatever the text.
    EXPECT_NEAR(centre.bottom - left.bottom, size / 3, 1);
    EXPECT_NEAR(right.bottom - left.bottom, size * 2 / 3, 1);
}

TEST_F(SceneText, TurnsAndScalesAndLeavesTheStateAlone)
{
    const CRect flat = InkOfText(200, 100, 0, 20, 0, L"HOME");
    const CRect up = InkOfText(200, 100, 90, 20, 0, L"HOME");
    EXPECT_NEAR(up.Height(), flat.Width(), 1);
    EXPECT_NEAR(up.Width(), flat.Height(), 1);
    EXPECT_NEAR(up.bottom, 100, 3); // runs upwards from the point
    EXPECT_NEAR(up.right, 200, 1);

    wnd.txtScale = 2;
    const CRect twice = InkOfText(200, 100, 0, 20, 0, L"HOME");
    EXPECT_NEAR(twice.Width(), 2 * flat.Width(), 2);
    EXPECT_NEAR(twice.Height(), 2 * flat.Height(), 2);

    GLint base = 0;
    double matrix[16]{};
    GLint depth = 0;
    const CRect both = InkOf([&] {
        glListBase(7);
        glTranslated(100, 0, 0);
        CGLWnd::XyText(0, 100, 45, 20, CGLWnd::alignCentre, L"HOME");
        CGLWnd::XyCircle(0, 0, 0, L"HOME");
        CGLWnd::XyBmpText(0, 0, 0, L"");
        glGetIntegerv(GL_LIST_BASE, &base);
        glGetDoublev(GL_MODELVIEW_MATRIX, matrix);
        glGetIntegerv(GL_MODELVIEW_STACK_DEPTH, &depth);
        EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
    });
    EXPECT_FALSE(both.IsRectEmpty());
    EXPECT_EQ(base, 7);
    EXPECT_EQ(matrix[12], 100);
    EXPECT_EQ(matrix[0], 1);
    EXPECT_EQ(depth, 1);
}

TEST_F(SceneText, CanBeReadAtThreeSizes)
{
    for (const double size : {14.0, 20.0, 40.0}) {
        const CRect ink = InkOfText(10, 100, 0, size, CGLWnd::alignMiddle, L"HIHIH");
        // Uprights are parted from each other, and crossbars are where they belong.
        const int upright = ink.top + ink.Height() / 4;
        EXPECT_EQ(Strokes(image, upright), 8) << size;
        int fewest = 99;
        for (int y = ink.top; y < ink.bottom; ++y)
            fewest = std::min(fewest, Strokes(image, y));
        EXPECT_EQ(fewest, 5) << size;
        EXPECT_NEAR(ink.Height(), size * 0.72, 2) << size;
    }
    wnd.scene = [] {
        int y = 20;
        for (const double size : {14.0, 20.0, 40.0}) {
            CGLWnd::XyText(10, y, 0, size, 0, L"Depth 12.5 m, Heading 045\u00B0");
            y += static_cast<int>(size) + 15;
        }
        CGLWnd::XyText(200, 160, 0, 20, CGLWnd::alignCentre, L"\u00C4 quick brown fox \u00FE");
    };
    wnd.Capture(image, 600, height);
    if (const wchar_t* const path = ::_wgetenv(L"VANT_GL_PICTURE"))
        image.Save(path);
}

TEST_F(SceneText, ShowsAQuestionMarkForWhatTheFontHasNoGlyphOf)
{
    const CRect known = InkOfText(10, 100, 0, 40, 0, L"A?B?");
    CImage expected;
    wnd.Capture(expected, width, height);
    const CRect unknown = InkOfText(10, 100, 0, 40, 0, L"A\u0394B\u00FF");
    EXPECT_EQ(known, unknown);
    for (int y = 0; y < height; ++y)
        ASSERT_EQ(std::memcmp(image.GetPixelAddress(0, y), expected.GetPixelAddress(0, y), width * 4), 0)
            << y;
    EXPECT_TRUE(InkOfText(10, 100, 0, 40, CGLWnd::alignCentre, L"").IsRectEmpty());
}

TEST_F(SceneText, HasTheDisplayFontOfTheTimeWhenTheWindowWasCreated)
{
    static int made;
    made = 0;
    static decltype(GL().fontOutlines) system;
    system = GL().fontOutlines;
    GL().fontOutlines = [](HDC dc, DWORD first, DWORD count, DWORD lists, GLYPHMETRICSFLOAT* metrics) {
        ++made;
        EXPECT_EQ(first, 0u);
        EXPECT_EQ(count, 255u);
        return system(dc, first, count, lists, metrics);
    };
    const CRect regular = InkOfText(10, 100, 0, 60, 0, L"illi");
    SceneWnd same;
    same.CreatePopup();
    EXPECT_EQ(made, 0) << "windows that share have the glyphs in common";

    LOGFONTW font{};
    Vant::scrnF.GetLogFont(&font);
    std::wcscpy(font.lfFaceName, L"Courier New");
    Vant::scrnF.DeleteObject();
    Vant::scrnF.CreateFontIndirect(&font);
    SceneWnd other;
    other.CreatePopup();
    EXPECT_EQ(made, 1);
    other.scene = [] { CGLWnd::XyText(10, 100, 0, 60, 0, L"illi"); };
    CImage wide;
    other.Capture(wide, width, height);
    EXPECT_GT(Ink(wide).Width(), regular.Width() * 2);
    EXPECT_EQ(InkOfText(10, 100, 0, 60, 0, L"illi"), regular);
}

TEST_F(SceneText, BitmapTextHasItsOwnSizeInPixels)
{
    GLuint lists = 0;
    wnd.InContext([&lists] {
        lists = glGenLists(256);
        const HDC dc = ::wglGetCurrentDC();
        const HGDIOBJ before = ::SelectObject(dc, Vant::normalF);
        EXPECT_TRUE(::wglUseFontBitmapsW(dc, 0, 256, lists));
        ::SelectObject(dc, before);
    });
    const CRect plain = InkOf([lists] { CGLWnd::XyBmpText(lists, 50, 100, L"HIH"); });
    EXPECT_NEAR(plain.left, 50, 3);
    EXPECT_NEAR(plain.bottom, 100, 1);
    EXPECT_NEAR(plain.Height(), 10, 2);
    EXPECT_EQ(Strokes(image, plain.top + 2), 5);
    const CRect scaled = InkOf([lists] {
        glScaled(2, 2, 1);
        CGLWnd::XyBmpText(lists, 25, 50, L"HIH");
    });
    EXPECT_EQ(scaled, plain);
}

TEST_F(SceneText, ACircleIsOneWideAndItsTextTwentyHigh)
{
    const CRect ring = InkOf([] {
        glTranslated(200, 100, 0);
        glScaled(100, 100, 1);
        CGLWnd::XyCircle(0, 0, 0, L"");
    });
    EXPECT_NEAR(ring.Width(), 100, 2);
    EXPECT_NEAR(ring.Height(), 100, 2);
    EXPECT_NEAR(ring.CenterPoint().x, 200, 1);
    EXPECT_FALSE(IsLit(image, 200, 100));
    EXPECT_EQ(Strokes(image, 100), 2);

    // The third number is a coordinate: it moves the circle away from the eye and does not widen it.
    const CRect text = InkOf([] { CGLWnd::XyCircle(200, 100, 50, L"HOME"); });
    EXPECT_NEAR(text.left, 201, 3);
    EXPECT_NEAR(text.Height(), 20 * 0.72, 2);
    EXPECT_TRUE(InkOf([] { CGLWnd::XyCircle(200, 100, 150, L"HOME"); }).IsRectEmpty())
        << "behind the far plane";

    CGLWnd::XyText(0, 0, 0, 1, 0, L"no context: nothing happens");
    CGLWnd::XyCircle(0, 0, 0, L"");
    CGLWnd::XyBmpText(1, 0, 0, L"A");
}

} // namespace
