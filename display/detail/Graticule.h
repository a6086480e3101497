#pragma once

#include "display/detail/ViewGeometry.h"

#include <array>
#include <string>
#include <vector>

namespace vant::detail
{

/** A line of round easting or northing on a chart, clipped to the view: pixels from its upper left corner. */
struct GridLine {
    double x0, y0, x1, y1;
    double steps;   ///< its coordinate, in spacings
    bool isEasting; ///< its points have this easting, and run north
};

/** The lines of a view from above. None for a spacing of which a view would show hundreds. */
std::vector<GridLine> PlanGrid(const ViewGeometry& geometry, double spacing);

/** A piece of a line on the ground, in coordinates that count from a crossing near the origin. It fades
 * between its ends: 1 is seen in full, 0 not at all. */
struct GroundLine {
    Point3 from, to;
    double strengthFrom, strengthTo;
};
struct GroundLines {
    Point3 centre; ///< display coordinates
    std::vector<GroundLine> lines;
};
/** The horizontal plane through the origin, as far as an orbiting eye tells its lines apart. */
GroundLines GroundGrid(const ViewGeometry& geometry, double spacing);

/** A number with as many decimals as a multiple of the spacing needs, its thousands apart:
 * "5 000 250.5". */
std::wstring GridNumber(double value, double spacing);

/** A coordinate for the edge of a chart: "5 000 250 N", "20 W", "0". */
std::wstring GridText(double steps, double spacing, bool isEasting);

/** A rectangle that a text takes, right and lower edge excluded. */
struct TextPlace {
    double left, top, right, bottom;
};

/** Where a line's text may stand, pixels from the upper left corner: at the edges that its two ends are at,
 * the better one first; those are the lower and then the left one. @param width,height  of the text
 * @param gap  to the edge */
std::array<TextPlace, 2> PlacesAtEdges(const GridLine& line, const ViewGeometry& geometry, double width,
                                       double height, double gap);

/** Places that do not overlap. */
class TakenPlaces
{
public:
    /** Takes a place with some room around it. @return false if it is taken already, in part or whole */
    bool Take(const TextPlace& place, double around);

private:
    std::vector<TextPlace> m_places;
};

} // namespace vant::detail
