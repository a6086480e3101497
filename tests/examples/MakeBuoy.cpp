// Writes the model that examples/model comes with: make_buoy FILE. What it writes is committed.
//
// A north cardinal mark: black over yellow, two cones that point up, and a light. Lengths are metres; the
// water line is at z = 0.
#include "demo/model/Shapes.h"

#include "tests/display/MeshParts.h"
#include "tests/display/Models.h"

#include <cmath>
#include <fstream>
#include <iostream>

namespace
{

using namespace demo::model;
using support::Paint;
using vant::detail::MaterialData;
using vant::detail::ModelData;

constexpr double towerFoot = 0.5;
constexpr double towerTop = 3.0;
constexpr int roundSides = 40;

/** The place of a leg, as a share of the way up. */
Point3 Leg(double right, double ahead, double up)
{
    const double reach = 0.78 - 0.42 * up;
    return {right * reach, ahead * reach, towerFoot + (towerTop - towerFoot) * up};
}

MeshData Body()
{
    MeshData mesh;
    mesh.name = "Body";
    const Turn floating[] = {{0.40, -1.05}, {1.05, -0.85}, {1.28, -0.45}, {1.32, 0.05},
                             {1.28, 0.35},  {1.18, 0.47},  {1.02, 0.5}};
    AddTurned(mesh, {0, 0, 0}, floating, roundSides);
    Paint(mesh, "Yellow paint");
    const Turn fender[] = {{1.31, 0}, {1.40, 0.03}, {1.43, 0.1}, {1.40, 0.17}, {1.30, 0.2}};
    AddTurned(mesh, {0, 0, 0.02}, fender, roundSides);
    const Turn ballast[] = {{0.30, -2.6}, {0.34, -2.5}, {0.34, -2.15}, {0.15, -2.0}, {0.15, -1.0}};
    AddTurned(mesh, {0, 0, 0}, ballast, 20);
    Paint(mesh, "Rubber");
    for (const double angle : {0.6, 0.6 + 3.14159}) { // lifting eyes
        const double x = 0.98 * std::cos(angle);
        const double y = 0.98 * std::sin(angle);
        const Point3 eye[] = {
            {x, y - 0.12, 0.48}, {x, y - 0.1, 0.66}, {x, y + 0.1, 0.66}, {x, y + 0.12, 0.48}};
        AddBar(mesh, eye, 0.035, 8);
    }
    Paint(mesh, "Steel");
    return mesh;
}

MeshData Tower()
{
    MeshData mesh;
    mesh.name = "Tower";
    constexpr Point3 corners[] = {{1, 1, 0}, {-1, 1, 0}, {-1, -1, 0}, {1, -1, 0}};
    for (int i = 0; i < 4; ++i) {
        const Point3& here = corners[i];
        const Point3& next = corners[(i + 1) % 4];
        const Point3 leg[] = {Leg(here.x, here.y, -0.05), Leg(here.x, here.y, 1)};
        AddBar(mesh, leg, 0.055, 10);
        for (const double up : {0.34, 0.68}) {
            const Point3 ring[] = {Leg(here.x, here.y, up), Leg(next.x, next.y, up)};
            const Point3 brace[] = {Leg(here.x, here.y, up - 0.34), Leg(next.x, next.y, up)};
            AddBar(mesh, ring, 0.03);
            AddBar(mesh, brace, 0.022);
        }
    }
    Paint(mesh, "Black paint");
    for (const double side : {-1.0, 1.0}) { // day boards, which also reflect radar
        AddBlock(mesh, {-0.40, side * 0.45 - 0.02, 1.55}, {0.40, side * 0.45 + 0.02, 2.25});
        AddBlock(mesh, {side * 0.45 - 0.02, -0.40, 1.55}, {side * 0.45 + 0.02, 0.40, 2.25});
    }
    Paint(mesh, "Solar cells");
    return mesh;
}

MeshData Top()
{
    MeshData mesh;
    mesh.name = "Top";
    const Turn platform[] = {{0.50, 0}, {0.56, 0.02}, {0.56, 0.07}, {0.50, 0.09}};
    AddTurned(mesh, {0, 0, towerTop}, platform, roundSides);
    const Turn lampFoot[] = {{0.20, 0}, {0.20, 0.14}, {0.16, 0.18}};
    AddTurned(mesh, {0, 0, towerTop + 0.08}, lampFoot, 24);
    const Point3 pole[] = {{0, -0.36, towerTop}, {0, -0.36, towerTop + 2.3}};
    AddBar(mesh, pole, 0.035, 10);
    Paint(mesh, "Steel");
    const Turn cone[] = {{0.34, 0}, {0.34, 0.02}, {0.01, 0.72}};
    AddTurned(mesh, {0, -0.36, towerTop + 0.62}, cone, 32);
    AddTurned(mesh, {0, -0.36, towerTop + 1.55}, cone, 32);
    Paint(mesh, "Black paint");
    const Turn bulb[] = {{0.03, 0}, {0.075, 0.05}, {0.075, 0.16}, {0.02, 0.22}};
    AddTurned(mesh, {0, 0, towerTop + 0.26}, bulb, 16);
    Paint(mesh, "Lamp");
    const Turn lens[] = {{0.15, 0}, {0.17, 0.05}, {0.17, 0.24}, {0.12, 0.33}, {0.03, 0.36}};
    AddTurned(mesh, {0, 0, towerTop + 0.26}, lens, 32);
    Paint(mesh, "Glass");
    return mesh;
}

MaterialData Material(const char* name, float red, float green, float blue, float highlight)
{
    MaterialData material = support::Matt(name, red, green, blue);
    material.specular = {highlight, highlight, highlight};
    return material;
}

ModelData Buoy()
{
    ModelData model;
    model.meshes = {Body(), Tower(), Top()};
    model.materials = {Material("Yellow paint", 0.98F, 0.76F, 0.08F, 0.35F),
                       Material("Black paint", 0.09F, 0.09F, 0.10F, 0.5F),
                       Material("Steel", 0.70F, 0.73F, 0.77F, 0.7F),
                       Material("Rubber", 0.16F, 0.16F, 0.19F, 0.15F),
                       Material("Solar cells", 0.06F, 0.12F, 0.34F, 0.8F),
                       Material("Lamp", 1.0F, 0.97F, 0.80F, 0.2F)};
    MaterialData glass = Material("Glass", 0.55F, 0.80F, 0.92F, 0.9F);
    glass.transparency = 0.6F;
    model.materials.push_back(glass);
    return model;
}

} // namespace

int main(int count, char** arguments)
{
    if (count != 2) {
        std::cerr << "usage: make_buoy FILE\n";
        return 2;
    }
    const std::string bytes = support::Write3ds(Buoy());
    std::ofstream file(arguments[1], std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    return file ? 0 : 1;
}
