#pragma once

#include "demo/detail/History.h"
#include "demo/detail/LocalPlane.h"
#include "demo/detail/Playback.h"

#include <cstddef>
#include <vector>

namespace demo
{

/** What a view shows of the ground, metres. */
struct GroundWindow {
    GroundPoint low;    ///< south-west corner
    GroundPoint high;   ///< north-east corner
    double mesh = 0.0;  ///< of a pixel; points nearer to one another need not be told apart
    GroundPoint origin; ///< what the vertices count from: near enough for single precision
};

/** The track as lines to be drawn: only what a view shows, and only as finely as it can show it. */
class TrackRuns
{
public:
    struct Vertex {
        float x = 0.0F; ///< east of the window's origin, metres
        float y = 0.0F; ///< north of it
    };

    std::vector<Vertex> vertices;
    std::vector<std::size_t> points; ///< which point of the track each vertex is
    std::vector<std::size_t> ends;   ///< for each line the index behind its last vertex

    /** The pieces of the track that cross the window, in the runs that drop-outs left of it. A piece between
     * two points outside is kept while it may cross a corner. Time and memory go with the track's length.
     *  @param reused  of the last drawing: its memory is taken over */
    static TrackRuns Of(const History<TrackPoint>& track, const LocalPlane& plane, const GroundWindow& window,
                        TrackRuns reused = {});

private:
    void Clear() noexcept;
    void EndRun();
};

} // namespace demo
