#include "demo/detail/Layout.h"

#include <algorithm>
#include <span>

namespace demo
{
namespace
{

constexpr int gap = 10; // around and between the parts
constexpr int headerHeight = 52;
constexpr int alarmHeight = 26;
constexpr int footerHeight = 34;
constexpr double depthShare = 0.42; // of the instruments' width, for the first column
constexpr double upperShare = 0.53; // of the instruments' height, for the upper row

constexpr int instrumentWidth = 1260; // the area that the instruments were drawn for
constexpr int instrumentHeight = 668;

constexpr int setupWidth = 332;     // of the sections' headers and a frame
constexpr double dockShare = 0.185; // of the whole height
constexpr int leastDock = 96;
constexpr int mostDock = 240;
constexpr double fourShares[] = {0.30, 0.22, 0.26, 0.22}; // of the instruments' width
constexpr double threeShares[] = {0.32, 0.33, 0.35};
constexpr double twoShares[] = {0.48, 0.52};
constexpr int leastFour = 1800; // width for four consoles in a row whose messages can be read
constexpr int leastThree = 1350;
constexpr int setupHeight = 686; // of all sections, open, and the caption

void PlaceInstruments(Layout& layout, const Box& area) noexcept
{
    const int split = area.top + static_cast<int>((area.Height() - gap) * upperShare);
    const int inner = area.Width() - 2 * gap;
    const int first = static_cast<int>(inner * depthShare);
    const int second = (inner - first) / 2;

    const int x2 = area.left + first + gap;
    const int x3 = x2 + second + gap;
    const auto upper = [&](int left, int right) { return Box{left, area.top, right, split}; };
    const auto lower = [&](int left, int right) { return Box{left, split + gap, right, area.bottom}; };
    layout.depth = upper(area.left, x2 - gap);
    layout.track = lower(area.left, x2 - gap);
    layout.heading = upper(x2, x3 - gap);
    layout.position = lower(x2, x3 - gap);
    layout.wind = upper(x3, area.right);
    layout.motion = lower(x3, area.right);
    layout.scale = std::min(static_cast<double>(area.Width()) / instrumentWidth,
                            static_cast<double>(area.Height()) / instrumentHeight);
}

void PlaceDocks(std::span<Box> docks, const Box& area, std::span<const double> shares) noexcept
{
    const int inner = area.Width() - static_cast<int>(docks.size() - 1) * gap;
    int left = area.left;
    for (std::size_t i = 0; i < docks.size(); ++i) {
        const bool isLast = i + 1 == docks.size();
        const int right = isLast ? area.right : left + static_cast<int>(inner * shares[i]);
        docks[i] = {left, area.top, right, area.bottom};
        left = right + gap;
    }
}

} // namespace

Layout Layout::Of(int width, int height) noexcept
{
    width = std::max(width, leastWidth);
    height = std::max(height, leastHeight);

    Layout layout;
    layout.header = {0, 0, width, headerHeight};
    layout.alarms = {0, layout.header.bottom, width, layout.header.bottom + alarmHeight};
    layout.footer = {0, height - footerHeight, width, height};

    const int top = layout.alarms.bottom + gap;
    const int bottom = layout.footer.top;
    layout.setup = {width - gap - setupWidth, top, width - gap, bottom};

    const int right = layout.setup.left - gap;
    const int dock = std::clamp(static_cast<int>(height * dockShare), leastDock, mostDock);
    const Box row{gap, bottom - dock, right, bottom};
    if (layout.setup.Height() >= setupHeight + gap + leastDock) {
        Box& below = layout.docks.back();
        below = layout.setup;
        layout.setup.bottom = below.top + setupHeight;
        below.top = layout.setup.bottom + gap;
    }
    if (row.Width() < leastThree)
        PlaceDocks(std::span(layout.docks).first(2), row, twoShares);
    else if (layout.setup.bottom < bottom || row.Width() < leastFour)
        PlaceDocks(std::span(layout.docks).first(3), row, threeShares);
    else
        PlaceDocks(layout.docks, row, fourShares);
    PlaceInstruments(layout, {gap, top, right, bottom - dock - gap});
    return layout;
}

} // namespace demo
