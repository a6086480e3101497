#include "display/detail/CornerNormals.h"

#include "tests/display/Models.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <functional>

namespace
{

using namespace support;
using namespace vant::detail;

double Degrees(const Normal& a, double x, double y, double z)
{
    const double across = std::hypot(a.y * z - a.z * y, a.z * x - a.x * z, a.x * y - a.y * x);
    return std::atan2(across, a.x * x + a.y * y + a.z * z) * 180 / std::numbers::pi;
}

double Degrees(const Normal& a, const Normal& b)
{
    return Degrees(a, b.x, b.y, b.z);
}

/** The normal that a face has alone. */
Normal FaceNormal(const MeshData& mesh, const MeshFace& face)
{
    MeshData alone;
    alone.vertices = mesh.vertices;
    alone.faces = {face};
    return CornerNormals(alone).front();
}

/** A wall of `sides` sides around the z axis, with its own vertices for each side or shared ones. */
MeshData Wall(int sides, bool shared)
{
    MeshData mesh;
    const auto add = [&](int side) {
        const double around = 2 * std::numbers::pi * (side % sides) / sides;
        for (const double z : {0.0, 3.0})
            mesh.vertices.push_back({std::cos(around), std::sin(around), z});
        return static_cast<std::uint16_t>(mesh.vertices.size() - 2);
    };
    for (int side = 0; side < (shared ? sides : 0); ++side)
        add(side);
    for (int side = 0; side < sides; ++side) {
        const auto a = shared ? static_cast<std::uint16_t>(2 * side) : add(side);
        const auto b = shared ? static_cast<std::uint16_t>(2 * ((side + 1) % sides)) : add(side + 1);
        const auto above = [](std::uint16_t i) { return static_cast<std::uint16_t>(i + 1); };
        mesh.faces.push_back({a, b, above(b), 0});
        mesh.faces.push_back({a, above(b), above(a), 0});
    }
    return mesh;
}

/** The greatest angle in degrees between a corner's normal and its face's. */
double GreatestBend(const MeshData& mesh, double creaseAngle = usualCreaseAngle)
{
    const std::vector<Normal> normals = CornerNormals(mesh, creaseAngle);
    double greatest = 0;
    for (std::size_t i = 0; i < normals.size(); ++i)
        greatest = std::max(greatest, Degrees(normals[i], FaceNormal(mesh, mesh.faces[i / 3])));
    return greatest;
}

/** Very many faces around one vertex, in the plane or, with a height, around a cone's top. */
MeshData Fan(int count, double height)
{
    MeshData mesh;
    mesh.vertices.push_back({0, 0, height});
    for (int i = 0; i < count; ++i) {
        const double around = 2 * std::numbers::pi * i / count;
        mesh.vertices.push_back({std::cos(around), std::sin(around), 0});
        const auto next = static_cast<std::uint16_t>(i + 1 == count ? 1 : i + 2);
        mesh.faces.push_back({0, static_cast<std::uint16_t>(i + 1), next, 0});
    }
    return mesh;
}

} // namespace

TEST(CornerNormals, LookToWhereTheCornersRunAnticlockwise)
{
    MeshData mesh;
    mesh.vertices = {{0, 0, 5}, {2, 0, 5}, {0, 3, 5}, {1, 0, 5}};
    EXPECT_EQ(FaceNormal(mesh, {0, 1, 2, 0}), (Normal{0, 0, 1}));
    EXPECT_EQ(FaceNormal(mesh, {0, 2, 1, 0}), (Normal{0, 0, -1}));
    EXPECT_EQ(FaceNormal(mesh, {0, 3, 1, 0}), (Normal{0, 0, 1})) << "without an area";

    // All sides of what encloses a space look outwards: the flux of the place through them is three volumes.
    const auto volume = [](const ModelData& model) {
        double sum = 0;
        for (const MeshData& each : model.meshes) {
            for (const MeshFace& face : each.faces) {
                const Point3& a = each.vertices[face.a];
                const Point3& b = each.vertices[face.b];
                const Point3& c = each.vertices[face.c];
                sum += (a.x * (b.y * c.z - b.z * c.y) + a.y * (b.z * c.x - b.x * c.z) +
                        a.z * (b.x * c.y - b.y * c.x)) /
                       6;
            }
        }
        return sum;
    };
    EXPECT_EQ(volume(Cube()), 8.0);
    EXPECT_NEAR(volume(Sphere(48, 96)), 4 * std::numbers::pi / 3, 0.02);
    for (const ModelData& model : {Cube(), Sphere(12, 24)}) {
        for (const MeshFace& face : model.meshes[0].faces) {
            const Point3& place = model.meshes[0].vertices[face.a];
            EXPECT_LT(Degrees(FaceNormal(model.meshes[0], face), place.x, place.y, place.z), 60);
        }
    }
}

