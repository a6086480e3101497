#include "values/detail/UnitText.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace vant::detail
{

namespace
{

/** One unit kind: labels of both systems, and the factors from native to US customary units and back. */
struct Unit {
    std::wstring_view metricLabel;
    std::wstring_view usLabel;
    double toDisplay = 1.0;
    double toNative = 1.0;
};

constexpr int temperature = 1;
constexpr int firstUnconverted = 6;
constexpr double freezingPoint = 32.0; // in degrees Fahrenheit

// The factors back are values of their own, not reciprocals taken at run time. Length and speed differ in
// their last digit on purpose.
constexpr std::array<Unit, 8> units = {{
    {L"m", L"ft", 3.28083, 0.30480091927957254},
    {L"\u00B0C", L"\u00B0F", 1.8, 0.5555555555555556},
    {L"m/s", L"ft/s", 3.28084, 0.3047999902464003},
    {L"sq m", L"sq ft", 10.76391, 0.09290304359661128},
    {L"cu m", L"cu ft", 35.31467, 0.028316843963146193},
    {L"MPa", L"psi", 145.0377, 0.006894759086775369},
    {L"\u00B0", L"\u00B0"},
    {L"%", L"%"},
}};

const Unit* FindUnit(int kind) noexcept
{
    const auto index = static_cast<unsigned>(kind);
    return index < units.size() ? &units[index] : nullptr;
}

bool Converts(int kind, int system) noexcept
{
    return system == usCustomary && kind >= 0 && kind < firstUnconverted;
}

wchar_t* Put(wchar_t* out, std::wstring_view text) noexcept
{
    return std::copy(text.begin(), text.end(), out);
}

} // namespace

std::wstring_view UnitLabel(int kind, int system) noexcept
{
    const Unit* const unit = FindUnit(kind);
    if (!unit || (system != metric && system != usCustomary)) {
        return {};
    }
    return system == metric ? unit->metricLabel : unit->usLabel;
}

double ToDisplay(int kind, int system, double native) noexcept
{
    if (!Converts(kind, system)) {
        return native;
    }
    const double scaled = native * FindUnit(kind)->toDisplay;
    return kind == temperature ? scaled + freezingPoint : scaled;
}

double ToNative(int kind, int system, double displayed) noexcept
{
    if (!Converts(kind, system)) {
        return displayed;
    }
    return (kind == temperature ? displayed - freezingPoint : displayed) * FindUnit(kind)->toNative;
}

bool IsFeet(int kind, int system) noexcept
{
    return kind == lengthKind && system == usCustomary;
}

wchar_t* WriteFeet(wchar_t* out, double feet) noexcept
{
    constexpr double wholeFeetFrom = 100.0;
    constexpr int inchesPerFoot = 12;
    const double magnitude = std::fabs(feet);
    if (!(magnitude < wholeFeetFrom)) { // NaN too
        return Put(WriteFixed(out, feet, 0), L"ft");
    }
    const int total = static_cast<int>(std::floor(magnitude * inchesPerFoot + 0.5));
    const int whole = total / inchesPerFoot;
    const int inches = total % inchesPerFoot;
    if (feet < 0) { // also in front of a value that rounds to "0ft": deliberate
        *out++ = L'-';
    }
    if (inches == 0) {
        return Put(WriteInt(out, whole), L"ft");
    }
    if (whole != 0) {
        out = Put(WriteInt(out, whole), L"ft ");
    }
    return Put(WriteInt(out, inches), L"in");
}

} // namespace vant::detail
