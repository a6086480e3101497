#pragma once

#include "controls/CEEdit.h"

#include <cstdint>

class CEGrid;

namespace vant::detail
{

/** The field in which a cell of a grid is edited. It has the cell's value with a variable of its own: what is
 * valid goes to the grid, which looks for the cell's variable only then, as it may have moved meanwhile. It
 * hides when it loses the focus. */
class GridEdit : public CEEdit
{
public:
    /** @param grid  outlives this  @param value  the cell's */
    GridEdit(CEGrid& grid, const CEVal& value);

    /** Shows a text, all of it selected, which is not stored while it stays as it is. */
    void Begin(const CString& shown);
    void Execute() override;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    CString Typed() const;
    bool TakeKey(UINT key);
    LRESULT LoseFocus(WPARAM wParam, LPARAM lParam);

    CEGrid& m_grid;
    CString m_begun;
    CString m_ownText;
    std::uint64_t m_ownNumber = 0; // room for a variable of any type
};

} // namespace vant::detail
