#include "controls/ControlsTest.h"

#include "controls/CEBtn.h"
#include "controls/detail/SkinPiece.h"
#include "resources/Skins.h"
#include "support/GdiCount.h"

#include <cstdio>

namespace
{

using vant::detail::Calls;
using vant::detail::DrawPiece;

using CECtrlSkinTest = ControlsTest;

constexpr int ownBitmap = 500; // of this program

HBITMAP MakeBitmap(int width, int height, WORD bits, const void* pixels, std::size_t size)
{
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, width, height, 1, bits, BI_RGB, 0, 0, 0, 0, 0};
    void* to = nullptr;
    const HBITMAP bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &to, nullptr, 0);
    std::memcpy(to, pixels, size);
    return bitmap;
}

std::uint32_t Pixel(CDC& dc, int x, int y)
{
    const COLORREF c = dc.GetPixel(x, y);
    return static_cast<std::uint32_t>(RGB(GetBValue(c), GetGValue(c), GetRValue(c)));
}

} // namespace

TEST_F(CECtrlSkinTest, GreyTwinFollowsTheFormulaAndKeepsTheKeyColour)
{
    struct Case {
        std::uint32_t colour;
        std::uint32_t grey;
    };
    static constexpr Case cases[] = {
        {0x00162F, 0x00162F},                       // the key itself
        {0x0A162F, 0x0A162F},                       // at a distance of exactly 10
        {0x061E2F, 0x061E2F},                       // likewise, 6 and 8
        {0x0B162F, 0x151515},                       // 11 away: 21.45
        {0x001227, 0x001227},                       // the background of the skins, 8.9 away
        {0x646464, 0x646464},                       // 100.0
        {0xC80000, 0x3C3C3C},                       // 60.0
        {0x0000FF, 0x1C1C1C},                       // 28.05
        {0xFFFFFF, 0xFFFFFF}, {0x00163A, 0x131313}, // 19.36
    };
    constexpr int count = std::size(cases);
    Calls().loadBitmap = [](int) {
        std::uint32_t pixels[count];
        for (int i = 0; i < count; ++i)
            pixels[i] = cases[i].colour | 0x7F000000;
        return MakeBitmap(count, 1, 32, pixels, sizeof pixels);
    };
    PlainCtrl ctrl;
    ctrl.rc = CRect(10, 30, 90, 80);
    ctrl.LoadBitmapW(1);
    EXPECT_EQ(ctrl.ownDC, 1);
    EXPECT_EQ(ctrl.bmW, count);
    EXPECT_EQ(ctrl.bmH, 1);
    EXPECT_EQ(ctrl.rc, CRect(10, 30, 90, 31));
    for (int i = 0; i < count; ++i) {
        EXPECT_EQ(Pixel(ctrl.dcNorm, i, 0), cases[i].colour) << i;
        EXPECT_EQ(Pixel(ctrl.dcGrey, i, 0), cases[i].grey) << i;
    }
    DIBSECTION dib{};
    ::GetObjectW(::GetCurrentObject(ctrl.dcGrey, OBJ_BITMAP), sizeof dib, &dib);
    const auto* bits = static_cast<const std::uint32_t*>(dib.dsBm.bmBits);
    ASSERT_NE(bits, nullptr);
    EXPECT_EQ(bits[6] >> 24, 0x7Fu) << "the fourth byte stays";
}

TEST_F(CECtrlSkinTest, OtherDepthsAreNotGreyedAndComeFromTheProgramToo)
{
    PlainCtrl ctrl;
    ctrl.LoadBitmapW(ownBitmap);
    ASSERT_EQ(ctrl.ownDC, 1) << "the library has no such bitmap, the program has";
    EXPECT_EQ(ctrl.bmW, 3);
    EXPECT_EQ(ctrl.bmH, 2);
    EXPECT_EQ(Pixel(ctrl.dcNorm, 2, 1), 0x3264C8u);
    EXPECT_EQ(Pixel(ctrl.dcGrey, 2, 1), 0x3264C8u);
}

TEST_F(CECtrlSkinTest, LoadingAgainReplacesTheSkinAndLeaksNothing)
{
    PlainCtrl ctrl;
    ctrl.LoadBitmapW(ownBitmap);
    const int before = vant::test::GdiObjectCount();
    for (int i = 0; i < 20; ++i) {
        ctrl.LoadBitmapW(VANT_IDB_DIAL);
        PlainCtrl other;
        other.LoadBitmapW(VANT_IDB_CHECK);
    }
    EXPECT_EQ(vant::test::GdiObjectCount(), before);
    EXPECT_EQ(ctrl.bmW, 200);
    EXPECT_EQ(ctrl.bmH, 100);

    ctrl.rc = CRect(0, 0, 5, 5);
    ctrl.LoadBitmapW(4711); // nobody has it
    EXPECT_EQ(ctrl.bmW, 200);
    EXPECT_EQ(ctrl.rc, CRect(0, 0, 5, 5));
    EXPECT_NE(Pixel(ctrl.dcNorm, 50, 50), CLR_INVALID);
    EXPECT_EQ(vant::test::GdiObjectCount(), before);
}

TEST_F(CECtrlSkinTest, ContextsThatAreNotItsOwnOutliveAControl)
{
    Canvas shared(2, 2);
    {
        PlainCtrl ctrl;
        ctrl.dcNorm.Attach(shared.Dc().m_hDC);
    }
    shared.Fill(RGB(255, 0, 0));
    EXPECT_EQ(shared.At(1, 1), 0xFF0000u);
}

