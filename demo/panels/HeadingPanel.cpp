#include "demo/detail/Quantities.h"
#include "demo/panels/Dial.h"
#include "demo/panels/Panels.h"

#include <string>

namespace demo
{
namespace
{

std::wstring RoseText(int bearing)
{
    switch (bearing) {
    case 0:
        return L"N";
    case 90:
        return L"E";
    case 180:
        return L"S";
    case 270:
        return L"W";
    default:
        return std::to_wstring(bearing);
    }
}

void PaintRose(CPainter& painter, const Dial& dial, double pointer)
{
    constexpr int step = 30;
    const double part = 1.0 - painter.Scaled(28.0) / dial.radius;
    for (int bearing = 0; bearing < 360; bearing += step) {
        if (IsUnderPointer(bearing * degree, pointer))
            continue;
        const Point at = dial.At(bearing * degree, part);
        const bool cardinal = bearing % 90 == 0;
        painter.Text(at.x, at.y + painter.Scaled(cardinal ? 6.0 : 4.5), Align::Centre,
                     cardinal ? painter.Fonts().value : painter.Fonts().small,
                     cardinal ? painter.Colours().text : painter.Colours().label, RoseText(bearing));
    }
}

} // namespace

void PaintHeading(CPainter& painter, const Box& box, const Readout& readout)
{
    const Playback& playback = readout.playback;
    const ColourSet& colours = painter.Colours();
    const Freshness state = playback.State(Sensor::Heading);
    const Box inside = painter.Panel(box, L"HEADING", readout.headingUp ? L"heading up" : L"north up", state);

    const bool known = state != Freshness::None;
    const double heading = known ? playback.Value(Quantity::Heading) : 0.0;
    Dial dial = Dial::In(inside, painter.Scaled(24.0));
    dial.centre.y -= painter.Scaled(6.0);
    dial.top = readout.headingUp ? heading : 0.0;
    PaintDialFace(painter, dial);
    PaintRose(painter, dial, known ? heading : missing);

    if (playback.State(Quantity::CourseOverGround) != Freshness::None)
        PaintBug(painter, dial, playback.Value(Quantity::CourseOverGround), colours.accent);
    if (known)
        PaintPointer(painter, dial, heading, painter.ValueColour(state));
    painter.Value(dial.centre.x, dial.centre.y + painter.Scaled(17), Align::Centre, painter.Fonts().dial,
                  ShowBearing(playback, Quantity::Heading).WithUnit());
    painter.Text(dial.centre.x, dial.centre.y + painter.Scaled(38), Align::Centre, painter.Fonts().small,
                 colours.label, L"true");

    const double baseline = inside.bottom - painter.Scaled(12);
    painter.Labelled(inside.left + painter.Scaled(14), baseline, Align::Left, L"COG", colours.accent,
                     painter.Fonts().value, ShowBearing(playback, Quantity::CourseOverGround).WithUnit());
    painter.Labelled(inside.right - painter.Scaled(14), baseline, Align::Right, L"rate of turn",
                     painter.Fonts().value, Show(readout, Quantity::TurnRate).WithUnit());
}

} // namespace demo
