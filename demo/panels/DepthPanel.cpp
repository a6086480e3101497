#include "demo/detail/Scale.h"
#include "demo/detail/Text.h"
#include "demo/panels/Panels.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace demo
{
namespace
{

constexpr int divisions = 4;
constexpr double leastDepth = 10.0; // of the graph before the first sounding, in units of length
constexpr double leastSpare = 0.25;
constexpr double headroom = 0.15; // of the depths' spread, left free above and below

/** The depths of the last `span` seconds, and their limits. */
struct Profile {
    std::vector<DepthSample> samples;
    double shallowest = missing;
    double deepest = missing;
};

Profile ProfileOf(const Playback& playback, double span)
{
    Profile profile;
    const History<DepthSample>& depths = playback.Depths();
    const double begin = playback.Time() - span;
    std::size_t first = depths.Size();
    while (first > 0 && depths[first - 1].time >= begin)
        --first;
    // The one before the window: the line comes in from the left edge.
    first -= first > 0 ? 1 : 0;
    for (std::size_t i = first; i < depths.Size(); ++i) {
        const DepthSample& sample = depths[i];
        profile.samples.push_back(sample);
        if (IsMissing(sample.depth))
            continue;
        if (IsMissing(profile.deepest)) {
            profile.deepest = profile.shallowest = sample.depth;
            continue;
        }
        profile.deepest = std::max(profile.deepest, sample.depth);
        profile.shallowest = std::min(profile.shallowest, sample.depth);
    }
    return profile;
}

void PaintRun(CPainter& painter, const Box& graph, std::vector<Point>& run)
{
    if (run.size() > 1) {
        std::vector<Point> ground = run;
        ground.push_back({run.back().x, static_cast<double>(graph.bottom)});
        ground.push_back({run.front().x, static_cast<double>(graph.bottom)});
        Path bed;
        bed.AddPolygon(ground);
        const COLORREF accent = painter.Colours().accent;
        painter.FillFading(bed, InkOf(accent, 0.42), InkOf(accent, 0.06), graph.top, graph.bottom);
        Path line;
        line.AddPolyline(run, painter.Scaled(2.0));
        painter.Fill(line, InkOf(accent));
    }
    run.clear();
}

/** A dashed line at the least safe depth, where the scale reaches it. */
void PaintLimit(CPainter& painter, const Box& graph, const Scale& scale, double limit)
{
    const double shown = DisplayLength(limit);
    if (shown <= scale.low || shown >= scale.high)
        return;
    const int y = static_cast<int>(std::lround(scale.Map(shown, graph.top, graph.bottom)));
    const int dash = painter.ScaledInt(8);
    for (int x = graph.left; x < graph.right; x += 2 * dash)
        painter.Solid({x, y, std::min(x + dash, graph.right), y + 1}, painter.Colours().port);
    painter.Text(graph.left + painter.Scaled(6), y - painter.Scaled(4), Align::Left, painter.Fonts().small,
                 painter.Colours().port, L"limit");
}

void PaintGraph(CPainter& painter, const Box& graph, const Readout& readout, const Profile& profile)
{
    const ColourSet& colours = painter.Colours();
    painter.Solid(graph, colours.deep);
    const bool known = !IsMissing(profile.deepest);
    const double shallowest = known ? DisplayLength(profile.shallowest) : 0.0;
    const double deepest = known ? DisplayLength(profile.deepest) : leastDepth;
    const double spare = std::max((deepest - shallowest) * headroom, leastSpare);
    const Scale scale = Scale::Around(std::max(shallowest - spare, 0.0), deepest + spare, divisions);

    for (const double tick : scale.Ticks()) {
        const int y = static_cast<int>(std::lround(scale.Map(tick, graph.top, graph.bottom)));
        if (tick > scale.low && tick < scale.high)
            painter.Solid({graph.left, y, graph.right, y + 1}, colours.grid);
        painter.Text(graph.left - painter.Scaled(7), y + painter.Scaled(4), Align::Right,
                     painter.Fonts().small, colours.label, FixedText(tick, scale.Decimals()));
    }

    constexpr int columns = 4;
    for (int i = 0; i <= columns; ++i) {
        const int x = graph.right - graph.Width() * i / columns;
        const bool inside = i > 0 && i < columns;
        if (inside)
            painter.Solid({x, graph.top, x + 1, graph.bottom}, colours.grid);
        const std::wstring text = i == 0 ? L"now" : L"\u2212" + DurationText(readout.depthSpan * i / columns);
        painter.Text(x, graph.bottom + painter.Scaled(15),
                     i == 0   ? Align::Right
                     : inside ? Align::Centre
                              : Align::Left,
                     painter.Fonts().small, colours.label, text);
    }

    painter.SetClip(graph);
    std::vector<Point> run;
    for (const DepthSample& sample : profile.samples) {
        if (IsMissing(sample.depth)) {
            PaintRun(painter, graph, run);
            continue;
        }
        const double age = readout.playback.Time() - sample.time;
        run.push_back({graph.right - age / readout.depthSpan * graph.Width(),
                       scale.Map(DisplayLength(sample.depth), graph.top, graph.bottom)});
    }
    PaintRun(painter, graph, run);
    painter.ClearClip();
    PaintLimit(painter, graph, scale, readout.playback.Alarms().ShallowLimit());
}

} // namespace

void PaintDepth(CPainter& painter, const Box& box, const Readout& readout)
{
    const Playback& playback = readout.playback;
    const Box inside = painter.Panel(box, L"DEPTH", L"below the surface", playback.State(Sensor::Depth));

    const double baseline = inside.top + painter.Scaled(88);
    painter.Value(inside.left + painter.Scaled(16), baseline, Align::Left, painter.Fonts().huge,
                  Show(readout, Quantity::DepthBelowSurface).WithUnit());

    const double right = inside.right - painter.Scaled(16);
    painter.Labelled(right, inside.top + painter.Scaled(40), Align::Right, L"below the transducer",
                     painter.Fonts().value, Show(readout, Quantity::DepthBelowTransducer).WithUnit());
    const Profile profile = ProfileOf(playback, readout.depthSpan);
    const std::wstring spread = ShownValues::LengthText(profile.shallowest, 1) + L" \u2013 " +
                                ShownValues::LengthText(profile.deepest, 1);
    painter.Labelled(
        right, baseline, Align::Right, L"shallowest and deepest shown", painter.Fonts().value,
        {spread, UnitText(lengthUnit), IsMissing(profile.deepest) ? Freshness::None : Freshness::Live});

    const Box graph{inside.left + painter.ScaledInt(44), inside.top + painter.ScaledInt(112),
                    inside.right - painter.ScaledInt(16), inside.bottom - painter.ScaledInt(24)};
    PaintGraph(painter, graph, readout, profile);
}

} // namespace demo