TEST(CornerNormals, KeepEdgesBySmoothingSets)
{
    EXPECT_LT(GreatestBend(Cube().meshes[0]), 0.01);

    MeshData cube = Cube().meshes[0];
    cube.smoothing.assign(cube.smoothing.size(),
                          0x80000000); // round now, though its sides have their own vertices
    const std::vector<Normal> normals = CornerNormals(cube);
    for (std::size_t i = 0; i < normals.size(); ++i) {
        const MeshFace& face = cube.faces[i / 3];
        const Point3& place = cube.vertices[i % 3 == 0 ? face.a : i % 3 == 1 ? face.b : face.c];
        EXPECT_LT(Degrees(normals[i], place.x, place.y, place.z), 0.01) << "however its sides are cut in two";
    }
    cube.smoothing.assign(cube.smoothing.size(), 0);
    EXPECT_LT(GreatestBend(cube), 0.01) << "a face in no group is flat";
}

TEST(CornerNormals, AreSmoothWithThoseThatShareAGroup)
{
    // Three sides of a wall: 1 and 2 share a group with the middle one, but none with each other.
    MeshData wall = Wall(4, true);
    wall.faces.resize(6);
    wall.smoothing = {1, 1, 3, 3, 2, 2};
    const std::vector<Normal> normals = CornerNormals(wall);
    EXPECT_NEAR(Degrees(normals[0], FaceNormal(wall, wall.faces[0])), 0, 0.01) << "at the wall's end";
    EXPECT_NEAR(Degrees(normals[1], FaceNormal(wall, wall.faces[0])), 45, 20);
    EXPECT_NEAR(Degrees(normals[1], normals[6]), 0, 0.01);
    EXPECT_NEAR(Degrees(normals[7], normals[12]), 0, 0.01);

    // Three faces around one corner, the third of which meets both groups.
    MeshData top;
    top.vertices = {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
    top.faces = {{0, 1, 2, 0}, {0, 2, 3, 0}, {0, 3, 1, 0}};
    top.smoothing = {1, 2, 3};
    const std::vector<Normal> around = CornerNormals(top);
    EXPECT_LT(Degrees(around[0], 0, 1, 1), 0.01);
    EXPECT_LT(Degrees(around[3], 1, 1, 0), 0.01);
    EXPECT_LT(Degrees(around[6], 1, 1, 1), 0.01);
}

TEST(CornerNormals, AreSmoothBelowTheCreaseAngle)
{
    for (const bool shared : {false, true}) {
        EXPECT_NEAR(GreatestBend(Wall(12, shared)), 15, 0.1);
        EXPECT_NEAR(GreatestBend(Wall(10, shared)), 18, 0.1);
        EXPECT_LT(GreatestBend(Wall(8, shared)), 0.1);
        EXPECT_LT(GreatestBend(Wall(12, shared), 0), 0.1);
        EXPECT_NEAR(GreatestBend(Wall(4, shared), std::numbers::pi), 45, 0.1);
    }
}

TEST(CornerNormals, RunAroundASphere)
{
    for (const bool bySets : {true, false}) {
        MeshData sphere =
            Sphere(24, 48).meshes[0]; // at its poles more faces meet than are compared one by one
        if (!bySets)
            sphere.smoothing.clear();
        const std::vector<Normal> normals = CornerNormals(sphere);
        for (std::size_t i = 0; i < normals.size(); ++i) {
            const MeshFace& face = sphere.faces[i / 3];
            const Point3& place = sphere.vertices[i % 3 == 0 ? face.a : i % 3 == 1 ? face.b : face.c];
            EXPECT_LT(Degrees(normals[i], place.x, place.y, place.z), 2.5) << "also at the seam " << i;
        }
    }
}

TEST(CornerNormals, OfFacesThatCancelOutAreTheirOwn)
{
    MeshData sheet; // seen from both sides
    sheet.vertices = {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}};
    sheet.faces = {{0, 1, 2, 0}, {0, 2, 1, 0}, {0, 1, 1, 0}};
    const std::function<void(const char*)> check = [&](const char* how) {
        const std::vector<Normal> normals = CornerNormals(sheet);
        EXPECT_EQ(normals[0], (Normal{0, 0, 1})) << how;
        EXPECT_EQ(normals[3], (Normal{0, 0, -1})) << how;
    };
    check("by angle");
    sheet.smoothing = {1, 1, 1};
    check("by sets");
}

TEST(CornerNormals, TakeTimeInProportion)
{
    constexpr int count = 65'000;
    MeshData many = Fan(count, 0);
    MeshData cone = Fan(count, 1);
    MeshData sets = Fan(count, 1);
    for (int i = 0; i < count; ++i)
        sets.smoothing.push_back(static_cast<std::uint32_t>(i) * 2 + 1);
    MeshData one = Fan(count, 0); // all at one place
    one.vertices.assign(one.vertices.size(), {1, 1, 1});
    for (const MeshData* mesh : {&many, &cone, &sets, &one}) {
        const auto begin = std::chrono::steady_clock::now();
        const std::vector<Normal> normals = CornerNormals(*mesh);
        const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - begin;
        EXPECT_LT(taken.count(), 2.0); // comparing each with each takes four thousand million steps
        EXPECT_EQ(normals.size(), 3U * count);
    }
    EXPECT_LT(Degrees(CornerNormals(many)[0], 0, 0, 1), 0.01);
    EXPECT_LT(Degrees(CornerNormals(sets)[0], 0, 0, 1), 0.01);
    const double toSide = Degrees(CornerNormals(cone)[0], 0, 0, 1);
    EXPECT_GT(toSide, 30) << "a cone's top looks up only where its sides do nearly";
    EXPECT_LT(toSide, 46);
}
