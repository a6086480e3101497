#include "controls/detail/ChartLayout.h"

#include "platform/Vant.h"
#include "values/EUnits.h"
#include "values/detail/UnitText.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace vant::detail
{

namespace
{

// Units.
constexpr int timeH = 20; // labels of the time
constexpr int marginTop = 2;
constexpr int marginRight = 14;
constexpr int leastGutter = 34; // labels of the values
constexpr int valueRoom = 26;   // a division of a strip takes at least
constexpr int timeRoom = 84;    // a division of the time takes at least
constexpr int inset = 3;        // of the ends of the range from the edges of a strip
constexpr int leastPlotH = 8;

/** Round numbers of the units that are displayed. */
std::span<const double> Markers()
{
    if (EUnits::system == usCustomary)
        return Vant::markers_USA;
    return Vant::markers_SI;
}

} // namespace

ChartLayout::ChartLayout(ChartState& state, int width, int height, int dpi, TimeLabels labels)
    : m_state(state)
    , m_dpi(dpi)
{
    m_state.plot = {};
    PlaceStrips(height);
    if (m_strips.empty())
        return;
    PlacePlot(width);
    const PxRect& plot = m_state.plot;
    if (plot.IsEmpty() || !m_state.view.IsSet())
        return;
    m_times = TimeTicks({m_state.start, m_state.start + (plot.Width() + 1) * m_state.perPixel},
                        m_state.view.Now(), labels, std::max(plot.Width() / Px(timeRoom), 1));
}

/** Shares the height out among the strips, top to bottom. */
void ChartLayout::PlaceStrips(int height)
{
    int shares = 0;
    for (std::size_t i = 0; i < m_state.strips.size(); ++i) {
        const int share = m_state.strips[i]->own.share;
        if (share <= 0)
            continue;
        shares += share;
        Strip strip;
        strip.index = static_cast<int>(i);
        strip.state = m_state.strips[i].get();
        m_strips.push_back(strip);
    }
    int top = Px(marginTop);
    const int bottom = height - Px(timeH);
    for (Strip& strip : m_strips) {
        const int share = strip.state->own.share;
        const int stripH = static_cast<int>(std::int64_t{bottom - top} * share / shares);
        shares -= share;
        strip.header = top;
        strip.plot.top = top + Px(headerH);
        strip.plot.bottom = top + stripH;
        top += stripH;
    }
    // Those without room for a line are left out.
    std::erase_if(m_strips, [this](const Strip& s) { return s.plot.Height() < Px(leastPlotH); });
}

/** Finds the ranges, and between the labels that they need and the right margin the width. */
void ChartLayout::PlacePlot(int width)
{
    PxRect& plot = m_state.plot;
    plot = {Px(leastGutter), m_strips.front().plot.top, width - Px(marginRight), m_strips.back().plot.bottom};
    for (Strip& strip : m_strips)
        TakeUnits(strip);

    const ChartData::Reader reader(m_state.data);
    const MinMax times = reader.Times();
    if (!times.IsEmpty())
        m_state.view.SetTimes(times.min, times.max);
    // Labels need the ranges, which need the width: the labels of the range as it is with the least gutter
    // are good enough, as the range depends on the width by a pixel or two of time only.
    for (int pass = 0; pass < 2 && !plot.IsEmpty(); ++pass) {
        m_state.perPixel = m_state.view.Span() / plot.Width();
        // Whole pixels, so that what moves through the chart keeps its shape.
        m_state.start = std::floor(m_state.view.Start() / m_state.perPixel) * m_state.perPixel;
        int gutter = Px(leastGutter);
        for (Strip& strip : m_strips) {
            TakeRange(strip, reader);
            for (const Tick& tick : strip.ticks)
                gutter = std::max(gutter, m_state.font.WidthOf(tick.label) + 2 * Px(labelGap));
        }
        plot.left = gutter;
    }
    for (Strip& strip : m_strips) {
        strip.plot.left = plot.left;
        strip.plot.right = plot.right;
    }
}

/** From native values to those displayed. */
void ChartLayout::TakeUnits(Strip& strip)
{
    ChartState::Strip& state = *strip.state;
    double zero = 0;
    double one = state.own.scale;
    EUnits::N2D(state.own.units, zero);
    EUnits::N2D(state.own.units, one);
    const double gain = one - zero;
    // A range of other units says nothing about the next one.
    if (gain != state.gain || zero != state.offset)
        state.shown = {0, 0};
    state.gain = gain;
    state.offset = zero;
}

/** The extremes of what the view shows of a strip's traces, native. */
MinMax ChartLayout::Shown(const Strip& strip, const ChartData::Reader& reader) const
{
    const double start = m_state.start - reader.Shift();
    const double end = start + m_state.perPixel * m_state.plot.Width();
    MinMax data;
    for (const auto& trace : m_state.traces) {
        if (trace->own.Strip() != strip.index || !trace->own.visible)
            continue;
        const SamplePyramid& samples = reader.Trace(trace->own.Index());
        data.Add(samples.Range(samples.From(start), samples.After(end)));
    }
    return data;
}

void ChartLayout::TakeRange(Strip& strip, const ChartData::Reader& reader)
{
    ChartState::Strip& state = *strip.state;
    const CEStrip& own = state.own;
    const auto displayed = [&](double a, double b) {
        const auto [low, high] = std::minmax({a * state.gain + state.offset, b * state.gain + state.offset});
        return AxisRange{low, high};
    };
    const int divisions = std::max(strip.plot.Height() / Px(valueRoom), 1);
    const AxisRange asked = displayed(own.rangeMin, own.rangeMax);
    if (own.range == CEStrip::rangeFixed && own.rangeMin < own.rangeMax && std::isfinite(asked.Length()) &&
        asked.Length() > 0)
        state.shown = asked;
    else if (const MinMax data = Shown(strip, reader); !data.IsEmpty())
        state.shown = FitRange(Markers(), displayed(data.min, data.max), state.shown, divisions);
    AxisRange range = state.shown;
    if (!(range.min < range.max))
        range = {0, 1};
    // The value at the top has the smaller y.
    const double top = strip.plot.top + Px(inset);
    const double height = std::max(strip.plot.Height() - 2 * Px(inset), 1);
    strip.perDisplayed = (own.reversed ? 1 : -1) * height / range.Length();
    strip.zeroAt = top - (own.reversed ? range.min : range.max) * strip.perDisplayed;
    strip.map = {m_state.start - reader.Shift(), m_state.perPixel, strip.YOf(state.offset),
                 state.gain * strip.perDisplayed};
    strip.ticks = ValueTicks(Markers(), range, divisions);
}

} // namespace vant::detail
