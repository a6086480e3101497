#include "display/detail/Graticule.h"

#include "core/detail/NumberText.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vant::detail
{

namespace
{

/** Lines in each direction; spacings are chosen so that there are a few dozen. */
constexpr double mostLines = 400;

/** Cuts off what of a line is outside of the view. @return whether anything is left */
bool Clip(GridLine& line, double width, double height)
{
    const double dx = line.x1 - line.x0;
    const double dy = line.y1 - line.y0;
    double first = 0;
    double last = 1;
    // For each edge: how fast the line leaves through it, and how far away it is at the beginning.
    const double edges[][2] = {{-dx, line.x0}, {dx, width - line.x0}, {-dy, line.y0}, {dy, height - line.y0}};
    for (const auto& [speed, room] : edges) {
        if (speed == 0) {
            if (room < 0)
                return false;
            continue;
        }
        const double at = room / speed;
        if (speed < 0)
            first = std::max(first, at);
        else
            last = std::min(last, at);
    }
    if (!(first < last))
        return false;
    line = {line.x0 + dx * first, line.y0 + dy * first, line.x0 + dx * last,
            line.y0 + dy * last,  line.steps,           line.isEasting};
    return true;
}

void AppendLines(std::vector<GridLine>& lines, const ViewGeometry& geometry, double spacing, bool isEasting,
                 const ViewBox& shown)
{
    const double from = (isEasting ? shown.lower.x : shown.lower.y) / spacing;
    const double to = (isEasting ? shown.upper.x : shown.upper.y) / spacing;
    if (!(to - from < mostLines))
        return;
    for (double steps = std::ceil(from); steps <= to; ++steps) {
        const double at = steps * spacing;
        GridLine line{0, 0, 0, 0, steps, isEasting};
        const double z = geometry.Camera().org.z;
        geometry.ToPx(isEasting ? Point3{at, shown.lower.y, z} : Point3{shown.lower.x, at, z}, line.x0,
                      line.y0);
        geometry.ToPx(isEasting ? Point3{at, shown.upper.y, z} : Point3{shown.upper.x, at, z}, line.x1,
                      line.y1);
        if (Clip(line, geometry.Width(), geometry.Height()))
            lines.push_back(line);
    }
}

} // namespace

std::vector<GridLine> PlanGrid(const ViewGeometry& geometry, double spacing)
{
    std::vector<GridLine> lines;
    if (geometry.IsEmpty() || !(spacing > 0))
        return lines;
    const ViewAxes& axes = geometry.Axes();
    const double halfX = geometry.Width() / 2 * geometry.PxSize();
    const double halfY = geometry.Height() / 2 * geometry.PxSize();
    const double reachX = std::abs(axes.right.x) * halfX + std::abs(axes.up.x) * halfY;
    const double reachY = std::abs(axes.right.y) * halfX + std::abs(axes.up.y) * halfY;
    const Point3& org = geometry.Camera().org;
    const ViewBox shown = {org - Point3{reachX, reachY, 0}, org + Point3{reachX, reachY, 0}};
    AppendLines(lines, geometry, spacing, true, shown);
    AppendLines(lines, geometry, spacing, false, shown);
    return lines;
}

GroundLines GroundGrid(const ViewGeometry& geometry, double spacing)
{
    constexpr int reach = 20; // lines to each side
    GroundLines ground;
    if (geometry.IsEmpty() || !(spacing > 0))
        return ground;
    const Point3& org = geometry.Camera().org;
    ground.centre = {std::round(org.x / spacing) * spacing, std::round(org.y / spacing) * spacing, org.z};
    const Point3 offset = ground.centre - org;
    const auto strength = [&](const Point3& at) {
        const Point3 away = at + offset;
        return std::clamp(1 - std::sqrt(Dot(away, away)) / (reach * spacing), 0.0, 1.0);
    };
    for (int i = -reach; i <= reach; ++i) {
        for (int k = -reach; k < reach; ++k) {
            for (const bool isEasting : {true, false}) {
                const Point3 from =
                    isEasting ? Point3{i * spacing, k * spacing, 0} : Point3{k * spacing, i * spacing, 0};
                const Point3 to = isEasting ? from + Point3{0, spacing, 0} : from + Point3{spacing, 0, 0};
                const GroundLine line{from, to, strength(from), strength(to)};
                if (line.strengthFrom > 0 || line.strengthTo > 0)
                    ground.lines.push_back(line);
            }
        }
    }
    return ground;
}

std::wstring GridNumber(double value, double spacing)
{
    constexpr int mostDecimals = 6;
    constexpr double tolerance = 1e-6;
    int decimals = 0;
    for (double scaled = spacing;
         decimals < mostDecimals && std::abs(scaled - std::round(scaled)) > tolerance; ++decimals)
        scaled *= 10;
    std::wstring text;
    AppendFormatted<wchar_t>(text, L"%." + std::to_wstring(decimals) + L"f", std::abs(value));
    const std::size_t point = std::min(text.find(L'.'), text.size());
    constexpr std::size_t group = 3;
    for (std::size_t at = point; at > group; at -= group)
        text.insert(at - group, 1, L' ');
    const bool isZero = text.find_first_of(L"123456789") == std::wstring::npos;
    return value < 0 && !isZero ? L"-" + text : text;
}

std::wstring GridText(double steps, double spacing, bool isEasting)
{
    if (steps == 0)
        return L"0";
    const wchar_t* const side = isEasting ? (steps < 0 ? L" W" : L" E") : (steps < 0 ? L" S" : L" N");
    return GridNumber(std::abs(steps * spacing), spacing) + side;
}

std::array<TextPlace, 2> PlacesAtEdges(const GridLine& line, const ViewGeometry& geometry, double width,
                                       double height, double gap)
{
    constexpr double near = 0.5; // pixels from an edge that a line ends at
    enum Edge { bottom, left, right, top };
    const auto edgeAt = [&](double x, double y) {
        if (y > geometry.Height() - near)
            return bottom;
        if (x < near)
            return left;
        return x > geometry.Width() - near ? right : top;
    };
    const auto placeAt = [&](Edge edge, double x, double y) {
        TextPlace place{x - width / 2, y - height / 2, 0, 0};
        if (edge == left)
            place.left = gap;
        else if (edge == right)
            place.left = geometry.Width() - gap - width;
        else
            place.top = edge == top ? gap : geometry.Height() - gap - height;
        place.right = place.left + width;
        place.bottom = place.top + height;
        return place;
    };
    const Edge first = edgeAt(line.x0, line.y0);
    const Edge second = edgeAt(line.x1, line.y1);
    std::array<TextPlace, 2> places = {placeAt(first, line.x0, line.y0), placeAt(second, line.x1, line.y1)};
    if (second < first)
        std::swap(places[0], places[1]);
    return places;
}

bool TakenPlaces::Take(const TextPlace& place, double around)
{
    const TextPlace wide{place.left - around, place.top - around, place.right + around,
                         place.bottom + around};
    for (const TextPlace& taken : m_places) {
        if (wide.left < taken.right && taken.left < wide.right && wide.top < taken.bottom &&
            taken.top < wide.bottom)
            return false;
    }
    m_places.push_back(place);
    return true;
}

} // namespace vant::detail
