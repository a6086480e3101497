// The hulls and what lies on them.
#include "demo/model/SurveyBoat.h"

#include "tests/display/MeshParts.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace demo::model
{
namespace
{

using support::Add;
using support::AddQuad;
using support::Paint;

constexpr int stations = 28;
constexpr double deepest = -0.75;   // of the keel
constexpr double stripeTop = 0.16;  // above the water line
constexpr double plainPlace = 0.02; // in the picture, where no name is
constexpr double namePlace = 0.705; // its middle, in the picture and along either side

// The rows of a side from the keel to the deck's edge: below the water, the stripe, above it.
constexpr double belowParts[] = {0.0, 0.3, 0.65, 1.0};
constexpr double aboveParts[] = {0.0, 0.35, 0.7, 1.0};
constexpr int rows = 8;

double KeelHeight(double along)
{
    return deepest * (1 - std::pow(along, 5)) + 0.1 * std::pow(along, 8);
}

/** The outer side of the starboard hull, beside the hull's middle. @param row  0 keel .. rows - 1 */
Point3 SidePlace(double along, int row)
{
    const double keel = KeelHeight(along);
    const double sheer = SheerHeight(along);
    const double waterBreadth = SheerBreadth(along) * (0.94 - 0.25 * along * along);
    double height = 0;
    double breadth = 0;
    if (row < 4) {
        const double part = belowParts[row];
        height = std::min(keel * (1 - part), 0.0);
        breadth = waterBreadth * std::pow(part, 0.55);
    } else {
        const double part = aboveParts[row - 4];
        height = stripeTop + (sheer - stripeTop) * part;
        breadth = waterBreadth + (SheerBreadth(along) - waterBreadth) * height / sheer;
    }
    const double rake = 0.55 * along * along * (height - sheer) / sheer; // the stem falls back to the keel
    return {breadth, SheerPlace(along) + rake, height};
}

/** A hull's place in its picture: the name is seen from outside only. */
void AddPlace(MeshData& mesh, double middle, double outside, double along, int row)
{
    Point3 place = SidePlace(along, row);
    const bool isNamed = outside * middle > 0;
    place.x = middle + outside * place.x;
    const double part = row < 4 ? 0 : aboveParts[row - 4];
    Add(mesh, place, isNamed ? (middle > 0 ? along : 2 * namePlace - along) : plainPlace, part);
}

/** One side of one hull, the rows from `first` to `last`. */
void AddSide(MeshData& mesh, double middle, double outside, int firstRow, int lastRow)
{
    const int count = lastRow - firstRow + 1;
    const int first = static_cast<int>(mesh.vertices.size());
    for (int station = 0; station <= stations; ++station)
        for (int row = firstRow; row <= lastRow; ++row)
            AddPlace(mesh, middle, outside, static_cast<double>(station) / stations, row);
    for (int station = 0; station < stations; ++station) {
        for (int row = 0; row + 1 < count; ++row) {
            const int a = first + station * count + row;
            const int b = a + count;
            if (outside > 0)
                AddQuad(mesh, a, b, b + 1, a + 1, roundGroup);
            else
                AddQuad(mesh, a, a + 1, b + 1, b, roundGroup);
        }
    }
}

void AddSides(MeshData& mesh, int firstRow, int lastRow, const char* material)
{
    for (const double middle : {-hullPlace, hullPlace})
        for (const double outside : {-1.0, 1.0})
            AddSide(mesh, middle, outside, firstRow, lastRow);
    Paint(mesh, material);
}

/** The flat ends at the stern. */
void AddTransoms(MeshData& mesh)
{
    for (const double middle : {-hullPlace, hullPlace}) {
        const int first = static_cast<int>(mesh.vertices.size());
        for (const double outside : {-1.0, 1.0})
            for (int row = 0; row < rows; ++row)
                AddPlace(mesh, middle, outside, 0, row);
        for (int row = 0; row + 1 < rows; ++row) {
            const int left = first + row;
            const int right = left + rows;
            AddQuad(mesh, left, right, right + 1, left + 1, flat);
        }
    }
    Paint(mesh, "Transom");
}

void AddDeckPlace(MeshData& mesh, double x, double y, double z)
{
    constexpr double halfBreadth = 3.0;
    Add(mesh, {x, y, z}, (x + halfBreadth) / (2 * halfBreadth), (y - sternPlace) / (bowPlace - sternPlace));
}

} // namespace

double SheerHeight(double along)
{
    const double forward = std::max(along - 0.5, 0.0) / 0.5;
    return deckHeight + 0.3 * forward * forward;
}

double SheerBreadth(double along)
{
    return 0.75 * (1 - std::pow(along, 3.5)) * (0.92 + 0.08 * std::sin(std::numbers::pi * along));
}

double SheerPlace(double along)
{
    return sternPlace + (bowPlace - sternPlace) * along;
}

MeshData Hulls()
{
    MeshData mesh;
    mesh.name = "Hulls";
    AddSides(mesh, 0, 3, "Antifouling");
    AddSides(mesh, 3, 4, "Stripe");
    AddSides(mesh, 4, rows - 1, "Hull paint");
    AddTransoms(mesh);
    return mesh;
}

MeshData Decks()
{
    constexpr double lower = 0.03; // than the edges of the hulls
    MeshData mesh;
    mesh.name = "Decks";
    for (const double middle : {-hullPlace, hullPlace}) {
        const int first = static_cast<int>(mesh.vertices.size());
        for (int station = 0; station <= stations; ++station) {
            const double along = static_cast<double>(station) / stations;
            for (const double side : {-1.0, 1.0})
                AddDeckPlace(mesh, middle + side * SheerBreadth(along), SheerPlace(along),
                             SheerHeight(along) - lower);
        }
        for (int i = 0; i < 2 * stations; i += 2)
            AddQuad(mesh, first + i, first + i + 1, first + i + 3, first + i + 2, roundGroup);
    }
    const int first = static_cast<int>(mesh.vertices.size());
    for (const auto& [x, y] : {std::pair(-hullPlace, -6.5), std::pair(hullPlace, -6.5),
                               std::pair(hullPlace, 4.0), std::pair(-hullPlace, 4.0)})
        AddDeckPlace(mesh, x, y, deckHeight);
    AddQuad(mesh, first, first + 1, first + 2, first + 3, flat);
    Paint(mesh, "Deck");
    return mesh;
}

MeshData Platform()
{
    constexpr double underside = 0.8;
    constexpr double thickness = 0.02; // of the deck
    MeshData mesh;
    mesh.name = "Platform";
    AddPrism(mesh, RoundRect(-hullPlace, hullPlace, -6.5, 4.0, 0.05), underside, deckHeight - thickness);
    // A step that leads the sea under the platform.
    const Ring bow[] = {{{-1.6, 4.0, underside}, {1.6, 4.0, underside}, {1.6, 4.0, 1.45}, {-1.6, 4.0, 1.45}},
                        {{-1.6, 4.6, 1.3}, {1.6, 4.6, 1.3}, {1.6, 4.6, 1.42}, {-1.6, 4.6, 1.42}}};
    const auto reversed = [](Ring ring) { return Ring(ring.rbegin(), ring.rend()); };
    const Ring skin[] = {reversed(bow[0]), reversed(bow[1])};
    AddSkin(mesh, skin, flat);
    AddLid(mesh, skin[1]);
    Paint(mesh, "White paint");
    for (const double side : {-1.0, 1.0}) // hatches in the fore decks
        AddPrism(mesh, RoundRect(side * hullPlace - 0.28, side * hullPlace + 0.28, 4.0, 4.6, 0.08),
                 SheerHeight(0.8) - 0.1, SheerHeight(0.8) + 0.06);
    Paint(mesh, "Steel");
    return mesh;
}

} // namespace demo::model
