#pragma once

namespace vant::detail
{

/** Sides of a rectangle; which one a list opens on. The opposite of a side differs in the lowest bit. */
enum class Side { Below, Above, Right, Left };

/** A rectangle, in pixels of the screen; its right and bottom edges are outside. */
struct ScreenBox {
    int left = 0, top = 0, right = 0, bottom = 0;
    bool operator==(const ScreenBox&) const noexcept = default;
};

/** What is to open beside a box. */
struct DropSize {
    int along;  ///< pixels away from the box that are wanted
    int across; ///< pixels along the box's edge; never changed
    int least;  ///< pixels away from the box that are of use at all
};

/** Where it opens: on the wanted side if it has room there, else on the opposite one if there is more room,
 * and then no longer than the room is. It begins where the box does, and is moved into the area as a whole if
 * that does not do.
 *  @param area  of the screen that may be used */
ScreenBox PlaceDrop(const ScreenBox& box, const ScreenBox& area, Side wanted, DropSize size) noexcept;

} // namespace vant::detail
