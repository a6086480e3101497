#pragma once

#include "controls/CECtrl.h"
#include "controls/CEGridCol.h"
#include "controls/detail/CellSelection.h"
#include "controls/detail/ColumnLayout.h"
#include "controls/detail/RowScroll.h"
#include "controls/detail/SortIndex.h"
#include "controls/detail/WheelTurn.h"
#include "core/VantApi.h"

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

class CEEdit;

namespace vant::detail
{
class GridEdit;
}

/** A table of values that the user can look through, sort, edit and copy.
 *
 *  Columns come first (AddCol()), then the number of rows (SetRows()). The values stay where they are:
 * members of an array of records, variables of single cells, or whatever a source gives for a row and a
 * column. Only cells in view are asked for and drawn, so a million rows scroll like ten.
 *
 *  @code
 *  auto* grid = cat->InsGrid(400, L"Soundings", 7, 250);
 *  grid->AddCol(L"Line")->InitRows(&m_log[0].line, sizeof m_log[0]);
 *  CEGridCol* depth = grid->AddCol(L"Depth");
 *  depth->InitRows(&m_log[0].depth, sizeof m_log[0]);
 *  depth->units = 0; // shown in the heading, as the unit system has it
 *  depth->SetRange(0, 200);
 *  grid->SetRows(m_log.size());
 *  @endcode
 *
 *  Mouse: a press selects, with Shift from where the selection began, with Ctrl in addition; a press on a
 * row's number selects the row. A click on a heading sorts upwards, the next one downwards, the third not at
 * all. A heading's right border sets the width, a double click on it fits the width to what is in view. A
 * double click on a cell edits it. Wheels scroll both ways, with Shift sideways.
 *
 *  Keys: arrows, Home and End (of the row; with Ctrl of the table), Page Up and Page Down, with Shift to
 * select; Shift and blank selects rows, Ctrl+A everything, Ctrl+C copies, with Shift too the headings as
 * well. Tab goes through the cells of a row and then on to the next control. F2, Enter or typing edits the
 * current cell.
 *
 *  A cell is edited in a field (CEEdit), with its rules: characters that no value can have are not let in,
 * what is not valid is blue, and raises alarm 40 when the field is left. Enter stores and goes down, Tab
 * stores and goes on with the next cell that can be edited, Up and Down store and move, Escape gives up. A
 * text that was not changed is not stored. Sorting does not follow an edit: the row stays where the user sees
 * it.
 *
 *  A number that the grid is bound to holds the current row, -1 for none: it is stored, the callbacks are
 * called and the parent is told by WM_COMMAND with LBN_SELCHANGE when the user goes to another row.
 * LBN_DBLCLK tells of a double click, or Enter, on a cell that cannot be edited.
 *
 *  Rows and columns count from 0, rows in the application's order however they are sorted. All lengths are
 * units (see CDpi). Belongs to the UI thread. */
class VANT_API CEGrid : public CECtrl
{
    DECLARE_DYNAMIC(CEGrid)

public:
    /** Members of a source, cast to members of CObject. Columns of numbers take and give `num`, all others
     * `text`; whole numbers are rounded, and know no missing data. @{ */
    /** Gives the content of a cell. Called for every cell in view whenever it is drawn. */
    using GetFn = void (CObject::*)(CEGridCell& cell);
    /** Stores what the user entered, which is valid. @return 1; or 0 if it cannot be, and why in `reason`,
     * which alarm 40 then shows */
    using PutFn = int (CObject::*)(const CEGridCell& cell, CString& reason);
    /** Puts the rows in order. @param dir  SortDir  @return 1; or 0 for a column that it cannot sort by */
    using SortFn = int (CObject::*)(int col, int dir);
    /** @} */

    /** How the rows are sorted. */
    enum SortDir {
        sortDown = -1, ///< the largest first
        sortNone = 0,  ///< as the rows come
        sortUp = 1,    ///< the smallest first
    };

    CEGrid();
    ~CEGrid() override;

    /** @name Fields */
    ///@{
    int rowH = 20;      ///< height of a row
    int hdrH = 24;      ///< height of the headings; 0: none
    int rowNumbers = 0; ///< non-zero: the rows' numbers, from 1, stand at the left
    int wholeRows = 0;  ///< non-zero: what the user selects are whole rows
    int copyHdr = 0;    ///< non-zero: Ctrl+C copies the headings too
    CString emptyText;  ///< shown in a grid without rows
    /** @} */

    /** @name Columns
     *  Pointers to columns stay valid until RemoveCols(). @{ */
    /** Adds a column at the right. @param typeCode  of what the source gives (see CEVal): 1 for texts, 4 for
     * whole numbers, 9 for numbers; InitRows() sets another one */
    CEGridCol* AddCol(const CString& heading, int width = 80, int typeCode = 1);
    /** Removes all columns, and with them the bound cells and the sorting. */
    void RemoveCols();
    /** How many columns there are. */
    int ColCount() const noexcept { return static_cast<int>(m_cols.size()); }
    /** Null outside 0 to ColCount() - 1. */
    CEGridCol* GetCol(int col) const noexcept;
    /** The index of the first column of that name; -1 if there is none. */
    int FindCol(const CString& colName) const;
    /** Sets the width to what the heading and the rows in view need. */
    void FitCol(int col);
    /** @} */

