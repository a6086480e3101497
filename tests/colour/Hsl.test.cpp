#include "colour/detail/Hsl.h"
#include "colour/CColTbl.h"

#include <gtest/gtest.h>

#include <limits>

using vant::detail::Hsl3;
using vant::detail::Rgb3;

namespace
{

Hsl3 ToHsl(double r, double g, double b)
{
    Hsl3 out{9, 9, 9};
    CColTbl::Rgb2Hsl(r, g, b, out.h, out.s, out.l);
    return out;
}

Rgb3 ToRgb(double h, double s, double l)
{
    Rgb3 out{9, 9, 9};
    CColTbl::Hsl2Rgb(h, s, l, out.r, out.g, out.b);
    return out;
}

void ExpectRgb(const Rgb3& got, const Rgb3& expected)
{
    EXPECT_NEAR(got.r, expected.r, 1e-12);
    EXPECT_NEAR(got.g, expected.g, 1e-12);
    EXPECT_NEAR(got.b, expected.b, 1e-12);
}

TEST(HslTest, HuesAreNotWrapped)
{
    const struct {
        Rgb3 rgb;
        Hsl3 hsl;
    } cases[] = {
        {{0, 0, 0}, {0, 0, 0}},
        {{1, 0, 1}, {-60, 1, 0.5}},
        {{1, 0, 0.5}, {-30, 1, 0.5}},
        {{1, 0.5, 0.5}, {0, 1, 0.75}},
        {{0.25, 0.5, 0.5}, {180, 1.0 / 3, 0.375}},
    };
    for (const auto& c : cases) {
        const Hsl3 hsl = ToHsl(c.rgb.r, c.rgb.g, c.rgb.b);
        EXPECT_DOUBLE_EQ(hsl.h, c.hsl.h) << c.rgb.r << " " << c.rgb.g << " " << c.rgb.b;
        EXPECT_DOUBLE_EQ(hsl.s, c.hsl.s);
        EXPECT_DOUBLE_EQ(hsl.l, c.hsl.l);
    }
}

TEST(HslTest, EveryHueIsTaken)
{
    // Taking off one circle after the other would never come to an end for the last ones.
    constexpr double infinite = std::numeric_limits<double>::infinity();
    for (const double h : {0.0, 360.0, -3600.0, 720.0, infinite, -infinite, infinite - infinite})
        ExpectRgb(ToRgb(h, 1, 0.5), {1, 0, 0});
    ExpectRgb(ToRgb(-60, 1, 0.5), {1, 0, 1});
    ExpectRgb(ToRgb(480, 1, 0.5), {0, 1, 0});
    ExpectRgb(ToRgb(-120, 0.5, 0.25), {0.125, 0.125, 0.375});
    ExpectRgb(ToRgb(77, 0, 0.75), {0.75, 0.75, 0.75});
    for (const double huge : {1e300, -1e300, -1e-300}) {
        const Rgb3 rgb = ToRgb(huge, 1, 0.5);
        EXPECT_TRUE(rgb.r >= 0 && rgb.r <= 1 && rgb.g >= 0 && rgb.g <= 1 && rgb.b >= 0 && rgb.b <= 1) << huge;
    }
}

} // namespace
