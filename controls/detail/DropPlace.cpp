#include "controls/detail/DropPlace.h"

#include <algorithm>

namespace vant::detail
{
namespace
{

constexpr Side Opposite(Side side) noexcept
{
    return static_cast<Side>(static_cast<int>(side) ^ 1);
}

int RoomOn(Side side, const ScreenBox& box, const ScreenBox& area) noexcept
{
    switch (side) {
    case Side::Below:
        return area.bottom - box.bottom;
    case Side::Above:
        return box.top - area.top;
    case Side::Right:
        return area.right - box.right;
    default:
        return box.left - area.left;
    }
}

/** Moves a span into another; one that is too long begins where the other does. */
void MoveInto(int& from, int& to, int least, int most) noexcept
{
    const int length = to - from;
    from = std::max(std::min(from, most - length), least);
    to = from + length;
}

} // namespace

ScreenBox PlaceDrop(const ScreenBox& box, const ScreenBox& area, Side wanted, DropSize size) noexcept
{
    Side side = wanted;
    const int here = RoomOn(wanted, box, area);
    const int there = RoomOn(Opposite(wanted), box, area);
    if (here < size.along && there > here)
        side = Opposite(wanted);
    const int length = std::min(size.along, std::max(RoomOn(side, box, area), size.least));

    ScreenBox drop{box.left, box.top, box.left + size.across, box.top + size.across};
    switch (side) {
    case Side::Below:
        drop.top = box.bottom;
        drop.bottom = box.bottom + length;
        break;
    case Side::Above:
        drop.top = box.top - length;
        drop.bottom = box.top;
        break;
    case Side::Right:
        drop.left = box.right;
        drop.right = box.right + length;
        break;
    case Side::Left:
        drop.left = box.left - length;
        drop.right = box.left;
        break;
    }
    MoveInto(drop.left, drop.right, area.left, area.right);
    MoveInto(drop.top, drop.bottom, area.top, area.bottom);
    return drop;
}

} // namespace vant::detail
