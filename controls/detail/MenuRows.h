#pragma once

#include <vector>

namespace vant::detail
{

/** Where the rows of a menu are, which differ in height, and which of them are in view if the menu is higher
 * than the screen: then a row at either end scrolls. Units from the top of the rows. */
class MenuRows
{
public:
    static constexpr int arrowH = 24; ///< of a row that scrolls

    /** Takes over the rows, and scrolls to the top. */
    void Set(std::vector<int> heights);
    /** @param room  height that there is */
    void SetRoom(int room) noexcept;

    int Count() const noexcept { return static_cast<int>(m_heights.size()); }
    int Total() const noexcept;
    /** Whether not all rows are in view, and the two arrows are. */
    bool IsScrolled() const noexcept { return Total() > m_room; }
    int First() const noexcept { return m_first; }
    bool AtEnd() const noexcept { return m_first >= MaxFirst(); }
    /** @return whether it has moved */
    bool ScrollTo(int first) noexcept;
    /** Scrolls as little as is needed to have a row in view. @return whether it has moved */
    bool Show(int row) noexcept;

    /** Top of a row; it is in view if that and its end are between the arrows. */
    int Top(int row) const noexcept;
    int Height(int row) const noexcept;
    bool IsInView(int row) const noexcept;
    /** The row at a height; -1 for none, an arrow included. */
    int RowAt(int y) const noexcept;
    /** Which arrow is at a height: -1 for the upper one, 1 for the lower one, 0 for none. */
    int ArrowAt(int y) const noexcept;

private:
    int MaxFirst() const noexcept;
    int Bottom() const noexcept { return m_room - (IsScrolled() ? arrowH : 0); }

    std::vector<int> m_heights;
    int m_room = 0;
    int m_first = 0;
};

} // namespace vant::detail
