#include "controls/CEGrid.h"

#include "controls/detail/BoundNumber.h"
#include "controls/detail/GridEdit.h"
#include "values/detail/ValueType.h"

#include <algorithm>
#include <limits>

using vant::detail::TypeOf;
using vant::detail::ValueType;

IMPLEMENT_DYNAMIC(CEGrid, CECtrl)

CEGrid::CEGrid()
{
    ctrlType = typeGrid;
}

CEGrid::~CEGrid()
{
    // The variables may be gone already.
    if (m_edit)
        m_edit->escaped = 1;
    if (m_hWnd)
        DestroyWindow();
}

int CEGrid::Create(unsigned long wndStyle, const RECT& r, CWnd* parent, unsigned int childId)
{
    // A window that is destroyed under the mouse need not be told that it has lost it.
    EndGrip();
    m_pressed = false;
    m_hotCol = -1;
    return CECtrl::Create(wndStyle | WS_CLIPCHILDREN, r, parent, childId);
}

unsigned long CEGrid::WndStyle() const
{
    return CECtrl::WndStyle() | WS_TABSTOP | keepFocus;
}

CEGridCol* CEGrid::AddCol(const CString& heading, int width, int typeCode)
{
    auto col = std::make_unique<CEGridCol>();
    col->heading = col->name = heading;
    col->width = vant::detail::ColumnLayout::Fit(width);
    col->type = typeCode;
    m_cols.push_back(std::move(col));
    Refresh();
    return m_cols.back().get();
}

void CEGrid::RemoveCols()
{
    EndEdit(false);
    EndGrip();
    if (IsSortedBySource(m_sortCol))
        (m_source->*m_sort)(m_sortCol, sortNone);
    m_hotCol = -1;
    m_cols.clear();
    m_cells.clear();
    m_order.Clear();
    m_sortCol = -1;
    m_sortDir = sortNone;
    Refresh();
}

CEGridCol* CEGrid::GetCol(int col) const noexcept
{
    return col >= 0 && col < ColCount() ? m_cols[static_cast<std::size_t>(col)].get() : nullptr;
}

int CEGrid::FindCol(const CString& colName) const
{
    const auto found = std::find_if(m_cols.begin(), m_cols.end(),
                                    [&colName](const auto& col) { return col->name == colName; });
    return found != m_cols.end() ? static_cast<int>(found - m_cols.begin()) : -1;
}

bool CEGrid::HasCell(int row, int col) const noexcept
{
    return row >= 0 && row < m_rows && col >= 0 && col < ColCount();
}

void CEGrid::SetRows(int count)
{
    const int rows = std::max(count, 0);
    if (rows > m_rows)
        RowsInserted(m_rows, rows - m_rows);
    else if (rows < m_rows)
        RowsRemoved(rows, m_rows - rows);
}

/** Moves cells that are bound alone with their rows; they stay the same objects. @param count  rows that come
 * at a place; negative: that go from there */
void CEGrid::MoveBoundCells(int at, int count)
{
    decltype(m_cells) moved;
    for (auto next = m_cells.lower_bound({at, 0}); next != m_cells.end();) {
        auto cell = m_cells.extract(next++);
        if (cell.key().first < at - std::min(count, 0))
            continue;
        cell.key().first += count;
        moved.insert(moved.end(), std::move(cell));
    }
    m_cells.merge(moved);
}

void CEGrid::RowsInserted(int at, int count)
{
    at = std::clamp(at, 0, m_rows);
    count = std::min(count, std::numeric_limits<int>::max() - m_rows);
    if (count <= 0)
        return;
    MoveBoundCells(at, count);
    const bool wasEmpty = m_rows == 0;
    const bool isStored = vant::detail::NumberOf(*this) == CurRow();
    m_sel.InsertRows(m_order.IsOn() ? m_rows : at, count);
    m_order.InsertRows(at, count);
    m_rows += count;
    if (m_editRow >= at)
        m_editRow += count;
    if (isStored)
        StoreRow();
    Refresh();
    if (wasEmpty)
        SortAgain();
}

void CEGrid::RowsRemoved(int at, int count)
{
    if (at < 0 || at >= m_rows || count <= 0)
        return;
    count = std::min(count, m_rows - at);
    if (m_editing && m_editRow >= at && m_editRow < at + count)
        EndEdit(false);
    const bool isStored = vant::detail::NumberOf(*this) == CurRow();
    MoveBoundCells(at, -count);
    for (const auto& [first, last] : m_order.RemoveRows(at, count))
        m_sel.RemoveRows(first, last - first + 1);
    m_rows -= count;
    if (m_editRow >= at + count)
        m_editRow -= count;
    if (isStored)
        StoreRow();
    Refresh();
}

