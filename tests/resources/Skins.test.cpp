#include "resources/Skins.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

#include "resources/Library.h"

using namespace vant;

namespace
{

struct DeleteGdi {
    void operator()(HBITMAP bitmap) const { DeleteObject(bitmap); }
};
using Bitmap = std::unique_ptr<std::remove_pointer_t<HBITMAP>, DeleteGdi>;

struct Pixel {
    std::uint8_t blue, green, red, alpha;
    bool operator==(const Pixel&) const = default;
};

constexpr Pixel background{39, 18, 0, 255};

/** A skin's pixels as stored in the library, top row first. */
struct Pixels {
    int width = 0, height = 0;
    std::vector<Pixel> data;

    [[nodiscard]] const Pixel& at(int x, int y) const
    {
        return data[static_cast<std::size_t>(y * width + x)];
    }
};

Bitmap LoadSection(int id)
{
    return Bitmap(static_cast<HBITMAP>(
        LoadImageW(Library(), MAKEINTRESOURCEW(id), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION)));
}

Pixels Read(HBITMAP bitmap)
{
    BITMAP info{};
    GetObjectW(bitmap, sizeof info, &info);
    Pixels pixels{info.bmWidth, info.bmHeight, {}};
    pixels.data.resize(static_cast<std::size_t>(info.bmWidth) * static_cast<std::size_t>(info.bmHeight));
    BITMAPINFO request{};
    request.bmiHeader = {
        sizeof request.bmiHeader, info.bmWidth, -info.bmHeight, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    const HDC dc = CreateCompatibleDC(nullptr);
    GetDIBits(dc, bitmap, 0, static_cast<UINT>(info.bmHeight), pixels.data.data(), &request, DIB_RGB_COLORS);
    DeleteDC(dc);
    return pixels;
}

double DistanceFromKey(const Pixel& p)
{
    return std::sqrt(p.red * p.red + (p.green - 22) * (p.green - 22) + (p.blue - 47) * (p.blue - 47));
}

/** Mean brightness of a cell, 0 to 255. */
double Brightness(const Pixels& pixels, const skins::Region& region, int cell)
{
    double sum = 0;
    for (int y = region.y; y < region.y + region.h; ++y)
        for (int x = region.left(cell); x < region.left(cell) + region.w; ++x) {
            const Pixel& p = pixels.at(x, y);
            sum += 0.59 * p.green + 0.3 * p.red + 0.11 * p.blue;
        }
    return sum / (region.w * region.h);
}

} // namespace

TEST(Skins, EverySkinIsStoredWithItsSizeAndThirtyTwoBits)
{
    ASSERT_NE(Library(), nullptr);
    for (const skins::Skin& skin : skins::kAll) {
        SCOPED_TRACE(skin.id);
        ASSERT_NE(FindResourceW(Library(), MAKEINTRESOURCEW(skin.id), RT_BITMAP), nullptr);
        const Bitmap section = LoadSection(skin.id);
        DIBSECTION stored{};
        ASSERT_EQ(GetObjectW(section.get(), sizeof stored, &stored), static_cast<int>(sizeof stored));
        EXPECT_EQ(stored.dsBm.bmWidth, skin.width);
        EXPECT_EQ(stored.dsBm.bmHeight, skin.height);
        EXPECT_EQ(stored.dsBm.bmBitsPixel, 32);

        const Bitmap device(LoadBitmapW(Library(), MAKEINTRESOURCEW(skin.id)));
        BITMAP shown{};
        ASSERT_NE(GetObjectW(device.get(), sizeof shown, &shown), 0);
        EXPECT_EQ(shown.bmWidth, skin.width);
        EXPECT_EQ(shown.bmHeight, skin.height);
    }
}

// A greyed twin leaves what is near the key colour as it is; that must be background and nothing else.
TEST(Skins, OpaqueSkinsHoldTheKeyColourOnlyAsBackground)
{
    for (const skins::Skin& skin : skins::kAll) {
        if (skin.id == VANT_IDB_GLOW)
            continue;
        SCOPED_TRACE(skin.id);
        int wrongColour = 0, notOpaque = 0, drawn = 0;
        for (const Pixel& p : Read(LoadSection(skin.id).get()).data) {
            notOpaque += p.alpha != 255;
            drawn += p != background;
            wrongColour += DistanceFromKey(p) <= 10.0 && p != background;
        }
        EXPECT_EQ(notOpaque, 0);
        EXPECT_EQ(wrongColour, 0);
        EXPECT_GT(drawn, 50);
    }
    EXPECT_LE(DistanceFromKey(background), 10.0);
}

TEST(Skins, GlowIsPremultipliedAndSymmetric)
{
    const Pixels glow = Read(LoadSection(VANT_IDB_GLOW).get());
    int between = 0;
    for (int y = 0; y < glow.height; ++y)
        for (int x = 0; x < glow.width; ++x) {
            const Pixel& p = glow.at(x, y);
            ASSERT_LE(std::max({p.red, p.green, p.blue}), p.alpha) << x << "," << y;
            ASSERT_NEAR(p.alpha, glow.at(glow.width - 1 - x, y).alpha, 8) << x << "," << y;
            ASSERT_NEAR(p.alpha, glow.at(x, glow.height - 1 - y).alpha, 8) << x << "," << y;
            between += p.alpha > 0 && p.alpha < 255;
        }
    EXPECT_GT(between, 1000);
    EXPECT_LT(glow.at(0, 0).alpha, 40) << "the glow ends hard at its corner";
    EXPECT_LT(glow.at(20, 20).alpha, 80) << "the glow hides the control's text";
    EXPECT_GT(glow.at(20, 4).alpha, 160) << "the glow is hard to see";
}

TEST(Skins, GlowBlendsFromABitmapLoadedForTheScreen)
{
    const HDC screen = GetDC(nullptr);
    const HDC source = CreateCompatibleDC(screen), target = CreateCompatibleDC(screen);
    const Bitmap glow(LoadBitmapW(Library(), MAKEINTRESOURCEW(VANT_IDB_GLOW)));
    const Bitmap canvas(CreateCompatibleBitmap(screen, 40, 40));
    const HGDIOBJ oldSource = SelectObject(source, glow.get()),
                  oldTarget = SelectObject(target, canvas.get());
    PatBlt(target, 0, 0, 40, 40, BLACKNESS);
    const BLENDFUNCTION over{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
    EXPECT_TRUE(AlphaBlend(target, 0, 0, 40, 40, source, 0, 0, 40, 40, over));
    const COLORREF ring = GetPixel(target, 20, 4);
    EXPECT_GT(GetBValue(ring), 160);

    PatBlt(target, 0, 0, 40, 40, WHITENESS);
    AlphaBlend(target, 0, 0, 40, 40, source, 0, 0, 40, 40, over);
    EXPECT_GT(GetRValue(GetPixel(target, 0, 0)), 200) << "the alpha byte was lost: what is clear covers";

    SelectObject(source, oldSource);
    SelectObject(target, oldTarget);
    DeleteDC(source);
    DeleteDC(target);
    ReleaseDC(nullptr, screen);
}

TEST(Skins, LampsThatAreOnAreMuchBrighterThanTheSameLampsOff)
{
    const Pixels leds = Read(LoadSection(VANT_IDB_LEDS).get());
    for (int lamp = 0; lamp < skins::leds::lit.cells; ++lamp)
        EXPECT_GT(Brightness(leds, skins::leds::lit, lamp), 1.4 * Brightness(leds, skins::leds::dark, lamp))
            << lamp;
}

// Each look must be told apart from the others, or the user cannot see what a control does.
TEST(Skins, LooksOfAControlDiffer)
{
    using Row = std::pair<skins::Skin, skins::Region>;
    for (const auto& [skin, region] :
         {Row{skins::dwnAr::skin, skins::dwnAr::button}, Row{skins::grad1::skin, skins::grad1::face},
          Row{skins::grad1::skin, skins::grad1::latched}, Row{skins::check::skin, skins::check::off},
          Row{skins::check::skin, skins::check::on}, Row{skins::check::skin, skins::check::radioOn},
          Row{skins::txt::skin, skins::txt::black}, Row{skins::txt::skin, skins::txt::grey},
          Row{skins::toggle::skin, skins::toggle::on}, Row{skins::left::skin, skins::left::button},
          Row{skins::right::skin, skins::right::button}, Row{skins::slider::skin, skins::slider::thumb},
          Row{skins::slider::skin, skins::slider::thumbV},
          Row{skins::msgYesBtn::skin, skins::msgYesBtn::button},
          Row{skins::msgNoBtn::skin, skins::msgNoBtn::button},
          Row{skins::msgBlankBtn::skin, skins::msgBlankBtn::button}}) {
        const Pixels pixels = Read(LoadSection(skin.id).get());
        for (int a = 0; a < region.cells; ++a)
            for (int b = a + 1; b < region.cells; ++b) {
                int different = 0;
                for (int y = region.y; y < region.y + region.h; ++y)
                    for (int x = 0; x < region.w; ++x)
                        different += pixels.at(region.left(a) + x, y) != pixels.at(region.left(b) + x, y);
                EXPECT_GT(different, 20) << "skin " << skin.id << " cells " << a << " and " << b;
            }
    }
}

TEST(Skins, MessageBackgroundLeavesThePlacesOfIconAndButtonsClear)
{
    const Pixels back = Read(LoadSection(VANT_IDB_MSGBACK).get());
    namespace place = skins::msgBack;
    for (const skins::Region& region : {place::icon, place::button1, place::button2, place::button3})
        for (int y = region.y; y < region.y + region.h; ++y)
            for (int x = region.x; x < region.x + region.w; ++x)
                ASSERT_EQ(back.at(x, y), background) << x << "," << y;
    EXPECT_EQ(place::button1.x, 235);
    EXPECT_EQ(place::button1.x + place::button1.w - 1, 335);
    EXPECT_EQ(place::button1.y, 200);
    EXPECT_EQ(place::button1.y + place::button1.h - 1, 235);
}
