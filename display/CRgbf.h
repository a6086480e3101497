#pragma once

#include "core/VantApi.h"

class CArchive;

/** A colour of four floats from 0 to 1, in the order in which OpenGL takes them. Values beyond are kept. */
class VANT_API CRgbf
{
public:
    float red = 1;   ///< share of red
    float green = 1; ///< share of green
    float blue = 1;  ///< share of blue
    float alpha = 1; ///< opacity

    /** White. */
    constexpr CRgbf() noexcept = default;
    constexpr CRgbf(float r, float g, float b, float a = 1) noexcept
        : red(r)
        , green(g)
        , blue(b)
        , alpha(a)
    {
    }

    constexpr bool operator==(const CRgbf&) const noexcept = default;

    /** Four floats: red, green, blue, alpha. */
    void Serialize(CArchive& ar);
};
