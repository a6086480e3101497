#include "demo/CAlarmLog.h"
#include "demo/Panels.h"
#include "demo/SkinPiece.h"
#include "platform/Vant.h"

#include <string>
#include <vector>

namespace demo
{
namespace
{

constexpr int redLamp = 2; // a cell of the lamps' skin
constexpr int lampMargin = 12;
constexpr int textGap = 28;

std::wstring AlarmText(const View& view, AlarmId id)
{
    const Playback& playback = view.playback;
    if (id == AlarmId::ShallowWater) {
        const double depth = view.values.Value(Quantity::DepthBelowSurface).GetVal();
        return IsMissing(depth) ? std::wstring(L"Shallow water when last sounded")
                                : ShallowText(depth, playback.Alarms().ShallowLimit());
    }
    const double search = playback.Alarms().SearchTime(playback.Time());
    return search < AlarmWatch::longestGap ? std::wstring(L"Position lost a moment ago")
                                           : LostFixText(search);
}

} // namespace

void PaintAlarms(CPainter& painter, const Box& box, const View& view)
{
    namespace skins = vant::skins;
    const Palette& colours = painter.Colours();
    std::vector<std::wstring> texts;
    for (const AlarmId id : alarmIds)
        if (view.playback.Alarms().IsOn(id))
            texts.push_back(AlarmText(view, id));

    const bool isOn = !texts.empty();
    const int lampLeft = box.left + lampMargin;
    const int textLeft = lampLeft + skins::leds::lit.w + lampMargin / 2;
    painter.Solid(box, colours.deep);
    if (isOn)
        painter.Solid({textLeft, box.top, box.right, box.bottom}, colours.alarm);
    const int lampTop = box.CentreY() - skins::leds::lit.h / 2;
    StampSkin(painter.Dc(), lampLeft, lampTop, Vant::leds, isOn ? skins::leds::lit : skins::leds::none,
              isOn ? redLamp : 0);

    const double baseline = box.CentreY() + 5.0; // the library's fonts do not grow with the window
    int x = textLeft + textGap / 2;
    if (!isOn)
        painter.Text(x, baseline, Align::Left, Vant::smallF, colours.label, L"No alarm");
    for (const std::wstring& text : texts) {
        if (&text != &texts.front())
            painter.Solid({x - textGap / 2, box.top + 5, x - textGap / 2 + 1, box.bottom - 5}, colours.text);
        painter.Text(x, baseline, Align::Left, Vant::normalF, colours.text, text);
        x += painter.TextWidth(Vant::normalF, text) + textGap;
    }
    const std::wstring summary = std::to_wstring(view.alarms) + (view.alarms == 1 ? L" alarm" : L" alarms") +
                                 L" since the start,  shallow below " +
                                 DepthText(view.playback.Alarms().ShallowLimit());
    painter.Text(box.right - 14, baseline, Align::Right, Vant::smallF, isOn ? colours.text : colours.label,
                 summary);
}

} // namespace demo
