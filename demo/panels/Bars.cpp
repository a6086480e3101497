#include "demo/detail/Quantities.h"
#include "demo/detail/Text.h"
#include "demo/panels/Panels.h"
#include "platform/Vant.h"
#include "values/EUnits.h"

#include <algorithm>
#include <cmath>

namespace demo
{
namespace
{

namespace skins = vant::skins;

/** The tape's bar: how much of it has been played. @return its left end */
int PaintProgress(CPainter& painter, const Box& box, const Readout& readout)
{
    constexpr int width = 180;
    const int height = painter.ToPx(skins::process::track.h);
    const int right = box.right - painter.ToPx(14);
    const int left = right - painter.ToPx(width);
    const int top = box.CentreY() - height / 2;
    const Box bar{left, top, right, top + height};
    painter.Skin(bar, Vant::process, skins::process::track);

    const double part =
        readout.duration > 0.0 ? std::min(readout.playback.Time() / readout.duration, 1.0) : 1.0;
    const skins::Region& fill = readout.playback.AtEnd() ? skins::process::done
                                : readout.paused         ? skins::process::paused
                                                         : skins::process::running;
    CDC& dc = painter.Dc();
    const int saved = dc.SaveDC();
    dc.IntersectClipRect(left, top, left + static_cast<int>(std::lround((right - left) * part)),
                         top + height);
    painter.Skin(bar, Vant::process, fill);
    dc.RestoreDC(saved);
    return left;
}

std::wstring StateText(const Readout& readout)
{
    if (readout.playback.AtEnd())
        return L"END OF LOG";
    const double whole = std::round(readout.rate);
    const std::wstring rate = FixedText(readout.rate, readout.rate == whole ? 0 : 1) + L"\u00D7";
    return (readout.paused ? L"PAUSED  " : L"PLAYING  ") + rate;
}

} // namespace

void PaintHeader(CPainter& painter, const Box& box, const Readout& readout)
{
    const ColourSet& colours = painter.Colours();
    FontSet& fonts = painter.Fonts();
    painter.Skin(box, Vant::grad2, skins::grad2::heading);

    const double left = box.left + painter.ToPx(18);
    const int middle = box.CentreY();
    painter.Text(left, middle - painter.ToPx(1), Align::Left, fonts.title, colours.text,
                 L"Survey instruments");
    const double clockLeft = box.CentreX() - painter.TextWidth(fonts.clock, ClockText(0.0)) / 2.0;
    painter.TextWithin(left, middle + painter.ToPx(17), clockLeft - left - painter.ToPx(8), fonts.note,
                       colours.label,
                       L"VantCore " + std::wstring(static_cast<LPCWSTR>(Vant::swVer)) + L", playing " +
                           std::wstring(readout.source));

    const Freshness state = readout.playback.State(Quantity::UtcTime);
    const double seen = readout.playback.Value(Quantity::UtcTime);
    const double age = readout.playback.Age(Quantity::UtcTime);
    const double clock = state == Freshness::None ? missing : state == Freshness::Live ? seen + age : seen;
    painter.Value(box.CentreX(), middle + painter.ToPx(12), Align::Centre, fonts.clock,
                  {ClockText(clock), L"UTC", state});

    const int barLeft = PaintProgress(painter, box, readout);
    const double right = barLeft - painter.ToPx(14);
    painter.Text(right, middle - painter.ToPx(4), Align::Right, fonts.line,
                 readout.playback.AtEnd() ? colours.label : colours.text, StateText(readout));
    painter.Text(right, middle + painter.ToPx(15), Align::Right, fonts.line, colours.label,
                 DurationText(std::min(readout.playback.Time(), readout.duration)) + L" of " +
                     DurationText(readout.duration));
}

void PaintFooter(CPainter& painter, const Box& box, const Readout& readout)
{
    struct Key {
        std::wstring_view key;
        std::wstring_view meaning;
    };
    const Key keys[] = {
        {L"Space", readout.paused ? L"play" : L"pause"},
        {L"+", L"faster"},
        {L"\u2212", L"slower"},
        {L"R", L"restart"},
        {L"H", readout.headingUp ? L"north up" : L"heading up"},
        {L"D", L"depth span"},
        {L"U", EUnits::system == 0 ? L"US units" : L"metric units"},
        {L"C", L"chart"},
        {L"O", L"orbit"},
        {L"P", L"palette"},
        {L"M", L"survey"},
        {L"V", readout.recording ? L"stop video" : L"video"},
        {L"S", L"picture"},
        {L"F6", L"window"},
        {L"Tab", L"control"},
        {L"Esc", L"close"},
    };
    FontSet& fonts = painter.Fonts();
    const int capHeight = painter.ToPx(skins::grad1::face.h);
    const int padding = painter.ToPx(8);
    const int top = box.CentreY() - capHeight / 2;
    const int baseline = top + painter.ToPx(17);
    int x = box.left + painter.ToPx(10);
    painter.Solid(box, painter.Colours().back);
    for (const Key& key : keys) {
        const int width = std::max(painter.TextWidth(fonts.caption, key.key) + 2 * padding, capHeight);
        const int end = x + width + painter.ToPx(6) + painter.TextWidth(fonts.note, key.meaning);
        if (end > box.right) // a narrow window does without the last ones
            break;
        painter.Skin({x, top, x + width, top + capHeight}, Vant::grad1, skins::grad1::face);
        painter.Text(x + width / 2.0, baseline, Align::Centre, fonts.caption, painter.Colours().text,
                     key.key);
        x += width + painter.ToPx(6);
        painter.Text(x, baseline, Align::Left, fonts.note, painter.Colours().label, key.meaning);
        x += painter.TextWidth(fonts.note, key.meaning) + painter.ToPx(16);
    }

    const LineCounts& counts = readout.playback.Counts();
    const std::wstring read =
        std::to_wstring(counts.read) + L" read,  " + std::to_wstring(counts.rejected) + L" rejected";
    const int right = box.right - painter.ToPx(14);
    if (right - painter.TextWidth(fonts.note, read) >= x) // else the keys need the place
        painter.Text(right, baseline, Align::Right, fonts.note, painter.Colours().label, read);
}

} // namespace demo
