#include "controls/detail/ChartAxis.h"

#include "platform/detail/Markers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cmath>

namespace vant::detail
{

namespace
{

constexpr double minute = 60;
constexpr double hour = 3600;
constexpr double day = 86400;
// What a division may be off its place by rounding, as a part of the step.
constexpr double slack = 1e-6;
// Beyond these an axis could not tell its divisions apart, or count them.
constexpr double largest = 1e300;
constexpr int mostTicks = 1000;

/** A number with fixed decimals; never "-0". */
std::wstring Fixed(double v, int decimals)
{
    std::array<char, 512> text{}; // the largest double has 309 digits
    const auto end = std::to_chars(text.data(), text.data() + text.size(), v, std::chars_format::fixed,
                                   std::clamp(decimals, 0, 60));
    std::wstring result(text.data(), end.ptr);
    if (result.find_first_not_of(L"-0.") == std::wstring::npos && result.front() == L'-')
        result.erase(0, 1);
    return result;
}

std::wstring TwoDigits(long long v)
{
    std::wstring text = std::to_wstring(v);
    return text.size() < 2 ? L"0" + text : text;
}

/** Decimals that a multiple of `step` needs. */
int DecimalsOf(double step) noexcept
{
    int decimals = 0;
    // Twelve significant digits of the step at most, for steps such as 0.15.
    const int most = std::clamp(static_cast<int>(std::ceil(-std::log10(step))) + 3, 0, 30);
    double scaled = step;
    while (decimals < most && std::fabs(scaled - std::round(scaled)) > slack * scaled) {
        scaled *= 10;
        ++decimals;
    }
    return decimals;
}

/** The step of an axis of time. */
double TimeStep(double least) noexcept
{
    static constexpr std::array<double, 3> decade = {1, 2, 5};
    static constexpr std::array<double, 21> steps = {
        1,          2,          5,           10,          15,          30,      minute,
        2 * minute, 5 * minute, 10 * minute, 15 * minute, 30 * minute, hour,    2 * hour,
        3 * hour,   6 * hour,   12 * hour,   day,         2 * day,     5 * day, 10 * day};
    if (least <= 0.5)
        return RoundStepOf(decade, std::max(least, 1e-6));
    const auto found = std::lower_bound(steps.begin(), steps.end(), least);
    return found != steps.end() ? *found : day * RoundStepOf(decade, least / day);
}

struct Calendar {
    int year = 1980;
    unsigned month = 1;
    unsigned dayOfMonth = 1;
};

Calendar CalendarOf(long long days)
{
    using namespace std::chrono;
    const year_month_day date(sys_days(year(1980) / January / 1) + std::chrono::days(days));
    return {static_cast<int>(date.year()), static_cast<unsigned>(date.month()),
            static_cast<unsigned>(date.day())};
}

/** Whether a date can be told: up to some ten thousand years. */
bool HasDate(double t) noexcept
{
    constexpr double range = 3e11;
    return t > -range && t < range;
}

std::wstring DateText(double t)
{
    static constexpr std::array<const wchar_t*, 12> months = {L"Jan", L"Feb", L"Mar", L"Apr", L"May", L"Jun",
                                                              L"Jul", L"Aug", L"Sep", L"Oct", L"Nov", L"Dec"};
    const Calendar date = CalendarOf(std::llround(std::floor(t / day)));
    return std::to_wstring(date.dayOfMonth) + L' ' + months[(date.month - 1) % months.size()];
}

std::wstring ClockText(double t, double step)
{
    if (!HasDate(t))
        return Fixed(t, 0) + L" s";
    const int decimals = step < 1 ? std::clamp(DecimalsOf(step), 0, 6) : 0;
    // Rounded as a whole, so that no second is shown as 60.
    const double unit = std::pow(10.0, decimals);
    t = std::round(t * unit) / unit;
    const double ofDay = t - std::floor(t / day) * day;
    const auto whole = static_cast<long long>(ofDay);
    std::wstring text = TwoDigits(whole / 3600) + L':' + TwoDigits(whole / 60 % 60);
    if (step >= minute)
        return text;
    text += L':' + TwoDigits(whole % 60);
    if (decimals > 0)
        text += Fixed(std::fabs(ofDay - static_cast<double>(whole)), decimals).substr(1);
    return text;
}

std::wstring RelativeText(double seconds, double step)
{
    const double size = std::fabs(seconds);
    const std::wstring sign = seconds < -step * slack ? L"-" : L"";
    const auto pair = [&](double large, double small, const wchar_t* unit) {
        const long long parts = std::llround(size / small);
        const long long perLarge = std::llround(large / small);
        return sign + std::to_wstring(parts / perLarge) + L':' + TwoDigits(parts % perLarge) + unit;
    };
    const auto isMultiple = [&](double of) { return std::fabs(std::remainder(size, of)) < step * slack; };
    if (size < 2 * minute - step * slack || !std::isfinite(size))
        return sign + Fixed(size, step < 1 ? DecimalsOf(step) : 0) + L" s";
    if (step < 1)
        return sign + Fixed(size, DecimalsOf(step)) + L" s";
    if (size < 2 * hour - step * slack)
        return step >= minute && isMultiple(minute) ? sign + Fixed(size / minute, 0) + L" min"
                                                    : pair(minute, 1, L" min");
    if (size < 2 * day - step * slack || step < hour)
        return step >= hour && isMultiple(hour) ? sign + Fixed(size / hour, 0) + L" h"
                                                : pair(hour, minute, L" h");
    return step >= day && isMultiple(day) ? sign + Fixed(size / day, 0) + L" d"
                                          : sign + Fixed(size / hour, 0) + L" h";
}

/** The multiples of `step` in a range, both ends included, by number. */
template <class Use>
void ForMultiples(AxisRange range, double step, Use use)
{
    const double first = std::ceil(range.min / step - slack);
    const double last = std::floor(range.max / step + slack);
    if (!(last - first < mostTicks))
        return;
    for (double n = first; n <= last; ++n)
        use(n * step + 0.0); // never -0
}

bool IsRange(AxisRange range) noexcept
{
    return range.min < range.max && range.min > -largest && range.max < largest;
}

} // namespace

double RoundStepOf(std::span<const double> table, double least) noexcept
{
    if (!(least > 0) || !(least < largest) || table.empty())
        return 1;
    const double decade = std::pow(10.0, std::floor(std::log10(least)));
    // The next marker is above its argument: what is round itself must stay.
    constexpr double belowRound = 1 - 1e-9;
    constexpr double wholeDecade = 10;
    double step = NextMarker(table, least / decade * belowRound);
    while (step < wholeDecade && std::fabs(std::remainder(wholeDecade, step)) > slack)
        step = NextMarker(table, step);
    return decade * step;
}

AxisRange FitRange(std::span<const double> table, AxisRange data, AxisRange before, int divisions) noexcept
{
    divisions = std::max(divisions, 1);
    if (!(data.min <= data.max) || !(data.min > -largest) || !(data.max < largest))
        return IsRange(before) ? before : AxisRange();
    if (!(data.Length() > std::max(std::fabs(data.min), std::fabs(data.max)) * 1e-9)) {
        // A tenth of the value around it; for 0 a range of 1 on either side.
        constexpr double share = 0.05;
        const double around = data.max != 0 ? std::fabs(data.max) * share : 1;
        data = {data.min - around, data.max + around};
    }
    constexpr double shrinkBelow = 0.5;
    if (IsRange(before) && data.min >= before.min && data.max <= before.max &&
        data.Length() >= before.Length() * shrinkBelow)
        return before;
    double step = RoundStepOf(table, data.Length() / divisions);
    AxisRange fitted;
    // A step may be too small once both ends have been moved to divisions; the second or third is not.
    for (int larger = 0; larger < 4; ++larger) {
        fitted = {std::floor(data.min / step + slack) * step, std::ceil(data.max / step - slack) * step};
        if (fitted.Length() <= step * (divisions + slack))
            break;
        step = RoundStepOf(table, step * (1 + slack));
    }
    return IsRange(fitted) ? fitted : data;
}

std::vector<Tick> ValueTicks(std::span<const double> table, AxisRange range, int divisions)
{
    std::vector<Tick> ticks;
    if (!IsRange(range))
        return ticks;
    const double step = RoundStepOf(table, range.Length() / std::max(divisions, 1) * (1 - slack));
    const int decimals = DecimalsOf(step);
    // Larger and smaller ones with nine digits, and an exponent if that is shorter.
    const bool isPlain = std::max(std::fabs(range.min), std::fabs(range.max)) < 1e6 && step >= 1e-6;
    ForMultiples(range, step, [&](double at) {
        if (isPlain) {
            ticks.push_back({at, Fixed(at, decimals)});
            return;
        }
        std::array<char, 64> text{};
        const auto end =
            std::to_chars(text.data(), text.data() + text.size(), at, std::chars_format::general, 9);
        ticks.push_back({at, std::wstring(text.data(), end.ptr)});
    });
    return ticks;
}

std::vector<Tick> TimeTicks(AxisRange range, double now, TimeLabels labels, int divisions)
{
    std::vector<Tick> ticks;
    if (!IsRange(range))
        return ticks;
    const double step = TimeStep(range.Length() / std::max(divisions, 1));
    const double origin = labels == TimeLabels::Relative ? now : 0;
    ForMultiples({range.min - origin, range.max - origin}, step, [&](double at) {
        std::wstring label;
        if (labels == TimeLabels::Relative)
            label = RelativeText(at, step);
        else if (HasDate(at) && std::fabs(std::remainder(at, day)) < step * slack)
            label = DateText(at + step * slack);
        else
            label = ClockText(at, step);
        ticks.push_back({at + origin, std::move(label)});
    });
    return ticks;
}

std::wstring TimeText(double t, double now, TimeLabels labels, double step)
{
    // To a tenth of what can be pointed at, as a power of ten, and not coarser than a second.
    const double precision = step > 0 && step < 1 ? std::pow(10.0, std::floor(std::log10(step))) : 1;
    if (labels == TimeLabels::Relative)
        return RelativeText(t - now, precision);
    if (!HasDate(t))
        return ClockText(t, precision);
    // Days apart, the time of the day alone would not tell when it was.
    const bool isOtherDay = std::floor(t / day) != std::floor(now / day);
    return (isOtherDay ? DateText(t) + L' ' : std::wstring()) + ClockText(t, precision);
}

std::wstring SpanText(double seconds)
{
    if (seconds < 1)
        return Fixed(seconds * 1000, seconds < 0.01 ? 1 : 0) + L" ms";
    if (seconds < 10 && std::fabs(seconds - std::round(seconds)) > slack)
        return Fixed(seconds, 1) + L" s";
    // As short as it can be said.
    double unit = 1;
    for (const double larger : {minute, hour, day}) {
        if (std::fmod(std::round(seconds), larger) == 0)
            unit = larger;
    }
    return RelativeText(std::round(seconds), seconds < 2 * hour ? unit : std::max(unit, minute));
}

} // namespace vant::detail
