#pragma once

#include "core/VantApi.h"

#include <afx.h>

class CArchive;
class CESetObj;

/** A colour of four bytes, in the order in which OpenGL takes them. The alpha byte is opacity: 255 hides what
 * is behind. */
class VANT_API CRgb
{
public:
    unsigned char red = 255;   ///< share of red
    unsigned char green = 255; ///< share of green
    unsigned char blue = 255;  ///< share of blue
    unsigned char alpha = 255; ///< opacity

    /** White. */
    constexpr CRgb() noexcept = default;
    constexpr CRgb(unsigned char r, unsigned char g, unsigned char b, unsigned char a = 255) noexcept
        : red(r)
        , green(g)
        , blue(b)
        , alpha(a)
    {
    }

    /** Takes a COLORREF (red is the low byte); alpha stays. */
    constexpr CRgb& operator=(unsigned long colour) noexcept
    {
        SetCol(colour);
        return *this;
    }
    /** Same as the assignment. */
    constexpr void SetCol(unsigned long colour) noexcept
    {
        red = static_cast<unsigned char>(colour & 0xFF);
        green = static_cast<unsigned char>(colour >> 8 & 0xFF);
        blue = static_cast<unsigned char>(colour >> 16 & 0xFF);
    }
    /** All four bytes 0: black that hides nothing. */
    constexpr void Zero() noexcept { *this = CRgb(0, 0, 0, 0); }

    constexpr bool operator==(const CRgb&) const noexcept = default;

    /** Mixes two colours: the means of red and green, alpha 255. Blue is deliberately another formula: the
     * whole of this blue and half of the other's, modulo 256. */
    constexpr CRgb operator+(const CRgb& other) const noexcept
    {
        return {static_cast<unsigned char>((red + other.red) / 2),
                static_cast<unsigned char>((green + other.green) / 2),
                static_cast<unsigned char>(blue + other.blue / 2)};
    }
    constexpr CRgb& operator+=(const CRgb& other) noexcept { return *this = *this + other; }

    /** Scales red, green and blue, cut off at 255 and at the point; alpha becomes 255. A negative factor
     * counts as 0, also as a divisor: then whatever is not 0 becomes 255. */
    constexpr CRgb operator*(double factor) const noexcept
    {
        const double f = NotNegative(factor);
        return {Byte(red * f), Byte(green * f), Byte(blue * f)};
    }
    constexpr CRgb operator/(double divisor) const noexcept
    {
        const double d = NotNegative(divisor);
        return {Quotient(red, d), Quotient(green, d), Quotient(blue, d)};
    }
    constexpr CRgb& operator*=(double factor) noexcept { return *this = *this * factor; }
    constexpr CRgb& operator/=(double divisor) noexcept { return *this = *this / divisor; }

    /** Four bytes: red, green, blue, alpha. */
    void Serialize(CArchive& ar);

    /** Exchanges one item with the text "red, green, blue". What is stored ends in ", &d", deliberately: the
     * alpha byte is not kept. Loading takes the first three numbers, their low 8 bits each, and leaves the
     * colour as it is when there are fewer. */
    void Settings(const CString& key, CESetObj& obj);

private:
    static constexpr double NotNegative(double v) noexcept { return v > 0 ? v : 0; }
    static constexpr unsigned char Byte(double v) noexcept
    {
        return v >= 255 ? 255 : v > 0 ? static_cast<unsigned char>(v) : 0; // 0 for a NaN
    }
    static constexpr unsigned char Quotient(unsigned char channel, double divisor) noexcept
    {
        if (divisor == 0)
            return channel ? 255 : 0;
        return Byte(channel / divisor);
    }
};
