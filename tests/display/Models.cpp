#include "tests/display/Models.h"

#include "tests/display/ChunkBytes.h"
#include "tests/display/MeshParts.h"

#include <cmath>
#include <limits>
#include <numbers>
#include <tuple>

namespace support
{

namespace
{

using namespace vant::detail;

constexpr double pi = std::numbers::pi;

void AddBox(MeshData& mesh, const Point3& low, const Point3& high)
{
    const int first = static_cast<int>(mesh.vertices.size());
    for (const double z : {low.z, high.z}) {
        Add(mesh, {low.x, low.y, z}, 0, z);
        Add(mesh, {high.x, low.y, z}, 1, z);
        Add(mesh, {high.x, high.y, z}, 2, z);
        Add(mesh, {low.x, high.y, z}, 3, z);
    }
    for (int i = 0; i < 4; ++i) {
        const int next = (i + 1) % 4;
        AddQuad(mesh, first + i, first + next, first + 4 + next, first + 4 + i, 0);
    }
    AddQuad(mesh, first + 4, first + 5, first + 6, first + 7, 0);
    AddQuad(mesh, first + 3, first + 2, first + 1, first, 0);
}

constexpr int hullRows = 4;  // from the keel to the gunwale
constexpr double beam = 1.5; // half of the boat's breadth

/** The starboard side's place at `along` 0 (stern) to 1 (bow) and `up` 0 (keel) to 1 (gunwale). */
Point3 HullPlace(double along, double up)
{
    const double breadth = beam * (1 - along * along * along) * (0.85 + 0.15 * std::sin(pi * along));
    const double keel = -0.8 + 0.7 * along * along * along * along;
    const double gunwale = 0.9 + 0.5 * along * along;
    return {breadth * std::sqrt(up), -5 + 10 * along, keel + (gunwale - keel) * up};
}

MeshData Hull(int stations)
{
    MeshData mesh;
    mesh.name = "Hull";
    const auto number = [](int station, int row) { return station * (hullRows + 1) + row; };
    const auto addSide = [&](double side) {
        const int first = static_cast<int>(mesh.vertices.size());
        for (int station = 0; station <= stations; ++station) {
            for (int row = 0; row <= hullRows; ++row) {
                const double along = static_cast<double>(station) / stations;
                const double up = static_cast<double>(row) / hullRows;
                Point3 place = HullPlace(along, up);
                place.x *= side;
                Add(mesh, place, along, up);
            }
        }
        for (int station = 0; station < stations; ++station) {
            for (int row = 0; row < hullRows; ++row) {
                const int a = first + number(station, row);
                const int b = first + number(station + 1, row);
                if (side > 0)
                    AddQuad(mesh, a, b, b + 1, a + 1, 1);
                else
                    AddQuad(mesh, a, a + 1, b + 1, b, 1);
            }
        }
    };
    addSide(1);
    const std::size_t port = mesh.faces.size();
    addSide(-1);
    for (std::size_t face = port; face < mesh.faces.size(); ++face)
        mesh.faces[face].flags = 7;
    Paint(mesh, "Hull paint");

    const int mirrored = number(stations + 1, 0);
    for (int row = 0; row < hullRows; ++row)
        AddQuad(mesh, row, row + 1, mirrored + row + 1, mirrored + row, 2);
    Paint(mesh, "Transom");
    return mesh;
}

MeshData Deck(int stations)
{
    MeshData mesh;
    mesh.name = "Deck";
    for (int station = 0; station <= stations; ++station) {
        const double along = static_cast<double>(station) / stations;
        const Point3 gunwale = HullPlace(along, 1);
        for (const double side : {-1.0, 1.0})
            Add(mesh, {side * gunwale.x, gunwale.y, gunwale.z - 0.125}, side, along * 4);
    }
    for (int i = 0; i < 2 * stations; i += 2)
        AddQuad(mesh, i, i + 1, i + 3, i + 2, 4);
    Paint(mesh, "Teak");
    return mesh;
}

MeshData Cabin()
{
    MeshData mesh;
    mesh.name = "Cabin";
    mesh.axis = {1, 0, 0, 0, 1, 0, 0, 0, 1, 0, -1, 0.75F};
    AddBox(mesh, {-0.75, -2.5, 0.75}, {0.75, 0.5, 1.75});
    Paint(mesh, "Cabin paint");
    AddBox(mesh, {-0.625, -2.25, 1.75}, {0.625, 0.125, 2.375});
    Paint(mesh, "Glass");
    AddBox(mesh, {-0.75, -2.5, 2.375}, {0.75, 0.25, 2.5});
    Paint(mesh, "Cabin paint");
    return mesh;
}

} // namespace

ModelData Cube()
{
    ModelData model;
    MeshData& mesh = model.meshes.emplace_back();
    mesh.name = "Cube";
    // Each side by the directions of its right, its top and its front, seen from outside.
    const struct {
        const char* name;
        Point3 right, top, front;
        float red, green, blue;
    } sides[] = {{"East", {0, 1, 0}, {0, 0, 1}, {1, 0, 0}, 1, 0, 0},
                 {"West", {0, -1, 0}, {0, 0, 1}, {-1, 0, 0}, 0, 1, 1},
                 {"North", {-1, 0, 0}, {0, 0, 1}, {0, 1, 0}, 0, 1, 0},
                 {"South", {1, 0, 0}, {0, 0, 1}, {0, -1, 0}, 1, 0, 1},
                 {"Up", {1, 0, 0}, {0, 1, 0}, {0, 0, 1}, 0, 0, 1},
                 {"Down", {1, 0, 0}, {0, -1, 0}, {0, 0, -1}, 1, 1, 0}};
    std::uint32_t group = 1;
    for (const auto& side : sides) {
        const int first = static_cast<int>(mesh.vertices.size());
        for (const auto& [u, v] : {std::pair(0, 0), std::pair(1, 0), std::pair(1, 1), std::pair(0, 1)}) {
            const auto part = [u = u, v = v](double right, double top, double front) {
                return front + (2 * u - 1) * right + (2 * v - 1) * top;
            };
            Add(mesh,
                {part(side.right.x, side.top.x, side.front.x), part(side.right.y, side.top.y, side.front.y),
                 part(side.right.z, side.top.z, side.front.z)},
                u, v);
        }
        AddQuad(mesh, first, first + 1, first + 2, first + 3, group);
        group *= 2;
        Paint(mesh, side.name);
        model.materials.push_back(Matt(side.name, side.red, side.green, side.blue));
    }
    model.materials[0].texture = "MARBLE.BMP";
    model.materials[1].transparency = 0.5F;
    model.materials[2].twoSided = true;
    model.materials[3].ambient = {0.25F, 0.125F, 0.0625F};
    return model;
}

ModelData Sphere(int rings, int segments)
{
    ModelData model;
    MaterialData& material = model.materials.emplace_back(Matt("Globe", 0.2F, 0.4F, 0.8F));
    material.texture = "EARTH.BMP";
    MeshData& mesh = model.meshes.emplace_back();
    mesh.name = "Sphere";
    for (int ring = 0; ring <= rings; ++ring) {
        for (int segment = 0; segment <= segments; ++segment) {
            const double u = static_cast<double>(segment) / segments;
            const double v = static_cast<double>(ring) / rings;
            const double around = 2 * pi * (segment == segments ? 0 : u); // the seam closes exactly
            const double radius = ring == rings ? 0 : std::sin(pi * v);
            Add(mesh, {radius * std::cos(around), radius * std::sin(around), -std::cos(pi * v)}, u, v);
        }
    }
    for (int ring = 0; ring < rings; ++ring) {
        for (int segment = 0; segment < segments; ++segment) {
            const int a = ring * (segments + 1) + segment;
            const int d = a + segments + 1;
            AddQuad(mesh, a, a + 1, d + 1, d, 1);
        }
    }
    Paint(mesh, "Globe");
    return model;
}

ModelData Boat(int stations)
{
    ModelData model;
    for (const auto& [name, red, green, blue] :
         {std::tuple("Hull paint", 0.8F, 0.1F, 0.1F), std::tuple("Transom", 0.6F, 0.1F, 0.1F),
          std::tuple("Teak", 0.7F, 0.5F, 0.3F), std::tuple("Cabin paint", 0.9F, 0.9F, 0.9F),
          std::tuple("Glass", 0.2F, 0.5F, 0.6F)})
        model.materials.push_back(Matt(name, red, green, blue));
    model.materials[0].twoSided = true; // the bulwark is seen from inside
    model.materials[2].texture = "TEAK.BMP";
    model.materials[2].twoSided = true;
    model.materials[3].specular = {0.5F, 0.5F, 0.5F};
    model.materials[4].transparency = 0.4F;
    model.meshes = {Hull(stations), Deck(stations), Cabin()};
    return model;
}

ModelData Sea(int meshes, int side)
{
    ModelData model;
    model.materials.push_back(Matt("Water", 0.1F, 0.3F, 0.5F));
    for (int number = 0; number < meshes; ++number) {
        MeshData& mesh = model.meshes.emplace_back();
        mesh.name = "Sea " + std::to_string(number);
        for (int row = 0; row < side; ++row) {
            for (int column = 0; column < side; ++column) {
                const double x = column + number * (side - 1);
                Add(mesh, {x, static_cast<double>(row), std::sin(x / 4) * std::sin(row / 4.0)},
                    static_cast<double>(column) / side, static_cast<double>(row) / side);
            }
        }
        for (int row = 0; row + 1 < side; ++row) {
            for (int column = 0; column + 1 < side; ++column) {
                const int a = row * side + column;
                AddQuad(mesh, a, a + 1, a + side + 1, a + side, 1);
            }
        }
        Paint(mesh, "Water");
    }
    return model;
}

namespace
{

constexpr float nan = std::numeric_limits<float>::quiet_NaN();

std::string Triangle()
{
    return Chunk(0x4110, U16(3) + Bytes(0.0F, 0.0F, 0.0F, 1.0F, 0.0F, 0.0F, 0.0F, 1.0F, 0.0F));
}

std::string ModelOf(const std::string& meshContent)
{
    return Chunk(0x4D4D, Chunk(0x3D3D, Chunk(0x4000, Text("o") + Chunk(0x4100, meshContent))));
}

/** What modelling programs write beside the model: chunks that are skipped, at every level. */
std::string Surrounded()
{
    const std::string other = Chunk(0x7777, Chunk(0x4100, Triangle()));
    const std::string face = U16(1) + U16(0) + U16(1) + U16(2) + U16(7) + other;
    const std::string mesh = other + Triangle() + Chunk(0x4111, U16(3) + U16(0) + U16(0) + U16(0)) + other +
                             Chunk(0x4120, face) + Chunk(0x4165, Bytes(std::uint8_t{8}));
    const std::string light = Chunk(0x4000, Text("Lamp") + Chunk(0x4600, Bytes(1.0F, 2.0F, 3.0F)));
    const std::string camera =
        Chunk(0x4000, Text("Eye") + Chunk(0x4700, Bytes(0.0F, 0.0F, 9.0F, 0.0F, 0.0F, 0.0F, 0.0F, 50.0F)));
    const std::string object = Chunk(0x4000, Text("o") + other + Chunk(0x4100, mesh) + Chunk(0x4010, {}));
    const std::string colour = Chunk(0x0012, "\x01\x02\x03") + Chunk(0x0011, "\x04\x05\x06");
    const std::string material =
        Chunk(0xAFFF, other + Chunk(0xA040, Chunk(0x0030, U16(20))) + Chunk(0xA020, colour) +
                          Chunk(0xA050, other + Chunk(0x0030, U16(0))) +
                          Chunk(0xA200, Chunk(0x0030, U16(100)) + Chunk(0xA300, Text("A.BMP")) + other));
    const std::string keys = Chunk(0xB000, Chunk(0xB00A, U16(5)) + Chunk(0xB002, Chunk(0xB030, U16(0))));
    return Chunk(0x4D4D, Chunk(0x0002, Bytes(std::uint32_t{3})) +
                             Chunk(0x3D3D, Chunk(0x3D3E, Bytes(std::uint32_t{3})) + material +
                                               Chunk(0x0100, Bytes(1.0F)) + light + object + camera) +
                             keys);
}

/** What says something about faces, as chunks of the mesh itself and before the faces. */
std::string InOtherOrder()
{
    const std::string list = Chunk(0x4130, Text("M") + U16(2) + U16(0) + U16(1));
    const std::string groups = Chunk(0x4150, Bytes(std::uint32_t{1}, std::uint32_t{0x80000001}));
    const std::string faces =
        Chunk(0x4120, U16(2) + U16(0) + U16(1) + U16(2) + U16(7) + U16(2) + U16(1) + U16(0) + U16(6));
    const std::string mapping = Chunk(0x4140, U16(3) + Bytes(0.0F, 0.0F, 1.0F, 0.0F, 0.0F, 1.0F));
    return ModelOf(mapping + list + groups + faces + Triangle());
}

std::string Damaged()
{
    const std::string vertices = Chunk(0x4110, U16(900) + Bytes(nan, 0.0F, 0.0F, 1.0F, 0.0F, 0.0F));
    const std::string faces = Chunk(0x4120, U16(3) + U16(0) + U16(1) + U16(9) + U16(0) + U16(1) + U16(1) +
                                                U16(1) + U16(0) + Chunk(0x4130, "endless"));
    return ModelOf(ChunkOfLength(0x4160, 0xFFFFFFFF, vertices + faces)) +
           ChunkOfLength(0x3D3D, 999, Chunk(0x4000, Text("p") + Chunk(0x4100, vertices + faces))) +
           ChunkOfLength(0xAFFF, 5, {});
}

} // namespace

std::vector<ModelFile> SeedFiles()
{
    ModelData bare = Sphere(3, 4);
    bare.materials.clear();
    for (MeshData& mesh : bare.meshes) {
        mesh.materials.clear();
        mesh.mapping.clear();
        mesh.smoothing.clear();
    }
    return {{"boat.3ds", Write3ds(Boat(6))},
            {"cube.3ds", Write3ds(Cube())},
            {"sphere.3ds", Write3ds(Sphere(5, 6))},
            {"bare.3ds", Write3ds(bare)},
            {"empty.3ds", Write3ds({})},
            {"surrounded.3ds", Surrounded()},
            {"other-order.3ds", InOtherOrder()},
            {"damaged.3ds", Damaged()}};
}

} // namespace support
