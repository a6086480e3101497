// The deckhouse and what stands on its roof.
#include "demo/model/SurveyBoat.h"

#include "tests/display/MeshParts.h"

namespace demo::model
{
namespace
{

using support::Add;
using support::AddQuad;
using support::Paint;

constexpr double sill = 2.25;
constexpr double lintel = 3.1;
constexpr double roofTop = 3.24;

/** The wall's outline at a height, and which of its pieces are windows. */
struct Wall {
    Ring ring;
    std::vector<bool> isWindow;
};

/** From one corner's end to the next one's beginning: windows with posts between them. */
void AddPanels(Wall& wall, const Point3& from, const Point3& to, int panels)
{
    constexpr double postShare = 0.06; // of a panel
    const auto at = [&](double part) {
        return Point3{from.x + (to.x - from.x) * part, from.y + (to.y - from.y) * part, from.z};
    };
    for (int i = 0; i < panels; ++i) {
        const double begin = static_cast<double>(i) / panels;
        const double width = 1.0 / panels;
        if (i > 0) {
            wall.ring.push_back(at(begin + width * postShare / 2));
            wall.isWindow.push_back(true);
        }
        if (i + 1 < panels) {
            wall.ring.push_back(at(begin + width * (1 - postShare / 2)));
            wall.isWindow.push_back(false);
        }
    }
}

/** The front slants back, the sides a little inwards. */
Wall WallAt(double height)
{
    constexpr int cornerPoints = 4;
    constexpr int panels[] = {3, 3, 3, 2}; // behind the corners: starboard, front, port, rear
    const double up = height - deckHeight;
    const Ring round =
        RoundRect(-2.0 + 0.12 * up, 2.0 - 0.12 * up, -2.7 + 0.06 * up, 2.9 - 0.42 * up, 0.3, cornerPoints);
    Wall wall;
    for (std::size_t i = 0; i < round.size(); ++i) {
        const Point3 point{round[i].x, round[i].y, height};
        wall.ring.push_back(point);
        const bool isLast = i % cornerPoints == cornerPoints - 1;
        wall.isWindow.push_back(isLast);
        if (isLast) {
            const Point3& next = round[(i + 1) % round.size()];
            AddPanels(wall, point, {next.x, next.y, height}, panels[i / cornerPoints]);
        }
    }
    return wall;
}

void AddWindowBand(MeshData& mesh)
{
    const Wall walls[] = {WallAt(sill), WallAt(lintel)};
    const int count = static_cast<int>(walls[0].ring.size());
    const int first = static_cast<int>(mesh.vertices.size());
    for (const Wall& wall : walls)
        for (const Point3& point : wall.ring)
            Add(mesh, point.x, point.y, point.z);
    const auto addPieces = [&](bool windows) {
        for (int i = 0; i < count; ++i) {
            const int next = (i + 1) % count;
            if (walls[0].isWindow[static_cast<std::size_t>(i)] == windows)
                AddQuad(mesh, first + i, first + next, first + count + next, first + count + i, roundGroup);
        }
    };
    addPieces(false);
    Paint(mesh, "White paint");
    addPieces(true);
    Paint(mesh, "Glass");
}

void AddMushroom(MeshData& mesh, double x, double y)
{
    const Turn profile[] = {{0.03, 0},   {0.03, 0.3},  {0.16, 0.32}, {0.19, 0.36},
                            {0.17, 0.4}, {0.09, 0.44}, {0.01, 0.46}};
    AddTurned(mesh, {x, y, roofTop}, profile, 14);
}

void AddMast(MeshData& mesh)
{
    const Point3 mast[] = {{0, -1.0, roofTop}, {0, -1.15, 4.6}, {0, -1.3, 6.3}};
    const Point3 yard[] = {{-0.95, -1.2, 5.35}, {0.95, -1.2, 5.35}};
    const Point3 stays[][2] = {{{-0.7, -1.9, roofTop}, {0, -1.15, 4.6}},
                               {{0.7, -1.9, roofTop}, {0, -1.15, 4.6}}};
    AddBar(mesh, mast, 0.085);
    AddBar(mesh, yard, 0.035, 6);
    for (const auto& stay : stays)
        AddBar(mesh, stay, 0.04, 6);
    AddBlock(mesh, {-0.2, -1.12, 4.25}, {0.2, -0.5, 4.3}); // the radar's bracket
    for (const double side : {-1.0, 1.0}) {
        const Point3 whip[] = {{side * 1.55, -2.2, roofTop}, {side * 1.7, -2.5, 5.9}};
        AddBar(mesh, whip, 0.018, 5);
    }
    Paint(mesh, "Steel");
    const Turn radar[] = {{0.30, 0}, {0.36, 0.05}, {0.37, 0.16}, {0.3, 0.25}, {0.12, 0.3}, {0.01, 0.31}};
    AddTurned(mesh, {0, -0.65, 4.3}, radar, 20);
    const Turn lamp[] = {{0.06, 0}, {0.07, 0.08}, {0.06, 0.16}, {0.01, 0.2}};
    AddTurned(mesh, {0, -1.3, 6.3}, lamp, 10);
    for (const double side : {-1.0, 1.0})
        AddTurned(mesh, {side * 0.9, -1.2, 5.38}, lamp, 10);
    Paint(mesh, "White paint");
}

} // namespace

MeshData Deckhouse()
{
    MeshData mesh;
    mesh.name = "Deckhouse";
    const Ring below[] = {WallAt(deckHeight - 0.02).ring, WallAt(sill).ring};
    AddSkin(mesh, below, roundGroup);
    Paint(mesh, "White paint");
    // The helmsman's desk and seats, the surveyors' table.
    AddBlock(mesh, {-1.5, 1.3, deckHeight}, {1.5, 1.9, 2.4});
    AddBlock(mesh, {-1.5, -2.3, deckHeight}, {-0.5, 0.2, 2.3});
    Paint(mesh, "Furniture");
    for (const double x : {-0.9, 0.6}) {
        AddPrism(mesh, RoundRect(x, x + 0.5, 0.4, 0.9, 0.1), deckHeight, 2.05);
        AddPrism(mesh, RoundRect(x, x + 0.5, 0.36, 0.46, 0.04), 2.05, 2.75);
    }
    Paint(mesh, "Rubber");
    AddBlock(mesh, {-1.3, -2.0, 2.32}, {-1.25, 0.0, 2.75}); // screens
    AddBlock(mesh, {-1.1, 1.55, 2.42}, {1.1, 1.6, 2.72});
    Paint(mesh, "Screen");
    AddWindowBand(mesh);
    return mesh;
}

MeshData Roof()
{
    MeshData mesh;
    mesh.name = "Roof";
    AddPrism(mesh, RoundRect(-2.05, 2.05, -3.0, 2.55, 0.45), lintel, roofTop, 0.03);
    for (const double side : {-1.0, 1.0})
        AddMushroom(mesh, side * 1.6, -2.5);
    Paint(mesh, "White paint");
    for (const double side : {-1.0, 1.0})
        AddPrism(mesh, RoundRect(side * 0.98 - 0.78, side * 0.98 + 0.78, -0.5, 1.9, 0.04), roofTop,
                 roofTop + 0.04);
    Paint(mesh, "Solar cells");
    const Point3 raft[] = {{-0.5, -2.45, roofTop + 0.26}, {0.5, -2.45, roofTop + 0.26}};
    AddBar(mesh, raft, 0.25, 14);
    Paint(mesh, "Signal orange");
    AddBlock(mesh, {-2.12, 1.0, 3.02}, {-1.98, 1.3, 3.2});
    Paint(mesh, "Port light");
    AddBlock(mesh, {1.98, 1.0, 3.02}, {2.12, 1.3, 3.2});
    Paint(mesh, "Starboard light");
    AddMast(mesh);
    return mesh;
}

} // namespace demo::model
