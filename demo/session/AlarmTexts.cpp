#include "demo/session/AlarmTexts.h"

#include "demo/detail/Text.h"
#include "demo/session/ShownValues.h"
#include "platform/Vant.h"
#include "values/EUnits.h"

#include <cmath>

namespace demo
{
namespace
{

std::wstring TextOf(const AlarmEvent& event, double limit)
{
    if (event.id == AlarmId::ShallowWater)
        return event.begins ? ShallowText(event.value, limit)
                            : L"Deep enough again: " + DepthText(event.value);
    return event.begins ? LostFixText(event.value)
                        : L"Position back after " + FixedText(event.value, 1) + L" s";
}

} // namespace

std::wstring RaiseAlarm(const AlarmEvent& event, double limit)
{
    const std::wstring text = TextOf(event, limit);
    Vant::Alarm(static_cast<unsigned long>(event.id), event.begins ? beginLevel : endLevel, L"%s",
                text.c_str());
    return text;
}

std::wstring DepthText(double metres)
{
    return static_cast<LPCWSTR>(EUnits::Get(lengthUnit, metres, L"%0.1lf", 1));
}

std::wstring ShallowText(double depth, double limit)
{
    return L"Shallow water: " + DepthText(depth) + L", limit " + DepthText(limit);
}

std::wstring LostFixText(double seconds)
{
    return L"No position for " + FixedText(std::floor(seconds), 0) + L" s";
}

} // namespace demo
