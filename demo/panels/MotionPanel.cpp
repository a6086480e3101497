#include "demo/detail/Quantities.h"
#include "demo/panels/Panels.h"

#include <algorithm>

namespace demo
{

void PaintMotion(CPainter& painter, const Box& box, const Readout& readout)
{
    const Playback& playback = readout.playback;
    const ShownValues& values = readout.values;
    const Freshness water = playback.State(Sensor::WaterSpeed);
    const Freshness temperature = playback.State(Sensor::Temperature);
    const Box inside = painter.Panel(box, L"SPEED AND WATER", L"", std::max(water, temperature));

    struct Tile {
        std::wstring_view name;
        Shown shown;
        std::wstring further;
    };
    const Tile tiles[] = {
        {L"over ground", Show(readout, Quantity::SpeedOverGround),
         values.KnotsText(Quantity::SpeedOverGround)},
        {L"through water", Show(readout, Quantity::SpeedThroughWater),
         values.KnotsText(Quantity::SpeedThroughWater)},
        {L"true wind", ShowFromBow(playback, Quantity::TrueWindAngle),
         values.KnotsText(Quantity::TrueWindSpeed)},
        {L"temperature", Show(readout, Quantity::WaterTemperature), L""},
    };
    const int halfWidth = inside.Width() / 2;
    const int halfHeight = inside.Height() / 2;
    for (int i = 0; i < 4; ++i) {
        const int left = inside.left + (i % 2) * halfWidth;
        const double middle = inside.top + (i / 2 + 0.5) * halfHeight;
        const double x = left + painter.Scaled(16);
        painter.Text(x, middle - painter.Scaled(30), Align::Left, painter.Fonts().small,
                     painter.Colours().label, tiles[i].name);
        painter.Value(x, middle + painter.Scaled(12), Align::Left, painter.Fonts().big,
                      tiles[i].shown.WithUnit());
        painter.Text(x, middle + painter.Scaled(38), Align::Left, painter.Fonts().label,
                     painter.ValueColour(tiles[i].shown.state), tiles[i].further);
    }
    const int margin = painter.ScaledInt(16);
    const COLORREF line = painter.Colours().grid;
    painter.Solid(
        {inside.left + halfWidth, inside.top + margin, inside.left + halfWidth + 1, inside.bottom - margin},
        line);
    painter.Solid(
        {inside.left + margin, inside.top + halfHeight, inside.right - margin, inside.top + halfHeight + 1},
        line);
}

} // namespace demo
