#include "demo/detail/SurveyPlan.h"

#include "demo/detail/Quantities.h"

#include <cmath>
#include <numbers>

namespace demo
{
namespace
{

/** @name The plan, as in data/make-log @{ */
constexpr double firstLatitude = 54.4712 * degree; // where the first line begins
constexpr double firstLongitude = 10.3921 * degree;
constexpr double course = 62.0 * degree; // of the first line
constexpr double length = 170.0;         // of the lines, metres, as all lengths
constexpr double radius = 22.5;          // of the turns; the lines are two radii apart
constexpr int lines = 4;
/** @} */

constexpr double elsewhere = 5000.0;

/** Parts of a line's length: closer at its ends, so that a smooth curve through the points stays straight. */
constexpr double parts[] = {0.0, 0.1, 0.25, 0.5, 0.75, 0.9, 1.0};
constexpr double turns[] = {0.25, 0.5, 0.75}; // of half a circle

} // namespace

std::vector<PlanPoint> SurveyPlan(const LocalPlane& plane)
{
    const GroundPoint first = plane.PlaceOf(firstLatitude, firstLongitude);
    if (std::hypot(first.east, first.north) > elsewhere)
        return {};
    std::vector<PlanPoint> plan;
    const auto add = [&](double along, double across, int line) {
        const double s = std::sin(course);
        const double c = std::cos(course);
        plan.push_back({{first.east + along * s + across * c, first.north + along * c - across * s}, line});
    };
    for (int i = 0; i < lines; ++i) {
        const bool isUp = i % 2 == 0;
        for (const double part : parts) {
            const bool isEnd = part == 0.0 || part == 1.0;
            add((isUp ? part : 1.0 - part) * length, i * 2.0 * radius, isEnd ? i + 1 : 0);
        }
        for (const double part : turns) {
            const double angle = part * std::numbers::pi;
            const double beyond = radius * std::sin(angle);
            if (i + 1 < lines)
                add(isUp ? length + beyond : -beyond, (i * 2.0 + 1.0 - std::cos(angle)) * radius, 0);
        }
    }
    return plan;
}

} // namespace demo