void CEGrid::SetSource(CObject* target, GetFn get, PutFn put, SortFn sort)
{
    EndEdit(false);
    m_source = target;
    m_get = get;
    m_put = put;
    m_sort = sort;
    Refresh();
}

CEVal* CEGrid::MakeCell(int row, int col)
{
    if (!HasCell(row, col))
        return nullptr;
    const CEGridCol& column = *GetCol(col);
    CEVal& val = m_cells.insert_or_assign({row, col}, static_cast<const CEVal&>(column)).first->second;
    if (!val.pMutex)
        val.pMutex = pMutex;
    Refresh();
    return &val;
}

/** The value of a cell, which the next call may bind elsewhere; null where there is nothing. */
const CEVal* CEGrid::ValueAt(int row, int col)
{
    if (!HasCell(row, col))
        return nullptr;
    const auto own = m_cells.find({row, col});
    if (own != m_cells.end())
        return &own->second;
    CEGridCol& column = *GetCol(col);
    if (!column.pMutex)
        column.pMutex = pMutex;
    if (column.m_first) {
        column.InitVal(column.AddressOf(row));
        return &column;
    }
    if (!m_source || !m_get)
        return nullptr;
    m_given = {};
    m_given.row = row;
    m_given.col = col;
    (m_source->*m_get)(m_given);
    if (!column.IsNumber()) {
        column.Init(m_given.text);
    } else if (vant::detail::IsIntegerType(TypeOf(column.type))) {
        m_givenWhole = 0;
        column.Init(m_givenWhole);
        vant::detail::PutNumber(column, m_given.num);
    } else {
        column.Init(m_given.num);
    }
    return &column;
}

CString CEGrid::CellText(int row, int col)
{
    const CEVal* const val = ValueAt(row, col);
    return val ? val->GetText(0) : CString();
}

/** Whether the enable condition of a cell lets the user edit it. */
bool CEGrid::IsAllowed(int row, int col) const noexcept
{
    const auto own = m_cells.find({row, col});
    if (own == m_cells.end())
        return GetCol(col)->IsAllowed();
    const CEVal& val = own->second;
    return !val.enIf || !val.pEnVar || *val.pEnVar == val.enVal;
}

bool CEGrid::IsEditable(int row, int col)
{
    if (!HasCell(row, col) || !IsEnabled())
        return false;
    const CEGridCol& column = *GetCol(col);
    if (column.readOnly || column.hidden || !IsAllowed(row, col))
        return false;
    const auto own = m_cells.find({row, col});
    const bool stored =
        own != m_cells.end() ? own->second.pVal != nullptr : column.m_first || (m_get && m_put);
    const ValueType kind = TypeOf(own != m_cells.end() ? own->second.type : column.type);
    return stored && kind != ValueType::Pointer && kind != ValueType::Int64;
}

int CEGrid::CurRow() const noexcept
{
    const int place = m_sel.Current().row;
    return place < 0 ? -1 : RowAt(place);
}

int CEGrid::RowAt(int place) const noexcept
{
    return m_order.RowAt(place);
}

int CEGrid::PlaceOf(int row) const noexcept
{
    return m_order.PlaceOf(row);
}

bool CEGrid::IsSelected(int row, int col) const noexcept
{
    return m_sel.Has(PlaceOf(row), col);
}

void CEGrid::Sel(int row, int col)
{
    if (!HasCell(row, col))
        return;
    Refresh();
    m_sel.Go({PlaceOf(row), col});
    Show(row, col);
}

void CEGrid::SelAll()
{
    Refresh();
    m_sel.All();
}

void CEGrid::StoreRow()
{
    vant::detail::PutNumber(*this, CurRow());
}

void CEGrid::Retreive()
{
    StoreRow();
}

void CEGrid::Update(int arg)
{
    if (m_editing && !IsEditable(m_editRow, m_editCol))
        EndEdit(false);
    SyncLayout();
    const double row = vant::detail::NumberOf(*this);
    if (row >= 0 && row < m_rows && static_cast<int>(row) != CurRow())
        Sel(static_cast<int>(row), std::max(CurCol(), 0));
    PlaceEditor();
    CECtrl::Update(arg);
}

/** Brings what is derived in line with columns, rows and room, and has all drawn again. */
void CEGrid::Refresh()
{
    SyncLayout();
    PlaceEditor();
    if (m_hWnd)
        Invalidate(FALSE);
}
