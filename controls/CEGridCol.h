#pragma once

#include "core/VantApi.h"
#include "values/CEVal.h"

#include <cstddef>
#include <vector>

/** A column of a grid: what it shows, and how, for all of its cells.
 *
 *  It is a value (CEVal) that the grid binds to one row after the other: the type, the units, decimals, the
 * scale, the range, the mutex and the enable condition count for every cell, and the callbacks are called
 * after any of its cells was edited, CEGrid::CurRow() being the row. Without a mutex of its own it uses the
 * grid's. Its `tip` is the tip of the heading.
 *
 *  The cells are members of the records of an array (InitRows()), or come from the grid's source
 * (CEGrid::SetSource()); any one of them may be bound to a variable of its own (CEGrid::InitCell()). Columns
 * belong to their grid. */
class VANT_API CEGridCol : public CEVal
{
public:
    /** Values of #align. */
    enum Align {
        alignAuto,   ///< numbers to the right, texts to the left
        alignLeft,   ///< to the left
        alignCentre, ///< centred
        alignRight,  ///< to the right
    };

    CEGridCol() = default;
    CEGridCol(const CEGridCol&) = delete;
    CEGridCol& operator=(const CEGridCol&) = delete;
    virtual ~CEGridCol() = default;

    /** @name Fields
     *  What is changed while the grid is shown is seen after CEGrid::Update(). @{ */
    CString heading;       ///< above the cells, followed by the label of the units
    CString name;          ///< key of the settings and of CEGrid::FindCol(); at first the heading
    int width = 80;        ///< units; the user may change it
    int align = alignAuto; ///< Align, of cells and heading
    int readOnly = 0;      ///< non-zero: the user cannot edit its cells
    int hidden = 0;        ///< non-zero: not shown, and never the current one
    int sortable = 1;      ///< non-zero: a click on the heading sorts
    /** @} */

    /** Makes the column show one variable of each record of an array.
     *  @param first  the variable in the first record, of any type that CEVal::Init() takes; null: no array
     *  @param stride  bytes from one record to the next
     *  @code col->InitRows(&m_points[0].depth, sizeof m_points[0]); @endcode
     *  The array must have a record for each row of the grid and stay where it is; when it has moved it is to
     * be bound again before the grid is drawn or used. */
    template <class T>
    void InitRows(T* first, std::size_t stride = sizeof(T))
    {
        T typeOnly{};
        Init(typeOnly);
        SetArray(first, stride);
    }

    /** Whether the cells are numbers. */
    bool IsNumber() const noexcept;
    /** DT_LEFT, DT_CENTER or DT_RIGHT. */
    unsigned DrawAlign() const noexcept;
    /** Whether the enable condition lets the user edit. */
    bool IsAllowed() const noexcept { return !enIf || !pEnVar || *pEnVar == enVal; }

private:
    friend class CEGrid;

    void SetArray(void* first, std::size_t stride);
    void* AddressOf(int row) const noexcept;

    void* m_first = nullptr; // of the array; null: none
    std::size_t m_stride = 0;
};

/** A cell on its way between a grid and the object that has the rows. */
struct CEGridCell {
    int row = 0;           ///< from 0
    int col = 0;           ///< index of the column, in the order of CEGrid::AddCol()
    CString text;          ///< of a column of texts
    double num = -32768.0; ///< of a column of numbers, native units; -32768 for missing data
};
