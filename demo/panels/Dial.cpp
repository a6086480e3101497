#include "demo/panels/Dial.h"

#include "demo/detail/Quantities.h"
#include "demo/detail/Scale.h"

#include <algorithm>
#include <cmath>

namespace demo
{

Dial Dial::In(const Box& inside, double margin) noexcept
{
    Dial dial;
    dial.centre = {inside.left + inside.Width() / 2.0, inside.top + inside.Height() / 2.0};
    dial.radius = std::max(std::min(inside.Width(), inside.Height()) / 2.0 - margin, 1.0);
    return dial;
}

void PaintDialFace(CPainter& painter, const Dial& dial)
{
    const ColourSet& colours = painter.Colours();
    Path disc;
    disc.AddCircle(dial.centre, dial.radius);
    painter.Fill(disc, InkOf(colours.deep));
    Path ring;
    ring.AddRing(dial.centre, dial.radius - painter.Scaled(1.6), dial.radius);
    painter.Fill(ring, InkOf(colours.rim));

    constexpr int step = 10;
    constexpr int longStep = 30;
    Path ticks;
    Path longTicks;
    for (int i = 0; i < 360; i += step) {
        const bool isLong = i % longStep == 0;
        const double inner = 1.0 - painter.Scaled(isLong ? 13.0 : 8.0) / dial.radius;
        (isLong ? longTicks : ticks)
            .AddLine(dial.At(i * degree, inner), dial.At(i * degree, 1.0),
                     painter.Scaled(isLong ? 2.0 : 1.2));
    }
    painter.Fill(ticks, InkOf(colours.rim));
    painter.Fill(longTicks, InkOf(colours.label));
}

bool IsUnderPointer(double bearing, double pointer) noexcept
{
    constexpr double halfWidth = 11.0 * degree;
    return !IsMissing(pointer) && std::abs(TurnBetween(bearing, pointer)) < halfWidth;
}

void PaintPointer(CPainter& painter, const Dial& dial, double bearing, COLORREF colour)
{
    const double s = painter.Scaled(1.0);
    const double tip = -dial.radius + 3.0 * s;
    const Point shape[] = {{0, tip}, {9 * s, tip + 34 * s}, {0, tip + 27 * s}, {-9 * s, tip + 34 * s}};
    Path path;
    path.AddPolygon(shape);
    path.Place(bearing - dial.top, dial.centre);
    painter.Fill(path, InkOf(colour));
}

void PaintBug(CPainter& painter, const Dial& dial, double bearing, COLORREF colour)
{
    const double s = painter.Scaled(1.0);
    const double tip = -dial.radius - 1.0 * s;
    const Point shape[] = {{0, tip}, {6 * s, tip - 10 * s}, {-6 * s, tip - 10 * s}};
    Path path;
    path.AddPolygon(shape);
    path.Place(bearing - dial.top, dial.centre);
    painter.Fill(path, InkOf(colour));
}

} // namespace demo
