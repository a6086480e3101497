#include "demo/detail/TourPlan.h"

#include <algorithm>
#include <iterator>

namespace demo
{
namespace
{

constexpr Chapter chapters[] = {
    {0.0, L"A survey boat's instruments, played from its NMEA 0183 log"},
    {7.0, L"Heading and wind turn with the boat; a lamp tells of each sensor"},
    {13.5, L"Set-up: a new limit for shallow water acts as soon as it is typed"},
    {20.5, L"The alarm stays red until its console's box is clicked"},
    {27.0, L"The chart is zoomed, dragged, and asked what is under the mouse"},
    {36.0, L"The orbit view turns round the boat"},
    {43.0, L"Another colour table recolours the sea bed, wherever it is shown"},
    {49.5, L"The survey: strip charts, a slider, and waypoints shown in the chart"},
    {57.0, L"Back to the bridge, and on with the survey"},
};

} // namespace

std::span<const Chapter> TourChapters() noexcept
{
    return chapters;
}

std::size_t ChapterAt(double t) noexcept
{
    const auto* const next = std::ranges::upper_bound(chapters, t, {}, &Chapter::begin);
    return next == std::begin(chapters) ? 0 : static_cast<std::size_t>(next - std::begin(chapters)) - 1;
}

double ChapterEnd(std::size_t chapter) noexcept
{
    return chapter + 1 < std::size(chapters) ? chapters[chapter + 1].begin : tourLength;
}

} // namespace demo
