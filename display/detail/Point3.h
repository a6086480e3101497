#pragma once

namespace vant::detail
{

/** A point or vector in display coordinates, or a model's. */
struct Point3 {
    double x = 0;
    double y = 0;
    double z = 0;
    bool operator==(const Point3&) const = default;
};

constexpr Point3 operator+(const Point3& a, const Point3& b) noexcept
{
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}

constexpr Point3 operator-(const Point3& a, const Point3& b) noexcept
{
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}

constexpr Point3 operator*(const Point3& a, double factor) noexcept
{
    return {a.x * factor, a.y * factor, a.z * factor};
}

constexpr double Dot(const Point3& a, const Point3& b) noexcept
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

} // namespace vant::detail
