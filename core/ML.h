#pragma once

#include "core/VantApi.h"

#include <cmath>
#include <numbers>

class CV3;

/** Scalar maths: constants, rounding and clipping, comparisons with a tolerance, interpolation, and the
 *  intersections that the displays need.
 *
 *  Angles are in radians unless a function says degrees. A mathematical angle runs anticlockwise from +X, a
 * heading (or bearing) clockwise from +Y. No function checks for division by zero or for arguments outside a
 * function's domain: they give the infinities and NaNs of floating-point arithmetic, which CV3::Finite()
 * tells. */
class ML
{
public:
    ML() = delete;

    static constexpr double threshold = 1e-6;        /**< tolerance of all tolerant comparisons, absolute */
    static constexpr double r2d = 57.29577951308232; ///< degrees in a radian
    static constexpr double d2r = 0.017453292519943295;  ///< radians in a degree
    static constexpr double pi = std::numbers::pi;       ///< half a turn
    static constexpr double pi_2 = pi / 2;               ///< a quarter of a turn
    static constexpr double pi3_2 = 3 * pi / 2;          ///< three quarters of a turn
    static constexpr double pi_4 = pi / 4;               ///< an eighth of a turn
    static constexpr double pi2 = 2 * pi;                ///< a whole turn
    static constexpr double root2 = std::numbers::sqrt2; ///< the square root of 2
    static constexpr double root2_2 = root2 / 2; ///< half of it: sine and cosine of an eighth of a turn
    static constexpr double e = std::numbers::e; ///< Euler's number

    /** The nearest integer; halves go up, also below zero: Rnd(-2.5) is -2. */
    static double Rnd(double v) noexcept { return std::floor(v + 0.5); }
    /** Degrees to radians. */
    static constexpr double D2R(double v) noexcept { return v * d2r; }
    /** Radians to degrees. */
    static constexpr double R2D(double v) noexcept { return v * r2d; }
    /** The second power. */
    static constexpr double Sqr(double v) noexcept { return v * v; }
    /** The third power. */
    static constexpr double Cube(double v) noexcept { return v * (v * v); }
    /** The length of a vector of two components. */
    static double Hypot(double a, double b) noexcept { return std::sqrt(a * a + b * b); }
    /** The length of a vector of three components. */
    static double Hypot3(double a, double b, double c) noexcept { return std::sqrt(a * a + b * b + c * c); }
    /** Hypot(), but exactly 0 when both components are below the threshold. */
    static double HypotT(double a, double b) noexcept
    {
        return std::abs(a) < threshold && std::abs(b) < threshold ? 0.0 : Hypot(a, b);
    }
    /** Half-way between a and b. */
    static constexpr double Mid(double a, double b) noexcept { return (a + b) * 0.5; }
    /** The larger one; b where they cannot be compared. */
    static constexpr double Max(double a, double b) noexcept { return a > b ? a : b; }
    /** The smaller one; b where they cannot be compared. */
    static constexpr double Min(double a, double b) noexcept { return a <= b ? a : b; }
    /** The nearest multiple of step; half-way the higher one. */
    static double ClipRnd(double v, double step) noexcept { return std::floor(v / step + 0.5) * step; }
    /** The next lower multiple of step, or v if it is one. */
    static double ClipDn(double v, double step) noexcept { return std::floor(v / step) * step; }
    /** The next higher multiple of step, or v if it is one. */
    static double ClipUp(double v, double step) noexcept { return std::ceil(v / step) * step; }
    /** v, but no less than the smaller of a and b. Deliberately one-sided: there is no upper bound, and
     *  ClipRng(0, 7, 5) is 7. */
    static constexpr double ClipRng(double a, double v, double b) noexcept
    {
        const double low = Min(a, b);
        return v > low ? v : low;
    }
    /** The area hyperbolic cosine; NaN below 1. */
    static double ACosh(double v) noexcept { return std::log(std::sqrt(v * v - 1) + v); }
    /** The angle of (x, y) in (-pi, pi]. Deliberately +pi/2 or -pi/2 for every x of 0, where y of 0 counts as
     *  negative. */
    static double ATan2(double y, double x) noexcept
    {
        if (x == 0)
            return y > 0 ? pi_2 : -pi_2;
        return std::atan2(y, x);
    }
    /** A mathematical angle as a heading in [0, 2 pi) and back: its own inverse. The argument is at most 9 pi
     * / 2. */
    static double HeadAngleR(double a) noexcept { return std::fmod(4 * pi - a + pi_2, pi2); }
    /** The same in degrees; the argument is at most 810. */
    static double HeadAngleD(double a) noexcept { return std::fmod(720 - a + 90, 360); }
    /** The value at x on the line through (x0, y0) and (x1, y1); y0 when x0 and x1 are the same. */
    static constexpr double Interpolate(double x0, double x1, double x, double y0, double y1) noexcept
    {
        return x1 - x0 == 0 ? y0 : y0 + (y1 - y0) * ((x - x0) / (x1 - x0));
    }
    /** Interpolates a periodic quantity, such as a heading with mod 360, on the circle.
     *
     *  The weight of y1 is deliberately x - x0 / x1 - x0, with the division first; it is the usual weight
     * when x0 is 0 and x1 is 1. @return a value in (-mod/2, mod/2]; y0 when x0 and x1 are the same or mod is
     * 0 */
    VANT_API static double ModInterpolate(double x0, double x1, double x, double y0, double y1,
                                          double mod) noexcept;
    /** Whether a is less than b by more than the threshold. */
    static constexpr bool LessThanT(double a, double b) noexcept { return b - a > threshold; }
    /** Whether a is more than b by more than the threshold. */
    static constexpr bool MoreThanT(double a, double b) noexcept { return a - b > threshold; }
    /** True when a and b differ by strictly less than the threshold. Compared as a sum too, so that 1 and 1 +
     * 1e-6 are not equal although their difference, as doubles go, comes out a shade below the threshold. */
    static bool EqualT(double a, double b) noexcept
    {
        return std::abs(b - a) < threshold && (a == b || Max(a, b) < Min(a, b) + threshold);
    }
    /** fmod(), but 0 where the remainder is within the threshold of m. */
    static double FModT(double a, double m) noexcept
    {
        const double r = std::fmod(a, m);
        return std::abs(m - r) < threshold ? 0 : r;
    }
    /** True when v is exactly a multiple of 2; fractions are odd. */
    static bool Even(double v) noexcept { return v / 2 - std::floor(v / 2) == 0; }
    /** True when v is not Even(). */
    static bool Odd(double v) noexcept { return !Even(v); }
    /** True when a / b comes out as an exact integer. */
    static bool ExactDivisible(double a, double b) noexcept { return a / b - std::floor(a / b) == 0; }

