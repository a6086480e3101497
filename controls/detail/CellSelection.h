#pragma once

#include <utility>
#include <vector>

namespace vant::detail
{

/** A place in a grid; -1 for none. */
struct GridCell {
    int row = -1;
    int col = -1;
    bool operator==(const GridCell&) const = default;
};

/** Cells from a corner to the opposite one, both included. */
struct CellRange {
    int top, left, bottom, right;
    bool operator==(const CellRange&) const = default;
    bool Has(int row, int col) const noexcept
    {
        return row >= top && row <= bottom && col >= left && col <= right;
    }
};

/** What is selected in a grid: one cell that is the current one, and any number of ranges. The last of them
 * reaches from the anchor, where the selection began, to the current cell, until something ends that. Rows
 * are counted as they are shown. */
class CellSelection
{
public:
    bool wholeRows = false; ///< what is selected from now on are whole rows

    /** Takes the ranges back to what there is. The current cell is none only while there are no cells. */
    void SetSize(int rows, int cols);

    GridCell Current() const noexcept { return m_current; }
    const std::vector<CellRange>& Ranges() const noexcept { return m_ranges; }
    bool Has(int row, int col) const noexcept;
    /** Whether any cell of the row is selected. */
    bool HasRow(int row) const noexcept;

    /** Selects a cell, or its row, alone. Like all that follow, it takes the nearest cell there is. */
    void Go(GridCell cell, bool row = false);
    /** Selects from the anchor to a cell; with `row` it is rows from then on. */
    void Extend(GridCell cell, bool row = false);
    /** Takes a cell, or its row, into the selection or out of it. */
    void Toggle(GridCell cell, bool row = false);
    /** Selects everything; the current cell stays. */
    void All();

    /** @name What the rows do that are selected: they move along @{ */
    void InsertRows(int at, int count);
    void RemoveRows(int at, int count);
    /** @} */

    /** First and last of the rows with a selected cell, in order and without overlap. */
    std::vector<std::pair<int, int>> RowSpans() const;
    /** Whether any cell of each column is selected. */
    std::vector<bool> Columns() const;

private:
    GridCell Nearest(GridCell cell) const noexcept;
    CellRange Between(GridCell a, GridCell b) const noexcept;
    void Subtract(const CellRange& hole);

    int m_rows = 0;
    int m_cols = 0;
    GridCell m_current;
    GridCell m_anchor;
    bool m_byRow = false; // the range from the anchor is of rows
    bool m_open = false;  // the last range reaches from the anchor to the current cell
    std::vector<CellRange> m_ranges;
};

} // namespace vant::detail
