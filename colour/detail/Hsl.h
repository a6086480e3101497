#pragma once

/** @file
 *  Between red, green, blue and hue, saturation, lightness. All are 0 to 1 but the hue, which is degrees:
 *  0 red, 120 green, 240 blue. */

namespace vant::detail
{

struct Rgb3 {
    double r;
    double g;
    double b;
};

struct Hsl3 {
    double h;
    double s;
    double l;
};

/** The hue is deliberately not brought to 0 .. 360: between red and magenta it is negative. */
Hsl3 HslOf(const Rgb3& rgb) noexcept;

/** Takes any hue; one that is not finite counts as 0. */
Rgb3 RgbOf(const Hsl3& hsl) noexcept;

} // namespace vant::detail
