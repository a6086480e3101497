#include "demo/detail/Quantities.h"
#include "demo/panels/Dial.h"
#include "demo/panels/Panels.h"

namespace demo
{
namespace
{

constexpr double sectorFrom = 20.0 * degree; // the sectors in which a boat sails close to the wind
constexpr double sectorTo = 60.0 * degree;

void PaintBoatShape(CPainter& painter, const Dial& dial)
{
    const double r = dial.radius;
    const Point hull[] = {{0, -0.60 * r},        {0.13 * r, -0.34 * r},  {0.19 * r, -0.02 * r},
                          {0.19 * r, 0.30 * r},  {0.13 * r, 0.56 * r},   {-0.13 * r, 0.56 * r},
                          {-0.19 * r, 0.30 * r}, {-0.19 * r, -0.02 * r}, {-0.13 * r, -0.34 * r}};
    Path boat;
    boat.AddPolygon(hull);
    boat.Place(0.0, dial.centre);
    painter.Fill(boat, InkOf(painter.Colours().panel));
}

void PaintSectors(CPainter& painter, const Dial& dial)
{
    const double inner = dial.radius - painter.Scaled(6.0);
    Path port;
    port.AddArc(dial.centre, inner, dial.radius, -sectorTo, -sectorFrom);
    painter.Fill(port, InkOf(painter.Colours().port, 0.85));
    Path starboard;
    starboard.AddArc(dial.centre, inner, dial.radius, sectorFrom, sectorTo);
    painter.Fill(starboard, InkOf(painter.Colours().starboard, 0.85));
}

void PaintAngles(CPainter& painter, const Dial& dial, double pointer)
{
    const double part = 1.0 - painter.Scaled(26.0) / dial.radius;
    for (const int angle : {30, 60, 90, 120, 150})
        for (const int side : {-1, 1}) {
            if (IsUnderPointer(side * angle * degree, pointer))
                continue;
            const Point at = dial.At(side * angle * degree, part);
            painter.Text(at.x, at.y + painter.Scaled(4.5), Align::Centre, painter.Fonts().small,
                         painter.Colours().label, std::to_wstring(angle));
        }
}

} // namespace

void PaintWind(CPainter& painter, const Box& box, const Readout& readout)
{
    const Playback& playback = readout.playback;
    const ColourSet& colours = painter.Colours();
    const Freshness state = playback.State(Sensor::Wind);
    const Box inside = painter.Panel(box, L"WIND", L"apparent, from the bow", state);

    Dial dial = Dial::In(inside, painter.Scaled(24.0));
    dial.centre.y -= painter.Scaled(6.0);
    PaintDialFace(painter, dial);
    PaintBoatShape(painter, dial);
    PaintSectors(painter, dial);

    const Freshness trueState = playback.State(Quantity::TrueWindAngle);
    if (trueState != Freshness::None)
        PaintBug(painter, dial, playback.Value(Quantity::TrueWindAngle), colours.accent);
    const Freshness angleState = playback.State(Quantity::ApparentWindAngle);
    const double angle =
        angleState != Freshness::None ? playback.Value(Quantity::ApparentWindAngle) : missing;
    PaintAngles(painter, dial, angle);
    if (!IsMissing(angle))
        PaintPointer(painter, dial, angle, painter.ValueColour(angleState));

    painter.Value(dial.centre.x, dial.centre.y + painter.Scaled(17), Align::Centre, painter.Fonts().dial,
                  Show(readout, Quantity::ApparentWindSpeed).Bare());
    painter.Text(dial.centre.x, dial.centre.y + painter.Scaled(38), Align::Centre, painter.Fonts().small,
                 colours.label, readout.values.Unit(Quantity::ApparentWindSpeed));
    painter.Text(dial.centre.x, dial.centre.y + painter.Scaled(62), Align::Centre, painter.Fonts().label,
                 painter.ValueColour(playback.State(Quantity::ApparentWindSpeed)),
                 readout.values.KnotsText(Quantity::ApparentWindSpeed));

    const double baseline = inside.bottom - painter.Scaled(12);
    const Shown shownAngle = ShowFromBow(playback, Quantity::ApparentWindAngle);
    painter.Labelled(inside.left + painter.Scaled(14), baseline, Align::Left, L"apparent",
                     painter.Fonts().value, shownAngle.WithUnit());
    painter.Labelled(inside.right - painter.Scaled(14), baseline, Align::Right, L"true", colours.accent,
                     painter.Fonts().value, Show(readout, Quantity::TrueWindSpeed).WithUnit());
}

} // namespace demo
