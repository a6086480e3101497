#pragma once

#include "core/ML.h"
#include "core/VantApi.h"

#include <afx.h>

#include <cmath>
#include <emmintrin.h>
#include <type_traits>

/** A vector or point of three doubles: x to the east or right, y to the north or up the screen, z up.
 *
 *  The components lie side by side, so that a vector may be passed where an array of three doubles is wanted.
 * It also stands for its length wherever a number is wanted: `2.0 * v` is therefore a number, and `v * 2.0` a
 * vector. */
class VANT_API CV3
{
public:
    /** (0, 0, 0), or the three components. */
    constexpr CV3() noexcept = default;
    constexpr CV3(double x_, double y_, double z_) noexcept
        : x(x_)
        , y(y_)
        , z(z_)
    {
    }

    /** The square root of x*x + y*y + z*z. */
    double Length() const noexcept { return ML::Hypot3(x, y, z); }
    /** Same as Length(). */
    operator double() const noexcept { return Length(); }

    /** Component by component; the dot and cross products are | and %. */
    constexpr CV3 operator+(const CV3& b) const noexcept { return {x + b.x, y + b.y, z + b.z}; }
    constexpr CV3 operator-(const CV3& b) const noexcept { return {x - b.x, y - b.y, z - b.z}; }
    constexpr CV3 operator*(const CV3& b) const noexcept { return {x * b.x, y * b.y, z * b.z}; }
    constexpr CV3 operator/(const CV3& b) const noexcept { return {x / b.x, y / b.y, z / b.z}; }
    /** Each component scaled. Any arithmetic type is taken as it is: converted silently, it would make the
     * call ambiguous with the product of the length. */
    template <class S>
    requires std::is_arithmetic_v<S>
    constexpr CV3 operator*(S s) const noexcept
    {
        const auto f = static_cast<double>(s);
        return {x * f, y * f, z * f};
    }
    /** Divided by a number of any type. */
    template <class S>
    requires std::is_arithmetic_v<S>
    constexpr CV3 operator/(S s) const noexcept
    {
        const auto f = static_cast<double>(s);
        return {x / f, y / f, z / f};
    }
    /** The same in place. */
    constexpr CV3& operator+=(const CV3& b) noexcept { return *this = *this + b; }
    constexpr CV3& operator-=(const CV3& b) noexcept { return *this = *this - b; }
    constexpr CV3& operator*=(const CV3& b) noexcept { return *this = *this * b; }
    constexpr CV3& operator/=(const CV3& b) noexcept { return *this = *this / b; }
    constexpr CV3& operator*=(double s) noexcept { return *this = *this * s; }
    constexpr CV3& operator/=(double s) noexcept { return *this = *this / s; }

    /** Exact equality of all three components. */
    constexpr int operator==(const CV3& b) const noexcept { return x == b.x && y == b.y && z == b.z; }
    constexpr int operator!=(const CV3& b) const noexcept { return !(*this == b); }
    /** Compare the lengths of the two vectors. */
    int operator<(const CV3& b) const noexcept { return Length() < b.Length(); }
    int operator>(const CV3& b) const noexcept { return Length() > b.Length(); }
    int operator<=(const CV3& b) const noexcept { return Length() <= b.Length(); }
    int operator>=(const CV3& b) const noexcept { return Length() >= b.Length(); }

    /** The dot product. */
    constexpr double operator|(const CV3& b) const noexcept
    {
        if (std::is_constant_evaluated())
            return x * b.x + y * b.y + z * b.z;
        // The same by hand, two products at a time: left to it, the compiler takes whole vectors apart and
        // together again in a loop over many.
        const __m128d products = _mm_mul_pd(_mm_loadu_pd(&x), _mm_loadu_pd(&b.x));
        const __m128d sum = _mm_add_sd(products, _mm_unpackhi_pd(products, products));
        return _mm_cvtsd_f64(sum) + z * b.z;
    }
    /** The cross product. */
    constexpr CV3 operator%(const CV3& b) const noexcept
    {
        return {y * b.z - z * b.y, z * b.x - x * b.z, x * b.y - y * b.x};
    }

    /** The component 0 (x), 1 (y) or 2 (z). */
    constexpr double& operator[](int i) noexcept { return i == 0 ? x : i == 1 ? y : z; }
    constexpr double operator[](int i) const noexcept { return i == 0 ? x : i == 1 ? y : z; }
    /** The components as an array of three. */
    double* V() noexcept { return &x; }
    const double* V() const noexcept { return &x; }
    /** The same as V(). */
    operator double*() noexcept { return &x; }
    operator const double*() const noexcept { return &x; }

    /** Becomes (0, 0, 0). */
    void Zero() noexcept { *this = CV3(); }
    /** Brings the length to 1. @return the length before; 0 for the zero vector, which stays as it is */
    double Normalise() noexcept
    {
        const double length = Length();
        if (length != 0)
            *this /= length;
        return length;
    }
    /** Non-zero when no component is infinite or NaN. */
    int Finite() const noexcept { return std::isfinite(x) && std::isfinite(y) && std::isfinite(z); }
    /** The mathematical angle in the XY plane, radians, by the rule of ML::ATan2: -pi/2 for the zero vector.
     */
    double Angle() const noexcept { return ML::ATan2(y, x); }
    /** The bearing in the XY plane: radians in [0, 2 pi), clockwise from +Y; pi for the zero vector. */
    double Brg() const noexcept { return ML::HeadAngleR(Angle()); }
    /** The elevation above the XY plane, radians in [-pi/2, pi/2]; 0 for the zero vector. */
    double Slope() const noexcept
    {
        if (z == 0)
            return 0;
        return ML::ATan2(z, ML::Hypot(x, y));
    }
    /** "X:1.00 Y:2.00 Z:3.00". */
    CString Str() const;
    /** Stores or loads x, y and z, 24 bytes. */
    void Serialize(CArchive& ar);

    double x = 0; ///< east, or to the right
    double y = 0; ///< north, or up the screen
    double z = 0; ///< up
};

static_assert(sizeof(CV3) == 3 * sizeof(double));
