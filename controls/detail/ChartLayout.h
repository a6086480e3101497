#pragma once

#include "controls/CDpi.h"
#include "controls/detail/ChartState.h"

#include <vector>

namespace vant::detail
{

/** Where the parts of a chart are in its picture, and which range and divisions each strip has there. Takes
 * over what the chart's view shows from its samples; what is left in the ChartState is for the mouse. Lengths
 * are pixels unless they are called units. */
class ChartLayout
{
public:
    static constexpr int headerH = 22; ///< names and values above a strip, units
    static constexpr int labelGap = 6; ///< between labels and what they belong to, units

    /** A strip that there is room for. */
    struct Strip {
        int index = 0; ///< in the chart
        ChartState::Strip* state = nullptr;
        PxRect plot;             ///< the curves'
        int header = 0;          ///< top of what stands above them
        TraceStroke::Map map;    ///< of native values
        double zeroAt = 0;       ///< y of the value 0 as displayed
        double perDisplayed = 1; ///< pixels per unit displayed, downwards
        std::vector<Tick> ticks; ///< in the units displayed

        /** Where a value in the units displayed is. */
        double YOf(double displayed) const noexcept { return zeroAt + displayed * perDisplayed; }
    };

    /** @param state  outlives this  @param width, height  of the picture */
    ChartLayout(ChartState& state, int width, int height, int dpi, TimeLabels labels);

    /** From top to bottom. None has room if the plot of the ChartState is empty. */
    const std::vector<Strip>& Strips() const noexcept { return m_strips; }
    /** Divisions of the time; none before there is a time. */
    const std::vector<Tick>& Times() const noexcept { return m_times; }

    /** Pixels of a length in units. */
    int Px(int units) const noexcept { return ::MulDiv(units, m_dpi, CDpi::base); }
    /** Where a time is, seconds. */
    double XOf(double t) const noexcept { return m_state.plot.left + (t - m_state.start) / m_state.perPixel; }

private:
    void PlaceStrips(int height);
    void PlacePlot(int width);
    void TakeUnits(Strip& strip);
    void TakeRange(Strip& strip, const ChartData::Reader& reader);
    MinMax Shown(const Strip& strip, const ChartData::Reader& reader) const;

    ChartState& m_state;
    const int m_dpi;
    std::vector<Strip> m_strips;
    std::vector<Tick> m_times;
};

} // namespace vant::detail
