// CEGrid: editing.
#include "controls/CEGrid.h"

#include "controls/detail/GridEdit.h"
#include "platform/Vant.h"

#include <algorithm>

namespace
{

constexpr int alarmIncorrect = 40; // as of any field

} // namespace

CEEdit* CEGrid::Editor() const noexcept
{
    return m_editing ? m_edit.get() : nullptr;
}

int CEGrid::BeginEdit()
{
    if (!m_hWnd || m_committing || !EndEdit(true))
        return 0;
    SyncLayout();
    const Cell at = m_sel.Current();
    const int row = CurRow();
    if (!IsEditable(row, at.col))
        return 0;
    ShowPlace(at.row, at.col);
    const CEVal* const val = ValueAt(row, at.col);
    if (!val)
        return 0;
    const CString shown = val->GetText(0);
    m_lastEdit = std::move(m_edit);
    m_edit = std::make_unique<vant::detail::GridEdit>(*this, *val);
    m_edit->style = style;
    m_edit->style.align = GetCol(at.col)->DrawAlign() == DT_CENTER ? 1 : 0;
    m_edit->Create(m_edit->WndStyle(), Dpi().ToPx(CellRc(row, at.col)), this, 1);
    if (!m_edit->m_hWnd)
        return 0;
    m_editing = true;
    m_editRow = row;
    m_editCol = at.col;
    m_edit->Begin(shown);
    if (::GetFocus() == m_edit->m_hWnd)
        return 1;
    EditLost();
    return 0;
}

int CEGrid::EndEdit(bool store)
{
    if (!m_editing || m_committing)
        return 1;
    const HWND self = m_hWnd;
    m_taken = !store;
    if (!store)
        m_edit->escaped = 1;
    // Losing the focus stores.
    if (::GetFocus() == m_edit->m_hWnd)
        SetFocus();
    if (!::IsWindow(self))
        return 1;
    if (m_editing)
        EditLost();
    return m_taken ? 1 : 0;
}

/** Stores what is valid where the cell's value is now. A callback may destroy the grid. */
void CEGrid::Commit(const CString& typed)
{
    const HWND self = m_hWnd;
    const CEVal* const found = ValueAt(m_editRow, m_editCol);
    if (!found)
        return;
    CEVal val(*found);
    const bool isGiven =
        found->pVal == &m_given.text || found->pVal == &m_given.num || found->pVal == &m_givenWhole;
    m_committing = true;
    val.SetText(typed);
    // The variables of what was given are the grid's own, which a callback may destroy.
    CEGridCell given = m_given;
    int whole = m_givenWhole;
    if (isGiven) {
        if (val.pVal == &m_givenWhole) {
            given.num = whole;
            val.InitVal(&whole);
        } else {
            val.InitVal(val.pVal == &m_given.text ? static_cast<void*>(&given.text) : &given.num);
        }
        CString reason;
        const bool taken = m_put && (m_source->*m_put)(given, reason);
        if (!::IsWindow(self))
            return;
        if (!taken) {
            Vant::Alarm(alarmIncorrect, 1, L"Incorrect Text: %s", static_cast<LPCWSTR>(reason));
            return;
        }
    }
    m_taken = true;
    val.Execute();
}

void CEGrid::EditLost()
{
    m_editing = false;
    m_committing = false;
    m_editRow = m_editCol = -1;
    if (m_edit && m_edit->m_hWnd)
        m_edit->ShowWindow(SW_HIDE);
    Invalidate(FALSE);
}

/** Keeps the field on its cell; out of sight while that is not in view. */
void CEGrid::PlaceEditor()
{
    if (!m_editing || !m_edit->m_hWnd)
        return;
    CRect r = Dpi().ToPx(CellRc(m_editRow, m_editCol));
    if (r.IsRectEmpty())
        r = CRect(-2, -2, -1, -1);
    CRect now;
    m_edit->GetWindowRect(&now);
    ScreenToClient(&now);
    if (now != r)
        m_edit->MoveWindow(&r);
}

/** Goes to the next cell that can be edited, of this row or the one after it. */
bool CEGrid::NextEditable(int step)
{
    Cell cell = m_sel.Current();
    for (int rows = 0; rows < 2;) {
        cell.col = m_layout.Next(cell.col, step);
        if (cell.col < 0) {
            ++rows;
            cell.row += step;
            cell.col = step > 0 ? -1 : ColCount();
            if (cell.row < 0 || cell.row >= m_rows)
                return false;
            continue;
        }
        if (IsEditable(RowAt(cell.row), cell.col)) {
            const HWND self = m_hWnd;
            GoTo(cell, false);
            return ::IsWindow(self) != FALSE;
        }
    }
    return false;
}

/** A key has ended the edit. */
void CEGrid::FinishEdit(UINT key, bool shift)
{
    const HWND self = m_hWnd;
    const bool taken = EndEdit(key != VK_ESCAPE) != 0;
    if (key == VK_ESCAPE || !taken || !::IsWindow(self))
        return;
    Cell cell = m_sel.Current();
    switch (key) {
    case VK_TAB:
        if (NextEditable(shift ? -1 : 1))
            BeginEdit();
        break;
    case VK_UP:
        cell.row -= 1;
        GoTo(cell, false);
        break;
    default:
        cell.row += 1;
        GoTo(cell, false);
        break;
    }
}
