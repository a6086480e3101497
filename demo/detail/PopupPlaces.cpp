#include "demo/detail/PopupPlaces.h"

#include <algorithm>

namespace demo
{
namespace
{

int Pixels(int units, double scale) noexcept
{
    return static_cast<int>(units * scale + 0.5);
}

} // namespace

PopupPlaces PopupPlaces::Beside(const Box& bridge, const Box& work, double scale) noexcept
{
    const Box seen = Overlap(bridge, work);
    const int wide = std::min(Pixels(surveyWidth, scale), seen.Width());
    const int high = std::min(Pixels(surveyHeight, scale), seen.Height());
    const int surveyLeft = seen.left + (seen.Width() - wide) / 2;
    const int surveyTop = seen.top + (seen.Height() - high) / 2;
    const Box survey{surveyLeft, surveyTop, surveyLeft + wide, surveyTop + high};
    if (work.right - bridge.right >= Pixels(leastWidth, scale)) {
        const int last = work.bottom - Pixels(coloursHeight, scale);
        const int middle = (work.top + last) / 2;
        const auto row = [&](int top, int bottom) { return Box{bridge.right, top, work.right, bottom}; };
        return {row(work.top, middle), row(middle, last), row(last, work.bottom), survey};
    }
    if (work.bottom - bridge.bottom >= Pixels(leastHeight, scale)) {
        const int left = std::max(bridge.left, work.left);
        const int right = std::min(bridge.right, work.right);
        const int colours = Pixels(coloursWidth, scale);
        const int first = left + (right - left - colours) / 2;
        const auto column = [&](int from, int to) { return Box{from, bridge.bottom, to, work.bottom}; };
        return {column(left, first), column(first + colours, right), column(first, first + colours), survey};
    }
    constexpr int width = 560;
    constexpr int height = 400;
    constexpr int step = 48;
    const auto at = [&](int units, int w, int h) {
        const int right = seen.right - Pixels(units, scale);
        const int bottom = seen.bottom - Pixels(units, scale);
        return Box{std::max(right - Pixels(w, scale), seen.left),
                   std::max(bottom - Pixels(h, scale), seen.top), right, bottom};
    };
    return {at(3 * step, width, height), at(2 * step, width, height), at(step, coloursWidth, coloursHeight),
            survey};
}

Box BridgePlace(int width, int height, int leastHeight, const Box& work, double scale) noexcept
{
    width = std::min(width, work.Width());
    height = std::min(height, work.Height());
    const int left = work.left + (work.Width() - width) / 2;
    const int top = work.top + (work.Height() - height) / 2;
    const Box middle{left, top, left + width, top + height};
    if (work.Width() - width >= Pixels(PopupPlaces::leastWidth, scale))
        return {work.left, top, work.left + width, top + height};
    const int below = std::max(work.Height() - height, Pixels(PopupPlaces::leastHeight, scale));
    if (work.Height() - below < leastHeight)
        return middle;
    return {left, work.top, left + width, work.bottom - below};
}

} // namespace demo