    /** @name Rows */
    ///@{
    /** How many rows there are. */
    int Rows() const noexcept { return m_rows; }
    /** Sets the number of rows, which come or go at the end. */
    void SetRows(int count);
    /** Tells that rows have been inserted or removed: the selection, the order, bound cells and the edit that
     * is going on move along, and so does the bound variable if it holds the current row. New rows stand last
     * while the grid is sorted. An edit of a row that goes is given up. @{ */
    void RowsInserted(int at, int count);
    void RowsRemoved(int at, int count);
    /** @} */
    /** Lets an object give, take and sort what no array holds. The target must outlive the grid or be
     * replaced by null. @param put  null: cells of the source cannot be edited  @param sort  null: the grid
     * sorts, for which it asks for every cell of the column */
    void SetSource(CObject* target, GetFn get, PutFn put = nullptr, SortFn sort = nullptr);
    /** Binds one cell to a variable, which must outlive that. @return its value, which has the units,
     * decimals, scale, range and callbacks of the column as they are now, and may be given others: it stays
     * valid until its row is removed, or the columns are; null outside the grid */
    template <class T>
    CEVal* InitCell(int row, int col, T& variable)
    {
        CEVal* const val = MakeCell(row, col);
        if (val)
            val->Init(variable);
        return val;
    }
    /** The text that a cell shows, without units; empty outside the grid. */
    CString CellText(int row, int col);
    /** Whether the user can edit a cell. */
    bool IsEditable(int row, int col);
    /** @} */

    /** @name Order */
    ///@{
    /** Sorts by a column, the rows themselves staying where they are, and keeps the current cell. Data that
     * is missing stands last. The selection is the current cell alone afterwards.
     *  @param dir  SortDir  @return 1; or 0 if the column cannot be sorted by, and while a cell of rows that
     * their source puts in order is edited */
    int Sort(int col, int dir);
    /** Sorts again, as the values are now. */
    void SortAgain() { Sort(m_sortCol, m_sortDir); }
    /** The column that the rows are sorted by; -1 for none. */
    int SortCol() const noexcept { return m_sortCol; }
    /** SortDir of that column. */
    int SortOrder() const noexcept { return m_sortDir; }
    /** The row that is shown at a place from the top, and the place of a row. @{ */
    int RowAt(int place) const noexcept;
    int PlaceOf(int row) const noexcept;
    /** @} */
    /** @} */

    /** @name Selection */
    ///@{
    /** The current cell; -1 while there is none. @{ */
    int CurRow() const noexcept;
    int CurCol() const noexcept { return m_sel.Current().col; }
    /** @} */
    /** Selects a cell alone and brings it into view. No callback is called. */
    void Sel(int row, int col);
    /** Selects every cell. */
    void SelAll();
    /** Whether a cell is selected. */
    bool IsSelected(int row, int col) const noexcept;
    /** The selected cells as text: cells separated by tabs, rows by line breaks, of rows and columns with a
     * selected cell; those that are not selected are blank. */
    CString SelText(bool withHeadings);
    /** Puts SelText() on the clipboard. @return 1, or 0 after alarm 41 at level 1: "Unable to copy" */
    int Copy(bool withHeadings);
    /** @} */

    /** @name Editing */
    ///@{
    /** Edits the current cell. @return 1, or 0 if it cannot be */
    int BeginEdit();
    /** Ends the edit, storing what is valid or giving it up. @return 0 if it was not valid or not taken */
    int EndEdit(bool store);
    /** Whether a cell is being edited. */
    bool IsEditing() const noexcept { return m_editing; }
    /** The field; null while nothing is edited. */
    CEEdit* Editor() const noexcept;
    /** @} */

    /** @name Scrolling */
    ///@{
    /** The first place in view, and how many are in view completely. @{ */
    int First() const noexcept { return m_down.First(); }
    int Page() const noexcept { return m_down.Page(); }
    /** @} */
    /** How far the columns are moved to the left. */
    int Offset() const noexcept { return m_across.First(); }
    /** Scrolls both ways, as far as the content allows. */
    void ScrollTo(int first, int offset);
    /** Brings a cell into view. */
    void Show(int row, int col);
    /** Where a cell is in the client area, as far as it is in view; empty for one that is not. */
    CRect CellRc(int row, int col) const;
    /** Where a heading is likewise. */
    CRect HeadingRc(int col) const;
    /** @} */

