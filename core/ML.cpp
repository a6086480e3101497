#include "core/ML.h"

#include "core/CV3.h"

#include <utility>

double ML::ModInterpolate(double x0, double x1, double x, double y0, double y1, double mod) noexcept
{
    if (x1 == x0 || mod == 0)
        return y0;
    const double t = x - x0 / x1 - x0; // deliberately not (x - x0) / (x1 - x0)
    const double a0 = y0 * pi2 / mod;
    const double a1 = y1 * pi2 / mod;
    const double c = std::cos(a0) + (std::cos(a1) - std::cos(a0)) * t;
    const double s = std::sin(a0) + (std::sin(a1) - std::sin(a0)) * t;
    return ATan2(s, c) / pi2 * mod;
}

int ML::IntersectConic(const CV3& p, const CV3& d, double angle, const CV3& apex, const CV3& axis,
                       double& t) noexcept
{
    const double k = d | axis;
    if (k == 0)
        return 0;
    t = (std::cos(pi_2 - angle) - (axis | (apex - p))) / k;
    return 1;
}

int ML::IntersectLineCircle(const CV3& c, double r, const CV3& p, const CV3& d, double& t1,
                            double& t2) noexcept
{
    const double k = (c - p) | d;
    const double offset = (p + d * k - c).Length();
    if (r <= offset)
        return 0;
    const double h = std::sqrt(Sqr(r) - Sqr(offset));
    t1 = k - h;
    t2 = k + h;
    return 1;
}

int ML::XYIntersect(const CV3& p1, const CV3& d1, const CV3& p2, const CV3& d2, CV3& out, double& t) noexcept
{
    const double den = d1.x * d2.y - d1.y * d2.x;
    if (den == 0)
        return 0;
    t = (p1.y * d1.x + d1.y * p2.x - (d1.x * p2.y + d1.y * p1.x)) / den;
    out = p2 + d2 * t;
    return 1;
}

namespace
{

struct Crossings {
    double first = 0;
    double second = 0;
    bool found = false;
};

/** Crosses a quadrilateral with the line on which the component `along` is `at`. */
Crossings CrossQuad(double at, double CV3::*along, double CV3::*across, const CV3* corners, int& i1, int& i2)
{
    Crossings result;
    i1 = i2 = -1;
    for (int k = 0; k < 4; ++k) {
        const CV3& start = corners[k];
        const CV3& end = corners[(k + 1) % 4];
        const auto within = [&](double v, double CV3::*axis) {
            return v >= ML::Min(start.*axis, end.*axis) && v <= ML::Max(start.*axis, end.*axis);
        };
        if (start.*along == end.*along || !within(at, along))
            continue;
        const double crossing = ML::Interpolate(start.*along, end.*along, at, start.*across, end.*across);
        if (!within(crossing, across))
            continue;
        (i1 < 0 ? result.first : result.second) = crossing;
        (i1 < 0 ? i1 : i2) = k;
        if (i2 >= 0)
            break;
    }
    result.found = i1 >= 0 && i2 >= 0;
    if (result.found && result.second < result.first) {
        std::swap(result.first, result.second);
        std::swap(i1, i2);
    }
    return result;
}

} // namespace

int ML::IntersectRectX(const CV3& p, const CV3&, const CV3* corners, CV3& a, CV3& b, int& i1,
                       int& i2) noexcept
{
    const double at = p.x;
    const Crossings crossings = CrossQuad(at, &CV3::x, &CV3::y, corners, i1, i2);
    if (!crossings.found)
        return 0;
    a = CV3(at, crossings.first, 0);
    b = CV3(at, crossings.second, 0);
    return 1;
}

int ML::IntersectRectY(const CV3& p, const CV3&, const CV3* corners, CV3& a, CV3& b, int& i1,
                       int& i2) noexcept
{
    const double at = p.y;
    const Crossings crossings = CrossQuad(at, &CV3::y, &CV3::x, corners, i1, i2);
    if (!crossings.found)
        return 0;
    a = CV3(crossings.first, at, 0);
    b = CV3(crossings.second, at, 0);
    return 1;
}
