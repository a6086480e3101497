#include "controls/detail/RowScroll.h"

#include <algorithm>
#include <cstdint>

namespace vant::detail
{

void RowScroll::SetRows(int rows) noexcept
{
    m_rows = std::max(rows, 0);
    ScrollTo(m_first);
}

void RowScroll::SetPage(int rows) noexcept
{
    m_page = std::max(rows, 1);
    ScrollTo(m_first);
}

void RowScroll::ScrollTo(int first) noexcept
{
    m_first = std::clamp(first, 0, MaxFirst());
}

void RowScroll::Show(int row) noexcept
{
    if (row < m_first)
        ScrollTo(row);
    else if (row >= m_first + m_page)
        ScrollTo(row - m_page + 1);
}

RowScroll::Span RowScroll::Thumb(int length, int least) const noexcept
{
    if (MaxFirst() == 0 || length <= 0)
        return {};
    const auto share = static_cast<int>(std::int64_t{length} * m_page / m_rows);
    const int thumb = std::min(std::max(share, least), length);
    return {static_cast<int>(std::int64_t{length - thumb} * m_first / MaxFirst()), thumb};
}

int RowScroll::FirstAt(int from, int length, int least) const noexcept
{
    const int way = length - Thumb(length, least).length;
    if (MaxFirst() == 0 || way <= 0)
        return 0;
    const auto first =
        (std::int64_t{std::clamp(from, 0, way)} * MaxFirst() * 2 + way) / (std::int64_t{way} * 2);
    return static_cast<int>(first);
}

} // namespace vant::detail