    /** With WS_CLIPCHILDREN, for the field. */
    int Create(unsigned long wndStyle, const RECT& r, CWnd* parent, unsigned int childId) override;
    /** Goes to the row that the bound variable names, shows the values as they are now, and gives up the edit
     * of a cell that can no longer be edited. */
    void Update(int arg) override;
    /** Stores the current row in the bound variable, without a callback. */
    void Retreive() override;
    void Draw(CDC* dc) override;
    /** With WS_TABSTOP. */
    unsigned long WndStyle() const override;
    /** The whole text of the cell or heading under the mouse if it is cut, else the tip of the heading or the
     * grid. */
    void GetTip(CString& tip) override;
    /** Exchanges the widths of the columns and the order, under `aux1` and the names of the columns, every
     * character but letters and digits as an underscore; nothing while `aux1` is empty. */
    void Settings(CESetObj& obj) override;

protected:
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnCaptureChanged(CWnd* to);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg void OnMouseHWheel(UINT flags, short delta, CPoint point);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnChar(UINT character, UINT repeat, UINT flags);
    afx_msg UINT OnGetDlgCode();
    afx_msg BOOL OnSetCursor(CWnd* wnd, UINT hitTest, UINT message);
    afx_msg void OnTimer(UINT_PTR event);
    afx_msg void OnSize(UINT how, int width, int height);
    afx_msg LRESULT OnScaleChanged(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    friend class vant::detail::GridEdit;

    /** Where the parts of the grid are. */
    struct Parts {
        CRect head, numbers, cells, barDown, barAcross;
    };
    /** What the mouse holds. */
    enum class Grip { None, Cells, Rows, Heading, Border, BarDown, BarAcross };
    using Cell = vant::detail::GridCell;

    CEVal* MakeCell(int row, int col);
    const CEVal* ValueAt(int row, int col);
    bool HasCell(int row, int col) const noexcept;
    bool IsAllowed(int row, int col) const noexcept;
    bool IsSortedBySource(int col) const noexcept;
    void SortByValues(int col, bool descending);
    void StoreRow();
    void Refresh();
    std::wstring TabTextOf(bool withHeadings);
    void MoveBoundCells(int at, int count);

    Parts PartsOf() const;
    int NumbersWidth() const;
    void KeepCurrentShown();
    void SyncLayout();
    Cell CellAt(CPoint at) const;
    int HeadingAt(CPoint at) const;
    int BorderAt(CPoint at) const;
    CRect PlaceRc(int place, int col) const;
    void DrawHeadingFace(CDC& dc, const CRect& r, int cell);
    void DrawHeading(CDC& dc, int col, const CRect& r);
    void DrawHeadings(CDC& dc, const Parts& parts);
    void DrawRows(CDC& dc, const Parts& parts, int last);
    void DrawRow(CDC& dc, const Parts& parts, int place);
    void DrawCell(CDC& dc, int place, int col, const CRect& r);
    void DrawNumbers(CDC& dc, const Parts& parts, int last) const;
    void DrawBars(CDC& dc, const Parts& parts) const;
    CString HeadingText(int col) const;
    int TextWidth(const CString& text) const;

    bool TakeKey(UINT key);
    void GoTo(Cell cell, bool extend);
    void ClickHeading(int col);
    bool PressBar(const Parts& parts, CPoint at);
    bool PressHead(const Parts& parts, CPoint at);
    void PressCell(Cell cell, bool row, UINT flags);
    void Drag(CPoint at);
    void EndGrip();
    bool IsDoubleClick(CPoint at);
    bool TakeWheel(short delta, bool across);
    void RowChanged(int before);
    void Tell(int code);
    void ShowPlace(int place, int col);

    void Commit(const CString& typed);
    void EditLost();
    void PlaceEditor();
    bool NextEditable(int step);
    void FinishEdit(UINT key, bool shift);

    std::vector<std::unique_ptr<CEGridCol>> m_cols;
    std::map<std::pair<int, int>, CEVal> m_cells; // with variables of their own, by row and column
    int m_rows = 0;
    CObject* m_source = nullptr;
    GetFn m_get = nullptr;
    PutFn m_put = nullptr;
    SortFn m_sort = nullptr;
    CEGridCell m_given;   // by the source
    int m_givenWhole = 0; // the same as a whole number
    int m_sortCol = -1;
    int m_sortDir = sortNone;

    vant::detail::SortIndex m_order;
    vant::detail::CellSelection m_sel; // rows are places
    vant::detail::ColumnLayout m_layout;
    vant::detail::RowScroll m_down;
    vant::detail::RowScroll m_across; // a row is a unit
    vant::detail::WheelTurn m_wheelDown;
    vant::detail::WheelTurn m_wheelAcross;

    Grip m_grip = Grip::None;
    int m_gripAt = 0;     // where the thumb or border is held, from its own place
    int m_gripCol = -1;   // of a heading or border
    int m_widthWas = 0;   // before the border was moved
    CPoint m_mouse;       // where it was last, units
    int m_hotCol = -1;    // heading under the mouse
    CPoint m_pressAt;     // of the last press, for double clicks
    LONG m_pressTime = 0; // of that, milliseconds
    bool m_pressed = false;

    std::unique_ptr<vant::detail::GridEdit> m_edit;
    std::unique_ptr<vant::detail::GridEdit> m_lastEdit; // its handlers may still be running
    bool m_editing = false;
    bool m_committing = false;
    bool m_taken = true; // what was entered last
    int m_editRow = -1;
    int m_editCol = -1;
};
