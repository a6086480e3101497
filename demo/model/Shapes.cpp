#include "demo/model/Shapes.h"

#include "tests/display/MeshParts.h"

#include <cmath>
#include <numbers>

namespace demo::model
{
namespace
{

using support::Add;
using support::AddFace;
using support::AddQuad;

constexpr double pi = std::numbers::pi;

int AddRing(MeshData& mesh, const Ring& ring)
{
    const int first = static_cast<int>(mesh.vertices.size());
    for (const Point3& point : ring)
        Add(mesh, point.x, point.y, point.z);
    return first;
}

Point3 Difference(const Point3& a, const Point3& b)
{
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}

Point3 Cross(const Point3& a, const Point3& b)
{
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

Point3 Unit(const Point3& v)
{
    const double length = std::sqrt(v.x * v.x + v.y * v.y + v.z * v.z);
    return {v.x / length, v.y / length, v.z / length};
}

/** A circle around a point, anticlockwise for an eye that `along` points to. */
Ring Circle(const Point3& centre, const Point3& along, double radius, int sides)
{
    const bool isUpright = std::abs(along.z) > 0.9;
    const Point3 first = Unit(Cross(isUpright ? Point3{0, 1, 0} : Point3{0, 0, 1}, along));
    const Point3 second = Cross(along, first);
    Ring ring;
    for (int i = 0; i < sides; ++i) {
        const double c = radius * std::cos(2 * pi * i / sides);
        const double s = radius * std::sin(2 * pi * i / sides);
        ring.push_back({centre.x + c * first.x + s * second.x, centre.y + c * first.y + s * second.y,
                        centre.z + c * first.z + s * second.z});
    }
    return ring;
}

Ring Reversed(const Ring& ring)
{
    return {ring.rbegin(), ring.rend()};
}

Ring AtHeight(const Ring& outline, double z, double scale)
{
    Point3 middle;
    for (const Point3& point : outline) {
        middle.x += point.x / static_cast<double>(outline.size());
        middle.y += point.y / static_cast<double>(outline.size());
    }
    Ring ring;
    for (const Point3& point : outline)
        ring.push_back({middle.x + (point.x - middle.x) * scale, middle.y + (point.y - middle.y) * scale, z});
    return ring;
}

} // namespace

void AddSkin(MeshData& mesh, std::span<const Ring> rings, std::uint32_t group)
{
    int before = 0;
    for (std::size_t number = 0; number < rings.size(); ++number) {
        const int first = AddRing(mesh, rings[number]);
        const int count = static_cast<int>(rings[number].size());
        for (int i = 0; number > 0 && i < count; ++i) {
            const int next = (i + 1) % count;
            AddQuad(mesh, before + i, before + next, first + next, first + i, group);
        }
        before = first;
    }
}

void AddLid(MeshData& mesh, const Ring& ring)
{
    const int first = AddRing(mesh, ring);
    for (int i = 1; i + 1 < static_cast<int>(ring.size()); ++i)
        AddFace(mesh, first, first + i, first + i + 1, flat);
}

void AddPrism(MeshData& mesh, const Ring& outline, double low, double high, double shrink)
{
    const Ring ends[] = {AtHeight(outline, low, 1.0), AtHeight(outline, high, 1.0 - shrink)};
    AddSkin(mesh, ends, outline.size() > 4 ? roundGroup : flat);
    AddLid(mesh, Reversed(ends[0]));
    AddLid(mesh, ends[1]);
}

void AddBlock(MeshData& mesh, const Point3& low, const Point3& high)
{
    AddPrism(mesh, {{low.x, low.y, 0}, {high.x, low.y, 0}, {high.x, high.y, 0}, {low.x, high.y, 0}}, low.z,
             high.z);
}

void AddBar(MeshData& mesh, std::span<const Point3> points, double radius, int sides)
{
    std::vector<Ring> rings;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const Point3& from = points[i > 0 ? i - 1 : 0];
        const Point3& to = points[i + 1 < points.size() ? i + 1 : i];
        rings.push_back(Circle(points[i], Unit(Difference(to, from)), radius, sides));
    }
    AddSkin(mesh, rings, roundGroup);
    AddLid(mesh, Reversed(rings.front()));
    AddLid(mesh, rings.back());
}

void AddTurned(MeshData& mesh, const Point3& foot, std::span<const Turn> profile, int sides)
{
    std::vector<Ring> rings;
    for (const Turn& turn : profile)
        rings.push_back(Circle({foot.x, foot.y, foot.z + turn.height}, {0, 0, 1}, turn.radius, sides));
    AddSkin(mesh, rings, roundGroup);
    AddLid(mesh, rings.back());
}

Ring RoundRect(double left, double right, double rear, double front, double radius, int cornerPoints)
{
    const struct {
        double x, y, from;
    } corners[] = {{right - radius, rear + radius, -pi / 2},
                   {right - radius, front - radius, 0},
                   {left + radius, front - radius, pi / 2},
                   {left + radius, rear + radius, pi}};
    Ring ring;
    for (const auto& corner : corners) {
        for (int i = 0; i < cornerPoints; ++i) {
            const double angle = corner.from + pi / 2 * i / (cornerPoints - 1);
            ring.push_back({corner.x + radius * std::cos(angle), corner.y + radius * std::sin(angle), 0});
        }
    }
    return ring;
}

} // namespace demo::model
