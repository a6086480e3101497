#include "demo/detail/Layout.h"

namespace demo
{
namespace
{

constexpr int gap = 10; // around and between panels
constexpr int headerHeight = 52;
constexpr int alarmHeight = 26;     // its lamps are 20 high, whatever the scale
constexpr int footerHeight = 34;    // its skins are 24 high, whatever the scale
constexpr double depthShare = 0.42; // of the width, for the first column
constexpr double upperShare = 0.53; // of the height, for the upper row

} // namespace

Layout Layout::Of(int width, int height) noexcept
{
    width = std::max(width, leastWidth);
    height = std::max(height, leastHeight);

    Layout layout;
    layout.scale =
        std::min(static_cast<double>(width) / designWidth, static_cast<double>(height) / designHeight);
    layout.header = {0, 0, width, static_cast<int>(headerHeight * std::max(layout.scale, 1.0))};
    layout.footer = {0, height - footerHeight, width, height};

    layout.alarms = {0, layout.header.bottom, width, layout.header.bottom + alarmHeight};

    const int top = layout.alarms.bottom + gap;
    const int bottom = layout.footer.top - gap;
    const int split = top + static_cast<int>((bottom - top - gap) * upperShare);
    const int inner = width - 4 * gap;
    const int first = static_cast<int>(inner * depthShare);
    const int second = (inner - first) / 2;

    const int x1 = gap;
    const int x2 = x1 + first + gap;
    const int x3 = x2 + second + gap;
    const auto upper = [&](int left, int right) { return Box{left, top, right, split}; };
    const auto lower = [&](int left, int right) { return Box{left, split + gap, right, bottom}; };
    layout.depth = upper(x1, x2 - gap);
    layout.track = lower(x1, x2 - gap);
    layout.heading = upper(x2, x3 - gap);
    layout.position = lower(x2, x3 - gap);
    layout.wind = upper(x3, width - gap);
    layout.motion = lower(x3, width - gap);
    return layout;
}

} // namespace demo
