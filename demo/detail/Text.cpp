#include "demo/detail/Text.h"

#include "demo/detail/Quantities.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace demo
{
namespace
{

constexpr double widest = 1.0e15; // longer numbers have no place on an instrument
constexpr int positionDecimals = 4;

bool IsShowable(double value) noexcept
{
    return !IsMissing(value) && std::abs(value) < widest;
}

std::wstring Padded(long long value, std::size_t digits)
{
    const std::wstring text = std::to_wstring(value);
    return text.size() < digits ? std::wstring(digits - text.size(), L'0') + text : text;
}

std::wstring CoordinateText(double radians, std::size_t degreeDigits, wchar_t positive, wchar_t negative)
{
    const wchar_t* const mark = L"\u00B0 ";
    if (!IsShowable(radians))
        return std::wstring(degreeDigits, L'-') + mark + L"--." + std::wstring(positionDecimals, L'-') + L"'";

    // Rounded as a whole, so that 59.99999 minutes become the next degree and never "60.0000".
    const double unitsPerMinute = std::pow(10.0, positionDecimals);
    const long long units = std::llround(std::abs(radians) / degree * 60.0 * unitsPerMinute);
    const long long perMinute = std::llround(unitsPerMinute);
    const long long minutes = units / perMinute;
    return Padded(minutes / 60, degreeDigits) + mark + Padded(minutes % 60, 2) + L'.' +
           Padded(units % perMinute, positionDecimals) + L"' " + (radians < 0.0 ? negative : positive);
}

long long WholeSeconds(double seconds) noexcept
{
    return static_cast<long long>(std::floor(std::max(seconds, 0.0)));
}

} // namespace

std::wstring Dashes(int decimals)
{
    std::wstring text = L"--";
    if (decimals > 0)
        text += L'.' + std::wstring(static_cast<std::size_t>(decimals), L'-');
    return text;
}

std::wstring FixedText(double value, int decimals)
{
    decimals = std::clamp(decimals, 0, 9);
    if (!IsShowable(value))
        return Dashes(decimals);
    char buffer[48]; // widest has 16 digits, then the point, the decimals and a sign
    const auto [end, error] =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, decimals);
    std::wstring text(buffer, error == std::errc() ? end : buffer);
    const bool isZero = text.find_first_of(L"123456789") == std::wstring::npos;
    return isZero && text.starts_with(L'-') ? text.substr(1) : text;
}

std::wstring BearingText(double radians)
{
    if (!IsShowable(radians))
        return L"---";
    const long long whole = std::llround(radians / degree) % 360;
    return Padded(whole < 0 ? whole + 360 : whole, 3);
}

std::wstring LatitudeText(double radians)
{
    return CoordinateText(radians, 2, L'N', L'S');
}

std::wstring LongitudeText(double radians)
{
    return CoordinateText(radians, 3, L'E', L'W');
}

std::wstring ClockText(double seconds)
{
    if (!IsShowable(seconds))
        return L"--:--:--";
    const long long whole = WholeSeconds(seconds) % 86400;
    return Padded(whole / 3600, 2) + L':' + Padded(whole / 60 % 60, 2) + L':' + Padded(whole % 60, 2);
}

std::wstring DurationText(double seconds)
{
    if (!IsShowable(seconds))
        return L"--:--";
    const long long whole = WholeSeconds(seconds);
    const std::wstring tail = L':' + Padded(whole % 60, 2);
    if (whole < 3600)
        return std::to_wstring(whole / 60) + tail;
    return std::to_wstring(whole / 3600) + L':' + Padded(whole / 60 % 60, 2) + tail;
}

std::wstring AddressText(unsigned long address, int port)
{
    std::wstring text;
    for (int i = 0; i < 4; ++i)
        text += (i > 0 ? L"." : L"") + std::to_wstring(address >> (8 * i) & 0xFFU);
    return text + L":" + std::to_wstring(port);
}

std::wstring Quoted(std::wstring_view text)
{
    return L"'" + std::wstring(text) + L"'";
}

std::wstring Counted(std::size_t count, std::wstring_view what)
{
    return std::to_wstring(count) + L" " + std::wstring(what);
}

} // namespace demo
