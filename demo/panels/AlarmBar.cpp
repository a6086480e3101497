#include "demo/panels/Panels.h"
#include "demo/session/AlarmTexts.h"
#include "platform/Vant.h"

#include <string>
#include <vector>

namespace demo
{
namespace
{

constexpr int lampMargin = 12;
constexpr int textGap = 28;

std::wstring AlarmText(const Readout& readout, AlarmId id)
{
    const Playback& playback = readout.playback;
    if (id == AlarmId::ShallowWater) {
        const double depth = readout.values.Value(Quantity::DepthBelowSurface).GetVal();
        return IsMissing(depth) ? std::wstring(L"Shallow water when last sounded")
                                : ShallowText(depth, playback.Alarms().ShallowLimit());
    }
    const double search = playback.Alarms().SearchTime(playback.Time());
    return search < AlarmWatch::longestGap ? std::wstring(L"Position lost a moment ago")
                                           : LostFixText(search);
}

} // namespace

void PaintAlarms(CPainter& painter, const Box& box, const Readout& readout)
{
    namespace skins = vant::skins;
    const ColourSet& colours = painter.Colours();
    std::vector<std::wstring> texts;
    for (const AlarmId id : alarmIds)
        if (readout.playback.Alarms().IsOn(id))
            texts.push_back(AlarmText(readout, id));

    const bool isOn = !texts.empty();
    const int lampLeft = box.left + painter.ToPx(lampMargin);
    const int textLeft = lampLeft + painter.ToPx(skins::leds::lit.w + lampMargin / 2);
    painter.Solid(box, colours.deep);
    if (isOn)
        painter.Solid({textLeft, box.top, box.right, box.bottom}, colours.alarm);
    const int lampTop = box.CentreY() - painter.ToPx(skins::leds::lit.h) / 2;
    painter.Stamp(lampLeft, lampTop, Vant::leds, isOn ? skins::leds::lit : skins::leds::none,
                  isOn ? static_cast<int>(Lamp::Red) : 0);

    const double baseline = box.CentreY() + painter.ToPx(5);
    const int gap = painter.ToPx(textGap);
    int x = textLeft + gap / 2;
    if (!isOn)
        painter.Text(x, baseline, Align::Left, painter.Fonts().note, colours.label, L"No alarm");
    for (const std::wstring& text : texts) {
        if (&text != &texts.front())
            painter.Solid(
                {x - gap / 2, box.top + painter.ToPx(5), x - gap / 2 + 1, box.bottom - painter.ToPx(5)},
                colours.text);
        painter.Text(x, baseline, Align::Left, painter.Fonts().line, colours.text, text);
        x += painter.TextWidth(painter.Fonts().line, text) + gap;
    }
    const std::wstring summary =
        std::to_wstring(readout.alarms) + (readout.alarms == 1 ? L" alarm" : L" alarms") +
        L" since the start,  shallow below " + DepthText(readout.playback.Alarms().ShallowLimit());
    painter.Text(box.right - painter.ToPx(14), baseline, Align::Right, painter.Fonts().note,
                 isOn ? colours.text : colours.label, summary);
}

} // namespace demo
