#include "demo/detail/TrackMap.h"
#include "demo/panels/Panels.h"

#include <cmath>
#include <vector>

namespace demo
{
namespace
{

constexpr std::size_t brightPoints = 60; // the last ones are drawn brighter
constexpr double leastFootprint = 9.0;   // beside the boat; nearer it would be under the hull

void PaintGrid(CPainter& painter, const Box& area, const TrackMap& map)
{
    const COLORREF colour = painter.Colours().grid;
    const Point origin = map.GridOrigin();
    const double mesh = map.GridPixels();
    for (double x = origin.x - std::floor((origin.x - area.left) / mesh) * mesh; x < area.right; x += mesh)
        painter.Solid({static_cast<int>(x), area.top, static_cast<int>(x) + 1, area.bottom}, colour);
    for (double y = origin.y - std::floor((origin.y - area.top) / mesh) * mesh; y < area.bottom; y += mesh)
        painter.Solid({area.left, static_cast<int>(y), area.right, static_cast<int>(y) + 1}, colour);
}

/** The track from point `first` on, in the pieces that drop-outs left of it. */
Path TrackPath(const History<TrackPoint>& track, std::size_t first, const TrackMap& map, double width)
{
    Path path;
    std::vector<Point> run;
    for (std::size_t i = first; i < track.Size(); ++i) {
        if (!track[i].joined && !run.empty()) {
            path.AddPolyline(run, width);
            run.clear();
        }
        run.push_back(map.Pixel(track[i].latitude, track[i].longitude));
    }
    path.AddPolyline(run, width);
    return path;
}

void PaintBoat(CPainter& painter, Point at, double bearing, Freshness state)
{
    const double s = painter.Scaled(1.0);
    const Point hull[] = {{0, -15 * s},       {5 * s, -6 * s}, {6 * s, 3 * s},  {4.5 * s, 10 * s},
                          {-4.5 * s, 10 * s}, {-6 * s, 3 * s}, {-5 * s, -6 * s}};
    Path halo;
    halo.AddCircle(at, 20.0 * s);
    painter.Fill(halo, InkOf(painter.Colours().accent, 0.16));
    Path boat;
    boat.AddPolygon(hull);
    boat.Place(bearing, at);
    painter.Fill(boat, InkOf(painter.ValueColour(state)));
}

/** Where the sounder's beam meets the ground, joined to the boat, when that is far enough beside it. */
void PaintFootprint(CPainter& painter, const Playback& playback, Point boat, double bearing,
                    double pixelsPerMetre)
{
    if (playback.State(Quantity::DepthBelowTransducer) == Freshness::None)
        return;
    const Mounting& mounting = playback.Mounted();
    const double depth = playback.Value(Quantity::DepthBelowTransducer);
    const double down = mounting.DepthPart();
    const double aside = down > 0.0 ? depth * mounting.SidePart() / down * pixelsPerMetre : 0.0;
    if (aside < painter.Scaled(leastFootprint))
        return;
    const Point at = AtBearing(boat, aside, bearing + mounting.bearing);
    Path mark;
    mark.AddLine(boat, at, painter.Scaled(1.2));
    mark.AddRing(at, painter.Scaled(2.6), painter.Scaled(4.6));
    painter.Fill(mark, InkOf(painter.Colours().label, 0.9));
}

void PaintScaleBar(CPainter& painter, const Box& area, const TrackMap& map)
{
    const ColourSet& colours = painter.Colours();
    const int left = area.left + painter.ScaledInt(14);
    const int right = left + static_cast<int>(std::lround(map.GridPixels()));
    const int y = area.bottom - painter.ScaledInt(14);
    painter.Solid({left, y, right, y + 2}, colours.label);
    painter.Solid({left, y - painter.ScaledInt(5), left + 2, y + 2}, colours.label);
    painter.Solid({right - 2, y - painter.ScaledInt(5), right, y + 2}, colours.label);
    painter.Text((left + right) / 2.0, y - painter.Scaled(6), Align::Centre, painter.Fonts().small,
                 colours.label, ShownValues::LengthText(map.GridMetres(), 0) + L" " + UnitText(lengthUnit));
}

/** How far the boat is beside the planned route. */
void PaintCrossTrack(CPainter& painter, const Box& area, const Readout& readout)
{
    if (IsMissing(readout.crossTrack))
        return;
    const std::wstring text = ShownValues::LengthText(std::abs(readout.crossTrack), 1);
    const std::wstring unit = UnitText(lengthUnit) + (readout.crossTrack < 0.0 ? L" port" : L" stbd");
    painter.Labelled(area.right - painter.Scaled(14), area.bottom - painter.Scaled(14), Align::Right,
                     L"off the route", painter.Fonts().value,
                     {text, unit, readout.playback.State(Sensor::Position)});
}

void PaintNorth(CPainter& painter, const Box& area)
{
    const double s = painter.Scaled(1.0);
    const Point at{area.right - 20 * s, area.top + 34 * s};
    const Point arrow[] = {{0, -12 * s}, {5 * s, 4 * s}, {0, 1 * s}, {-5 * s, 4 * s}};
    Path path;
    path.AddPolygon(arrow);
    path.Place(0.0, at);
    painter.Fill(path, InkOf(painter.Colours().label));
    painter.Text(at.x, at.y - 16 * s, Align::Centre, painter.Fonts().small, painter.Colours().label, L"N");
}

} // namespace

void PaintTrack(CPainter& painter, const Box& box, const Readout& readout)
{
    const Playback& playback = readout.playback;
    const Freshness state = playback.State(Sensor::Position);
    const Box inside = painter.Panel(box, L"TRACK", L"north up", state);
    const Box area = inside.Inset(painter.ScaledInt(8), painter.ScaledInt(8));
    painter.Solid(area, painter.Colours().deep);

    const History<TrackPoint>& track = playback.Track();
    const TrackMap map(track, area, LengthUnitMetres());
    if (map.IsEmpty()) {
        painter.Text(area.CentreX(), area.CentreY(), Align::Centre, painter.Fonts().value,
                     painter.Colours().stale, L"no position yet");
        return;
    }

    PaintGrid(painter, area, map);
    painter.SetClip(area);
    const COLORREF accent = painter.Colours().accent;
    painter.Fill(TrackPath(track, 0, map, painter.Scaled(2.0)), InkOf(accent, 0.55));
    const std::size_t bright = track.Size() > brightPoints ? track.Size() - brightPoints : 0;
    painter.Fill(TrackPath(track, bright, map, painter.Scaled(2.4)), InkOf(accent));

    const TrackPoint& last = track.Last();
    const bool headingKnown = playback.State(Quantity::Heading) != Freshness::None;
    const double bearing = headingKnown ? playback.Value(Quantity::Heading) : 0.0;
    const Point boat = map.Pixel(last.latitude, last.longitude);
    PaintFootprint(painter, playback, boat, bearing, map.GridPixels() / map.GridMetres());
    PaintBoat(painter, boat, bearing, state);
    PaintNorth(painter, area);
    painter.ClearClip();
    PaintScaleBar(painter, area, map);
    PaintCrossTrack(painter, area, readout);
}

} // namespace demo
