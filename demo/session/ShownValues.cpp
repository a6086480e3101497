#include "demo/session/ShownValues.h"

#include "demo/detail/Text.h"
#include "values/EUnits.h"

#include <string_view>

namespace demo
{
namespace
{

struct Format {
    Quantity quantity;
    UnitKind kind;
    int decimals;
    double scale;
    std::wstring_view unit; // where no kind supplies it
};

constexpr Format formats[] = {
    {Quantity::Satellites, noUnit, 0, 1.0, L""},
    {Quantity::Hdop, noUnit, 1, 1.0, L""},
    {Quantity::SpeedOverGround, speedUnit, 1, 1.0, L""},
    {Quantity::TurnRate, noUnit, 0, 60.0 / degree, L"\u00B0/min"},
    {Quantity::DepthBelowTransducer, lengthUnit, 2, 1.0, L""},
    {Quantity::DepthBelowSurface, lengthUnit, 1, 1.0, L""},
    {Quantity::ApparentWindSpeed, speedUnit, 1, 1.0, L""},
    {Quantity::TrueWindSpeed, speedUnit, 1, 1.0, L""},
    {Quantity::WaterTemperature, temperatureUnit, 1, 1.0, L""},
    {Quantity::SpeedThroughWater, speedUnit, 1, 1.0, L""},
};

std::wstring Wide(const CString& text)
{
    return {text.GetString(), static_cast<std::size_t>(text.GetLength())};
}

} // namespace

ShownValues::ShownValues()
{
    m_variables.items.fill(missing);
    for (std::size_t i = 0; i < quantityCount; ++i)
        m_values.items[i].Init(m_variables.items[i]);
    for (const Format& format : formats) {
        CEVal& value = m_values[format.quantity];
        value.units = format.kind;
        value.decimals = format.decimals;
        value.scale = format.scale;
    }
}

void ShownValues::Take(const Playback& playback)
{
    for (std::size_t i = 0; i < quantityCount; ++i) {
        const auto quantity = static_cast<Quantity>(i);
        const bool known = playback.State(quantity) != Freshness::None;
        m_values.items[i] = known ? playback.Value(quantity) : missing;
    }
}

std::wstring ShownValues::Unit(Quantity quantity) const
{
    for (const Format& format : formats)
        if (format.quantity == quantity && format.kind == noUnit)
            return std::wstring(format.unit);
    return Wide(EUnits::Get(m_values[quantity].units));
}

std::wstring ShownValues::KnotsText(Quantity speed) const
{
    CEVal value = m_values[speed];
    value.units = noUnit;
    value.scale = 1.0 / knot;
    value.decimals = 1;
    return TextOf(value) + L" kn";
}

std::wstring ShownValues::TextOf(const CEVal& value)
{
    if (IsMissing(value.GetVal()))
        return Dashes(value.decimals);
    const std::wstring text = Wide(value.GetText(0));
    const bool isZero = text.find_first_of(L"123456789") == std::wstring::npos;
    return isZero && text.starts_with(L'-') ? text.substr(1) : text;
}

std::wstring ShownValues::LengthText(double metres, int decimals)
{
    CEVal value;
    value.Init(metres);
    value.units = lengthUnit;
    value.decimals = decimals;
    return TextOf(value);
}

std::wstring UnitText(UnitKind kind)
{
    return Wide(EUnits::Get(kind));
}

double DisplayLength(double metres) noexcept
{
    if (!IsMissing(metres))
        EUnits::N2D(lengthUnit, metres);
    return metres;
}

double LengthUnitMetres() noexcept
{
    double unit = 1.0;
    EUnits::D2N(lengthUnit, unit);
    return unit;
}

} // namespace demo