TEST_F(CECtrlSkinTest, AButtonDrawsItsOwnSkin)
{
    Calls().loadBitmap = [](int) {
        static constexpr std::uint32_t pixels[] = {0xC80000, 0x00C800, 0x0000C8, 0xC8C800, 0x00C8C8};
        return MakeBitmap(5, 1, 32, pixels, sizeof pixels);
    };
    CEBtn btn;
    btn.LoadBitmapW(1);
    btn.rc = CRect(0, 0, 50, 20);
    btn.skinLooks = 5;
    Canvas canvas(50, 20);
    btn.look = CECtrl::lookHover;
    btn.Draw(&canvas.Dc());
    EXPECT_EQ(canvas.Bounds(RGB(0, 200, 0)), CRect(0, 0, 50, 20));
    btn.state = CECtrl::stShown;
    btn.Draw(&canvas.Dc());
    EXPECT_EQ(canvas.At(25, 10), 0x00C8C8u) << "it has a picture for that";

    btn.skinLooks = 1;
    btn.Draw(&canvas.Dc());
    const std::uint32_t disabled = canvas.At(3, 10);
    EXPECT_EQ(disabled & 0xFF, (disabled >> 16) & 0xFF) << "grey";
    btn.state = 3;
    btn.look = 0;
    btn.Draw(&canvas.Dc());
    EXPECT_EQ(canvas.At(0, 10), 0xC80000u);
}

TEST(CECtrlSkinDeathTest, ExhaustedMemoryEndsTheProcess)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(
        {
            Calls().showFatalError = [](LPCWSTR text, LPCWSTR) {
                std::fprintf(stderr, "%ls\n", text);
                std::fflush(stderr);
            };
            PlainCtrl ctrl;
            Calls().reallocate = [](void*, std::size_t) -> void* { return nullptr; };
            ctrl.LoadBitmapW(VANT_IDB_DIAL);
        },
        testing::ExitedWithCode(1), "Cause: Malloc cannot allocate 80000 bytes");
}

TEST_F(CECtrlSkinTest, GlowBlendsTheStretchedImage)
{
    PlainCtrl ctrl;
    Canvas canvas(100, 60);
    CRect box(10, 10, 90, 50);
    ctrl.Glow(&canvas.Dc(), box, 0);
    for (int y = 0; y < 60; ++y)
        for (int x = 0; x < 100; ++x)
            ASSERT_EQ(canvas.At(x, y), 0u);

    ctrl.Glow(&canvas.Dc(), box, 128);
    const std::uint32_t half = canvas.At(50, 12) & 0xFF;
    canvas.Fill(RGB(0, 0, 0));
    ctrl.Glow(&canvas.Dc(), box, 255);
    const std::uint32_t full = canvas.At(50, 12) & 0xFF;
    EXPECT_GT(full, 20u);
    EXPECT_NEAR(half, full / 2, 3);
    EXPECT_EQ(canvas.At(50, 8), 0u) << "outside";
    EXPECT_EQ(canvas.At(95, 30), 0u);
    canvas.Fill(RGB(0, 0, 0));
    ctrl.Glow(&canvas.Dc(), box, 256 + 128); // its low byte
    EXPECT_EQ(canvas.At(50, 12) & 0xFF, half);
}

TEST_F(CECtrlSkinTest, PiecesStretchBetweenTheirMargins)
{
    using vant::skins::Look;
    constexpr auto& face = vant::skins::grad1::face;
    Canvas canvas(100, 50);
    EXPECT_TRUE(DrawPiece(canvas.Dc(), CRect(0, 0, 100, 50), Vant::grad1, face, Look::Hover));
    const int left = face.left(Look::Hover);
    for (int y = 0; y < face.edges.top; ++y) {
        for (int x = 0; x < face.edges.left; ++x) {
            EXPECT_EQ(canvas.At(x, y), Pixel(Vant::grad1, left + x, y));
            EXPECT_EQ(canvas.At(99 - x, 49 - y), Pixel(Vant::grad1, left + face.w - 1 - x, face.h - 1 - y));
        }
    }
    EXPECT_EQ(canvas.At(50, 0), Pixel(Vant::grad1, left + 16, 0));
    EXPECT_EQ(canvas.At(0, 25), Pixel(Vant::grad1, left, 12));

    // On another background the skin's own is left out.
    canvas.Fill(RGB(200, 0, 0));
    DrawPiece(canvas.Dc(), CRect(0, 0, 20, 20), Vant::check, vant::skins::check::off, Look::Normal,
              RGB(200, 0, 0));
    EXPECT_EQ(canvas.At(0, 0), 0xC80000u);
    EXPECT_EQ(canvas.Bounds(vant::detail::skinBack), CRect(0, 0, 0, 0));
    EXPECT_NE(canvas.At(10, 10), 0xC80000u);

    // A box that is smaller than the margins, or none at all.
    canvas.Fill(RGB(0, 0, 0));
    EXPECT_TRUE(DrawPiece(canvas.Dc(), CRect(0, 0, 5, 3), Vant::grad1, face, Look::Normal));
    EXPECT_NE(canvas.At(4, 2), 0u);
    EXPECT_EQ(canvas.At(5, 2), 0u);
    EXPECT_TRUE(DrawPiece(canvas.Dc(), CRect(9, 9, 5, 3), Vant::grad1, face, Look::Normal));

    CDC none;
    EXPECT_FALSE(DrawPiece(canvas.Dc(), CRect(0, 0, 50, 20), none, face, Look::Normal));
    none.CreateCompatibleDC(nullptr); // as after the loading of a skin that is missing
    EXPECT_FALSE(DrawPiece(canvas.Dc(), CRect(0, 0, 50, 20), none, face, Look::Normal));
}
