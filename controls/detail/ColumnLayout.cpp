#include "controls/detail/ColumnLayout.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>

namespace vant::detail
{

int ColumnLayout::Fit(int width) noexcept
{
    return std::clamp(width, leastWidth, mostWidth);
}

void ColumnLayout::Set(const std::vector<int>& widths)
{
    m_right.clear();
    int right = 0;
    for (const int width : widths)
        m_right.push_back(right += width);
}

int ColumnLayout::Left(int col) const noexcept
{
    return col > 0 ? Right(col - 1) : 0;
}

int ColumnLayout::Right(int col) const noexcept
{
    return col >= 0 && col < Count() ? m_right[static_cast<std::size_t>(col)] : 0;
}

int ColumnLayout::At(int x) const noexcept
{
    const auto found = std::upper_bound(m_right.begin(), m_right.end(), x);
    return x < 0 || found == m_right.end() ? -1 : static_cast<int>(found - m_right.begin());
}

int ColumnLayout::BorderAt(int x, int reach) const noexcept
{
    int nearest = -1;
    int distance = reach + 1;
    for (int col = 0; col < Count(); ++col) {
        const int from = std::abs(Right(col) - x);
        if (Width(col) > 0 && from < distance) {
            nearest = col;
            distance = from;
        }
    }
    return nearest;
}

int ColumnLayout::Next(int col, int step) const noexcept
{
    for (col += step; col >= 0 && col < Count(); col += step) {
        if (Width(col) > 0)
            return col;
    }
    return -1;
}

} // namespace vant::detail
