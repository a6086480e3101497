#include "controls/detail/CellSelection.h"

#include <algorithm>
#include <cstddef>

namespace vant::detail
{

GridCell CellSelection::Nearest(GridCell cell) const noexcept
{
    if (m_rows == 0 || m_cols == 0)
        return {};
    return {std::clamp(cell.row, 0, m_rows - 1), std::clamp(cell.col, 0, m_cols - 1)};
}

CellRange CellSelection::Between(GridCell a, GridCell b) const noexcept
{
    const auto [top, bottom] = std::minmax(a.row, b.row);
    if (wholeRows || m_byRow)
        return {top, 0, bottom, m_cols - 1};
    const auto [left, right] = std::minmax(a.col, b.col);
    return {top, left, bottom, right};
}

void CellSelection::SetSize(int rows, int cols)
{
    m_rows = std::max(rows, 0);
    m_cols = std::max(cols, 0);
    for (CellRange& range : m_ranges) {
        range.bottom = std::min(range.bottom, m_rows - 1);
        range.right = std::min(range.right, m_cols - 1);
    }
    std::erase_if(m_ranges, [](const CellRange& range) {
        return range.top > range.bottom || range.left > range.right;
    });
    m_open = m_open && !m_ranges.empty();
    const bool hadNone = m_current == GridCell();
    m_current = Nearest(m_current);
    m_anchor = Nearest(m_anchor);
    if (hadNone)
        Go(m_current);
}

bool CellSelection::Has(int row, int col) const noexcept
{
    return std::any_of(m_ranges.begin(), m_ranges.end(),
                       [row, col](const CellRange& range) { return range.Has(row, col); });
}

bool CellSelection::HasRow(int row) const noexcept
{
    return std::any_of(m_ranges.begin(), m_ranges.end(),
                       [row](const CellRange& range) { return row >= range.top && row <= range.bottom; });
}

void CellSelection::Go(GridCell cell, bool row)
{
    m_current = m_anchor = Nearest(cell);
    m_byRow = row;
    m_ranges.clear();
    m_open = m_current.row >= 0;
    if (m_open)
        m_ranges.push_back(Between(m_anchor, m_current));
}

void CellSelection::Extend(GridCell cell, bool row)
{
    if (m_anchor == GridCell())
        return Go(cell, row);
    m_current = Nearest(cell);
    m_byRow = m_byRow || row;
    if (!m_open)
        m_ranges.push_back({});
    m_open = true;
    m_ranges.back() = Between(m_anchor, m_current);
}

void CellSelection::Toggle(GridCell cell, bool row)
{
    m_current = m_anchor = Nearest(cell);
    m_byRow = row;
    if (m_current.row < 0)
        return;
    const CellRange range = Between(m_anchor, m_current);
    bool has = true;
    for (int col = range.left; col <= range.right; ++col)
        has = has && Has(range.top, col);
    m_open = !has;
    if (has)
        Subtract(range);
    else
        m_ranges.push_back(range);
}

void CellSelection::All()
{
    m_ranges.clear();
    m_open = false;
    if (m_rows > 0 && m_cols > 0)
        m_ranges.push_back({0, 0, m_rows - 1, m_cols - 1});
}

/** Cuts a hole into the ranges: what is left of one are up to four others around it. */
void CellSelection::Subtract(const CellRange& hole)
{
    std::vector<CellRange> rest;
    for (const CellRange& r : m_ranges) {
        const CellRange cut{std::max(r.top, hole.top), std::max(r.left, hole.left),
                            std::min(r.bottom, hole.bottom), std::min(r.right, hole.right)};
        if (cut.top > cut.bottom || cut.left > cut.right) {
            rest.push_back(r);
            continue;
        }
        const CellRange around[] = {{r.top, r.left, cut.top - 1, r.right},
                                    {cut.bottom + 1, r.left, r.bottom, r.right},
                                    {cut.top, r.left, cut.bottom, cut.left - 1},
                                    {cut.top, cut.right + 1, cut.bottom, r.right}};
        for (const CellRange& piece : around) {
            if (piece.top <= piece.bottom && piece.left <= piece.right)
                rest.push_back(piece);
        }
    }
    m_ranges = std::move(rest);
}

void CellSelection::InsertRows(int at, int count)
{
    const auto move = [at, count](int& row) {
        if (row >= at)
            row += count;
    };
    for (CellRange& range : m_ranges) {
        move(range.top);
        move(range.bottom);
    }
    move(m_current.row);
    move(m_anchor.row);
    SetSize(m_rows + count, m_cols);
}

void CellSelection::RemoveRows(int at, int count)
{
    // The first row that stays is where the first one was that goes.
    const auto move = [at, count](int& row) {
        if (row >= at)
            row = std::max(row - count, at);
    };
    for (CellRange& range : m_ranges) {
        move(range.top);
        // Where the last row goes, the one before what goes is the last; SetSize() drops what is left of
        // none.
        if (range.bottom >= at)
            range.bottom = std::max(range.bottom - count, at - 1);
    }
    move(m_current.row);
    move(m_anchor.row);
    SetSize(m_rows - count, m_cols);
    if (m_ranges.empty())
        Go(m_current);
}

std::vector<std::pair<int, int>> CellSelection::RowSpans() const
{
    std::vector<std::pair<int, int>> spans;
    for (const CellRange& range : m_ranges)
        spans.emplace_back(range.top, range.bottom);
    std::sort(spans.begin(), spans.end());
    std::vector<std::pair<int, int>> merged;
    for (const auto& span : spans) {
        if (!merged.empty() && span.first <= merged.back().second + 1)
            merged.back().second = std::max(merged.back().second, span.second);
        else
            merged.push_back(span);
    }
    return merged;
}

std::vector<bool> CellSelection::Columns() const
{
    std::vector<bool> used(static_cast<std::size_t>(m_cols));
    for (const CellRange& range : m_ranges) {
        for (int col = range.left; col <= range.right; ++col)
            used[static_cast<std::size_t>(col)] = true;
    }
    return used;
}

} // namespace vant::detail
