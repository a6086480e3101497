#include "controls/detail/MenuRows.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace vant::detail
{

void MenuRows::Set(std::vector<int> heights)
{
    m_heights = std::move(heights);
    m_room = Total();
    m_first = 0;
}

void MenuRows::SetRoom(int room) noexcept
{
    m_room = room;
    ScrollTo(m_first);
}

int MenuRows::Total() const noexcept
{
    return std::accumulate(m_heights.begin(), m_heights.end(), 0);
}

/** The first row that leaves none out behind the last one in view. */
int MenuRows::MaxFirst() const noexcept
{
    if (!IsScrolled())
        return 0;
    int row = Count();
    for (int room = m_room - 2 * arrowH; row > 0 && Height(row - 1) <= room; --row)
        room -= Height(row - 1);
    return std::min(row, Count() - 1);
}

bool MenuRows::ScrollTo(int first) noexcept
{
    const int before = std::exchange(m_first, std::clamp(first, 0, std::max(MaxFirst(), 0)));
    return m_first != before;
}

bool MenuRows::Show(int row) noexcept
{
    if (row < 0 || row >= Count() || IsInView(row))
        return false;
    if (row < m_first)
        return ScrollTo(row);
    int first = m_first;
    for (int beyond = Top(row) + Height(row) - Bottom(); beyond > 0 && first < row; ++first)
        beyond -= Height(first);
    return ScrollTo(first);
}

int MenuRows::Height(int row) const noexcept
{
    return m_heights[static_cast<std::size_t>(row)];
}

int MenuRows::Top(int row) const noexcept
{
    int top = IsScrolled() ? arrowH : 0;
    for (int i = m_first; i < row; ++i)
        top += Height(i);
    for (int i = row; i < m_first; ++i)
        top -= Height(i);
    return top;
}

bool MenuRows::IsInView(int row) const noexcept
{
    return row >= m_first && Top(row) + Height(row) <= Bottom();
}

int MenuRows::RowAt(int y) const noexcept
{
    if (y < (IsScrolled() ? arrowH : 0))
        return -1;
    int top = Top(m_first);
    for (int row = m_first; row < Count() && top + Height(row) <= Bottom(); ++row) {
        top += Height(row);
        if (y < top)
            return row;
    }
    return -1;
}

int MenuRows::ArrowAt(int y) const noexcept
{
    if (!IsScrolled() || y < 0 || y >= m_room)
        return 0;
    if (y < arrowH)
        return -1;
    return y >= Bottom() ? 1 : 0;
}

} // namespace vant::detail
