#pragma once

namespace vant::detail
{

/** Looks for an element from a cursor on, wrapping from the tail to the head, until it is back at the element
 *  where it began. The cursor is advanced past each element examined, so that whoever asks for the elements
 *  in their order finds each at the first comparison. A null cursor stands for the head.
 *
 *  A second wrap ends the search too: a position that a list operation unlinked meanwhile would never be met
 *  again.
 *
 *  @param list     gives `GetHeadPos()` and `GetNext(position&)`, which may answer null for an element
 *  @param cursor   where the search begins; left behind the element found, or where it was
 *  @param matches  told an element, answers whether it is the one
 *  @return the element, or null */
template <class List, class Position, class Matches>
auto FindFromCursor(List& list, Position& cursor, Matches matches) -> decltype(list.GetNext(cursor))
{
    if (cursor == nullptr)
        cursor = list.GetHeadPos();
    const Position begin = cursor;
    for (int wraps = 0; cursor != nullptr && wraps < 2;) {
        auto* const element = list.GetNext(cursor);
        if (cursor == nullptr) {
            cursor = list.GetHeadPos();
            ++wraps;
        }
        if (element != nullptr && matches(*element))
            return element;
        if (cursor == begin)
            break;
    }
    return nullptr;
}

} // namespace vant::detail
