#pragma once

#include "controls/CEStrip.h"
#include "controls/CETrace.h"
#include "controls/detail/ChartAxis.h"
#include "controls/detail/ChartData.h"
#include "controls/detail/ChartView.h"
#include "controls/detail/FrameBitmap.h"
#include "controls/detail/GlyphSet.h"

#include <memory>
#include <optional>
#include <vector>

namespace vant::detail
{

/** What a chart consists of: its data, what it shows of them, and where it last drew what. */
struct ChartState {
    struct Strip {
        CEStrip own;
        AxisRange shown{0, 0}; ///< in the units displayed; empty before anything was shown
        double gain = 1;       ///< from native values to those displayed, as #shown is
        double offset = 0;
    };
    struct Trace {
        CETrace own;
        int valueWidth = 0; ///< pixels, of the widest value so far: names beside it stand still
    };
    struct Name {
        PxRect place;
        int trace = 0;
    };

    // Behind pointers, which the application keeps.
    std::vector<std::unique_ptr<Strip>> strips;
    std::vector<std::unique_ptr<Trace>> traces;
    ChartData data;
    ChartView view;
    int bound = -1; ///< the trace of the bound variable

    FrameBitmap bitmap;
    GlyphSet font;
    int dpi = 0;             ///< that the widths are for
    PxRect plot;             ///< from the left to the right edge of the time axis, all strips
    double perPixel = 0;     ///< seconds
    double start = 0;        ///< time at the left edge, to a whole pixel
    std::vector<Name> names; ///< to be clicked
    TraceStroke stroke;

    std::optional<CPoint> mouse; ///< over the chart, pixels
    bool dragging = false;
    CPoint dragFrom{0, 0};
    bool dragged = false;          ///< by more than a hand trembles
    std::optional<LONG> pressTime; ///< of the last press that was no double click
};

} // namespace vant::detail