    /** Where the line p + t d meets the plane of a cone's rim: the plane across its axis at cos(pi/2 - angle)
     * from its apex. Deliberately a test of that plane, not of the cone's surface.
     *  @return 1 with t set; 0 when the line runs along the plane */
    VANT_API static int IntersectConic(const CV3& p, const CV3& d, double angle, const CV3& apex,
                                       const CV3& axis, double& t) noexcept;
    /** Where the line p + t d, with d of length 1, comes within r of the point c.
     *  @return 1 with t1 < t2; 0 when it stays outside, which a line that only touches does */
    VANT_API static int IntersectLineCircle(const CV3& c, double r, const CV3& p, const CV3& d, double& t1,
                                            double& t2) noexcept;
    /** Where two lines cross as seen from above (z takes no part in finding the place).
     *  @param[out] out the crossing on the second line, with that line's z there
     *  @param[out] t its parameter: out is p2 + t d2
     *  @return 1; 0 when the lines are parallel, and then out and t are left alone */
    VANT_API static int XYIntersect(const CV3& p1, const CV3& d1, const CV3& p2, const CV3& d2, CV3& out,
                                    double& t) noexcept;
    /** Where the vertical line through p.x (IntersectRectX) or the horizontal one through p.y
     * (IntersectRectY) crosses a quadrilateral.
     *  @param p a point on the line
     *  @param q not used
     *  @param corners four corners; edge k runs from corner k to the next, edge 3 back to corner 0
     *  @param[out] a,b the crossings, the one with the smaller coordinate first, at z = 0
     *  @param[out] i1,i2 their edges, or -1. Edges along the line are passed over; at most two are recorded,
     * and a line through a corner counts once for each of its two edges
     *  @return 1; 0 when fewer than two edges are crossed, and then a and b are left alone @{ */
    VANT_API static int IntersectRectX(const CV3& p, const CV3& q, const CV3* corners, CV3& a, CV3& b,
                                       int& i1, int& i2) noexcept;
    VANT_API static int IntersectRectY(const CV3& p, const CV3& q, const CV3* corners, CV3& a, CV3& b,
                                       int& i1, int& i2) noexcept;
    /** @} */
};
