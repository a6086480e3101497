// Rails, the gear at the stern, and the sounder.
#include "demo/model/SurveyBoat.h"

#include "tests/display/MeshParts.h"

namespace demo::model
{
namespace
{

using support::Paint;

constexpr double railHeight = 0.95;
constexpr int wireSides = 5;

/** Posts and two wires over points at the edge of the deck. */
void AddRail(MeshData& mesh, const std::vector<Point3>& feet)
{
    for (const Point3& foot : feet) {
        const Point3 post[] = {foot, {foot.x, foot.y, foot.z + railHeight}};
        AddBar(mesh, post, 0.028, 6);
    }
    for (const double height : {railHeight / 2, railHeight}) {
        std::vector<Point3> wire;
        for (const Point3& foot : feet)
            wire.push_back({foot.x, foot.y, foot.z + height});
        AddBar(mesh, wire, height == railHeight ? 0.026 : 0.015, wireSides);
    }
}

/** Along a hull's edge: -1 the one towards the middle of the boat, 1 the outer one. */
std::vector<Point3> Edge(double side, double edge, double from, double to, int posts)
{
    constexpr double inside = 0.05; // of the edge
    std::vector<Point3> feet;
    for (int i = 0; i < posts; ++i) {
        const double along = from + (to - from) * i / (posts - 1);
        feet.push_back({side * (hullPlace + edge * (SheerBreadth(along) - inside)), SheerPlace(along),
                        SheerHeight(along) - 0.03});
    }
    return feet;
}

void AddWinch(MeshData& mesh)
{
    const auto disc = [&](double x, double radius, double width) {
        const Point3 axis[] = {{x - width / 2, -4.4, 2.05}, {x + width / 2, -4.4, 2.05}};
        AddBar(mesh, axis, radius, 18);
    };
    disc(-0.55, 0.48, 0.08);
    disc(0.55, 0.48, 0.08);
    AddBlock(mesh, {-0.75, -4.65, deckHeight}, {-0.6, -4.15, 2.1});
    AddBlock(mesh, {0.6, -4.65, deckHeight}, {0.75, -4.15, 2.1});
    Paint(mesh, "Signal orange");
    disc(0, 0.33, 1.05);
    Paint(mesh, "Steel");
}

} // namespace

MeshData Rails()
{
    MeshData mesh;
    mesh.name = "Rails";
    for (const double side : {-1.0, 1.0}) {
        std::vector<Point3> rail = Edge(side, 1.0, 0.03, 0.97, 12);
        const std::vector<Point3> inner = Edge(side, -1.0, 0.90, 0.80, 2);
        rail.insert(rail.end(), inner.begin(), inner.end()); // around the bow
        AddRail(mesh, rail);
    }
    AddRail(
        mesh,
        {{-1.5, 3.9, deckHeight}, {-0.5, 3.9, deckHeight}, {0.5, 3.9, deckHeight}, {1.5, 3.9, deckHeight}});
    Paint(mesh, "Steel");
    for (const double side : {-1.0, 1.0}) { // fenders
        for (const double along : {0.10, 0.27, 0.46}) {
            const Turn fender[] = {{0.02, 0},   {0.13, 0.06}, {0.16, 0.15},
                                   {0.16, 0.6}, {0.13, 0.7},  {0.02, 0.78}};
            AddTurned(mesh, {side * (hullPlace + SheerBreadth(along) + 0.15), SheerPlace(along), 0.65},
                      fender, 10);
        }
    }
    Paint(mesh, "Rubber");
    return mesh;
}

MeshData SternGear()
{
    MeshData mesh;
    mesh.name = "Stern gear";
    const Point3 frame[] = {{-1.75, -5.9, deckHeight}, {-1.5, -6.5, 4.3}, {-1.2, -6.62, 4.65},
                            {1.2, -6.62, 4.65},        {1.5, -6.5, 4.3},  {1.75, -5.9, deckHeight}};
    AddBar(mesh, frame, 0.12, 10);
    for (const double side : {-1.0, 1.0}) {
        const Point3 brace[] = {{side * 1.7, -4.9, deckHeight}, {side * 1.58, -6.3, 3.5}};
        AddBar(mesh, brace, 0.07);
    }
    AddWinch(mesh);
    const Point3 wire[] = {{0, -4.6, 2.3}, {0, -6.62, 4.35}};
    const Point3 block[] = {{-0.06, -6.62, 4.4}, {0.06, -6.62, 4.4}};
    AddBar(mesh, wire, 0.018, wireSides);
    AddBar(mesh, block, 0.17, 14);
    Paint(mesh, "Steel");
    for (const double side : {-1.0, 1.0}) {
        const double x = side * hullPlace;
        AddPrism(mesh, RoundRect(x - 0.27, x + 0.27, -7.75, -7.1, 0.14), 0.95, 1.75, 0.12);
        AddBlock(mesh, {x - 0.1, -7.5, -0.45}, {x + 0.1, -7.2, 0.95});
        const Turn hub[] = {{0.12, 0}, {0.14, 0.1}, {0.12, 0.2}};
        AddTurned(mesh, {x, -7.4, -0.6}, hub, 10);
    }
    Paint(mesh, "Rubber");
    return mesh;
}

MeshData Sounder()
{
    constexpr double x = 3.2;
    constexpr double y = -1.6;
    MeshData mesh;
    mesh.name = "Sounder";
    const Point3 pole[] = {{x, y, 2.5}, {x, y, -1.3}};
    AddBar(mesh, pole, 0.075, 10);
    for (const double height : {1.0, 1.5}) {
        const Point3 bracket[] = {{x - 0.4, y, height}, {x + 0.02, y, height}};
        AddBar(mesh, bracket, 0.06);
    }
    Paint(mesh, "Steel");
    AddPrism(mesh, RoundRect(x - 0.14, x + 0.14, y - 0.4, y + 0.4, 0.12), -1.7, -1.3);
    Paint(mesh, "Signal orange");
    AddPrism(mesh, RoundRect(x - 0.12, x + 0.12, y - 0.34, y + 0.34, 0.1), -1.78, -1.7);
    Paint(mesh, "Rubber");
    return mesh;
}

} // namespace demo::model
