#include "demo/detail/TrackRuns.h"

#include <cmath>
#include <utility>

namespace demo
{
namespace
{

/** On which sides of the window a place lies outside: two places that share one see nothing of it between
 * them. */
unsigned SidesOf(const GroundPoint& place, const GroundWindow& window) noexcept
{
    return (place.east < window.low.east ? 1U : 0U) | (place.east > window.high.east ? 2U : 0U) |
           (place.north < window.low.north ? 4U : 0U) | (place.north > window.high.north ? 8U : 0U);
}

} // namespace

void TrackRuns::Clear() noexcept
{
    vertices.clear();
    points.clear();
    ends.clear();
}

void TrackRuns::EndRun()
{
    const std::size_t begin = ends.empty() ? 0 : ends.back();
    if (vertices.size() - begin >= 2) {
        ends.push_back(vertices.size());
        return;
    }
    vertices.resize(begin); // a single point is no line
    points.resize(begin);
}

TrackRuns TrackRuns::Of(const History<TrackPoint>& track, const LocalPlane& plane, const GroundWindow& window,
                        TrackRuns reused)
{
    TrackRuns runs = std::move(reused);
    runs.Clear();
    const auto add = [&](std::size_t index, const GroundPoint& place) {
        runs.vertices.push_back({static_cast<float>(place.east - window.origin.east),
                                 static_cast<float>(place.north - window.origin.north)});
        runs.points.push_back(index);
    };
    bool isDrawing = false; // the point before is, or would be, the last vertex
    GroundPoint before;
    GroundPoint kept;
    unsigned sidesBefore = 0;
    for (std::size_t i = 0; i < track.Size(); ++i) {
        const GroundPoint place = plane.PlaceOf(track[i].latitude, track[i].longitude);
        const unsigned sides = SidesOf(place, window);
        const bool joined = i > 0 && track[i].joined;
        const bool crosses = joined && (sides & sidesBefore) == 0;
        if (!crosses) {
            runs.EndRun();
            isDrawing = false;
        } else {
            if (!isDrawing) {
                add(i - 1, before);
                kept = before;
                isDrawing = true;
            }
            const bool isFar = std::hypot(place.east - kept.east, place.north - kept.north) >= window.mesh;
            const bool isLast = i + 1 == track.Size() || !track[i + 1].joined;
            if (isFar || isLast || sides != 0) { // outside, the line may end here
                add(i, place);
                kept = place;
            }
        }
        before = place;
        sidesBefore = sides;
    }
    runs.EndRun();
    return runs;
}

} // namespace demo
