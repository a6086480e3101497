#include "demo/detail/Quantities.h"
#include "demo/detail/Text.h"
#include "demo/panels/Panels.h"

#include <algorithm>

namespace demo
{
namespace
{

constexpr double footHeight = 66.0; // of the lowest row, under the line

std::wstring_view FixName(double quality) noexcept
{
    if (IsMissing(quality))
        return L"--";
    switch (static_cast<int>(quality)) {
    case 0:
        return L"no fix";
    case 1:
        return L"single";
    case 2:
        return L"differential";
    case 3:
        return L"precise";
    case 4:
        return L"RTK fixed";
    case 5:
        return L"RTK float";
    case 6:
        return L"estimated";
    default:
        return L"other";
    }
}

} // namespace

void PaintPosition(CPainter& painter, const Box& box, const Readout& readout)
{
    const Playback& playback = readout.playback;
    const Freshness state = playback.State(Sensor::Position);
    const Box inside = painter.Panel(box, L"POSITION", L"WGS 84", state);
    const bool known = state != Freshness::None;
    const double left = inside.left + painter.Scaled(16);
    const double right = inside.right - painter.Scaled(16);
    const double row = (inside.Height() - painter.Scaled(footHeight)) / 2.0;
    const double drop = painter.Scaled(13); // of the base line below the middle of a row

    const struct {
        std::wstring_view name;
        std::wstring text;
    } rows[] = {
        {L"latitude", LatitudeText(known ? playback.Value(Quantity::Latitude) : missing)},
        {L"longitude", LongitudeText(known ? playback.Value(Quantity::Longitude) : missing)},
    };
    const bool named = std::ranges::all_of(rows, [&](const auto& r) { // else the figures need the place
        return painter.TextWidth(painter.Fonts().small, r.name) + painter.Scaled(8) +
                   painter.TextWidth(painter.Fonts().big, r.text) <=
               right - left;
    });
    double middle = inside.top + row / 2.0;
    for (const auto& r : rows) {
        if (named)
            painter.Text(left, middle + drop, Align::Left, painter.Fonts().small, painter.Colours().label,
                         r.name);
        painter.Value(right, middle + drop, Align::Right, painter.Fonts().big, {r.text, L"", state});
        middle += row;
    }

    const int line = static_cast<int>(inside.bottom - painter.Scaled(footHeight));
    painter.Solid({inside.left + painter.ScaledInt(16), line, inside.right - painter.ScaledInt(16), line + 1},
                  painter.Colours().grid);
    const double baseline = inside.bottom - painter.Scaled(16);
    const Freshness fixState = playback.State(Quantity::FixQuality);
    const double quality = fixState == Freshness::None ? missing : playback.Value(Quantity::FixQuality);
    painter.Labelled(left, baseline, Align::Left, L"fix", painter.Fonts().value,
                     {FixName(quality), L"", fixState});
    painter.Labelled(inside.left + inside.Width() * 0.62, baseline, Align::Centre, L"satellites",
                     painter.Fonts().value, Show(readout, Quantity::Satellites).WithUnit());
    painter.Labelled(right, baseline, Align::Right, L"HDOP", painter.Fonts().value,
                     Show(readout, Quantity::Hdop).WithUnit());
}

} // namespace demo
