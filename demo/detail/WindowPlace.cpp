#include "demo/detail/WindowPlace.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace demo
{
namespace
{

constexpr int gripWidth = 120; // pixels of the title bar that must be within reach
constexpr int gripHeight = 24;

bool IsWithinReach(const Box& window, const Box& area) noexcept
{
    const Box title{window.left, window.top, window.right, window.top + gripHeight};
    const Box reach = Overlap(title, area);
    return reach.Height() == gripHeight && reach.Width() >= std::min(gripWidth, window.Width());
}

std::int64_t Gap(int low, int high, int areaLow, int areaHigh) noexcept
{
    const std::int64_t before = std::int64_t{areaLow} - high;
    const std::int64_t after = std::int64_t{low} - areaHigh;
    return std::max({before, after, std::int64_t{0}});
}

std::int64_t Distance(const Box& window, const Box& area) noexcept
{
    return Gap(window.left, window.right, area.left, area.right) +
           Gap(window.top, window.bottom, area.top, area.bottom);
}

} // namespace

Box KeepOnScreen(const Box& window, std::span<const Box> areas) noexcept
{
    const Box* nearest = nullptr;
    std::int64_t best = std::numeric_limits<std::int64_t>::max();
    for (const Box& area : areas) {
        if (IsWithinReach(window, area))
            return window;
        const std::int64_t distance = Distance(window, area);
        if (distance < best) {
            best = distance;
            nearest = &area;
        }
    }
    if (nearest == nullptr)
        return window;

    const int width = std::min(window.Width(), nearest->Width());
    const int height = std::min(window.Height(), nearest->Height());
    const int left = std::clamp(window.left, nearest->left, nearest->right - width);
    const int top = std::clamp(window.top, nearest->top, nearest->bottom - height);
    return {left, top, left + width, top + height};
}

} // namespace demo
