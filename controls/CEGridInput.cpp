// CEGrid: mouse and keyboard.
#include "controls/CEGrid.h"

#include "controls/CEEdit.h"
#include "controls/detail/KeyState.h"
#include "controls/detail/ParentCommand.h"
#include "controls/detail/PressFocus.h"
#include "controls/detail/ScrollStrip.h"

#include <algorithm>
#include <climits>
#include <cstdlib>

using vant::detail::IsKeyDown;
using vant::detail::RowScroll;
using vant::detail::ScrollStrip;

BEGIN_MESSAGE_MAP(CEGrid, CECtrl)
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
    ON_WM_CAPTURECHANGED()
    ON_WM_MOUSEWHEEL()
    ON_WM_MOUSEHWHEEL()
    ON_WM_KEYDOWN()
    ON_WM_CHAR()
    ON_WM_GETDLGCODE()
    ON_WM_SETCURSOR()
    ON_WM_TIMER()
    ON_WM_SIZE()
    ON_MESSAGE(WM_DPICHANGED_AFTERPARENT, &CEGrid::OnScaleChanged)
END_MESSAGE_MAP()

namespace
{

constexpr UINT_PTR dragTimer = 1;
constexpr UINT dragPeriod = 50; // milliseconds between two rows while the mouse is dragged beyond them
constexpr int acrossStep = 24;  // units to a step of a wheel sideways
constexpr wchar_t firstPrintable = L' ';

/** Where the thumb of a bar is to go, or how far a press beside it turns. */
int TurnTo(const RowScroll& scroll, int at, RowScroll::Span thumb)
{
    return at < thumb.from ? scroll.First() - scroll.Page() : scroll.First() + scroll.Page();
}

} // namespace

void CEGrid::Tell(int code)
{
    vant::detail::SendCommand(m_hWnd, id, code);
}

/** Tells if the user has gone to another row. The grid may be gone afterwards. */
void CEGrid::RowChanged(int before)
{
    if (CurRow() == before)
        return;
    const HWND self = m_hWnd;
    StoreRow();
    Execute();
    if (::IsWindow(self))
        Tell(LBN_SELCHANGE);
}

void CEGrid::GoTo(Cell cell, bool extend)
{
    SyncLayout();
    const int before = CurRow();
    if (extend)
        m_sel.Extend(cell);
    else
        m_sel.Go(cell);
    ShowPlace(m_sel.Current().row, m_sel.Current().col);
    Invalidate(FALSE);
    RowChanged(before);
}

bool CEGrid::TakeKey(UINT key)
{
    const bool shift = IsKeyDown(VK_SHIFT);
    const bool ctrl = IsKeyDown(VK_CONTROL);
    SyncLayout();
    Cell cell = m_sel.Current();
    const int turn = std::max(Page() - 1, 1);
    const auto beside = [&](int step) {
        const int col = m_layout.Next(cell.col, step);
        return col < 0 ? cell.col : col;
    };
    switch (key) {
    case VK_LEFT:
        cell.col = beside(-1);
        break;
    case VK_RIGHT:
        cell.col = beside(1);
        break;
    case VK_TAB:
        if (ctrl || beside(shift ? -1 : 1) == cell.col)
            return false;
        GoTo({cell.row, beside(shift ? -1 : 1)}, false);
        return true;
    case VK_UP:
        cell.row = ctrl ? 0 : cell.row - 1;
        break;
    case VK_DOWN:
        cell.row = ctrl ? m_rows - 1 : std::min(cell.row, m_rows - 2) + 1;
        break;
    case VK_PRIOR:
        cell.row -= std::min(turn, cell.row);
        break;
    case VK_NEXT:
        cell.row += std::min(turn, m_rows - 1 - cell.row);
        break;
    case VK_HOME:
        cell = {ctrl ? 0 : cell.row, m_layout.Next(-1, 1)};
        break;
    case VK_END:
        cell = {ctrl ? m_rows - 1 : cell.row, m_layout.Next(ColCount(), -1)};
        break;
    case VK_F2:
    case VK_RETURN:
        if (cell.row < 0)
            return false;
        if (!BeginEdit() && key == VK_RETURN)
            Tell(LBN_DBLCLK);
        return true;
    case VK_SPACE:
        if (!shift)
            return false;
        m_sel.Extend(cell, true);
        Invalidate(FALSE);
        return true;
    case VK_ESCAPE:
        if (m_grip != Grip::Border)
            return false;
        GetCol(m_gripCol)->width = m_widthWas;
        EndGrip();
        Refresh();
        return true;
    case 'A':
        if (ctrl)
            SelAll();
        return ctrl;
    case 'C':
    case VK_INSERT:
        if (ctrl)
            Copy(copyHdr != 0 || shift);
        return ctrl;
    default:
        return false;
    }
    GoTo(cell, shift);
    return true;
}

void CEGrid::ClickHeading(int col)
{
    if (!GetCol(col)->sortable)
        return;
    if (col != m_sortCol)
        Sort(col, sortUp);
    else
        Sort(col, m_sortDir == sortUp ? sortDown : sortNone);
}

/** A press of the scroll bars. @return whether it was theirs */
bool CEGrid::PressBar(const Parts& parts, CPoint at)
{
    const bool isDown = parts.barDown.PtInRect(at) != FALSE;
    if (!isDown && !parts.barAcross.PtInRect(at))
        return false;
    const RowScroll& scroll = isDown ? m_down : m_across;
    const int along = static_cast<int>(isDown ? at.y - parts.barDown.top : at.x - parts.barAcross.left);
    const int length = isDown ? parts.barDown.Height() : parts.barAcross.Width();
    const RowScroll::Span thumb = scroll.Thumb(length, ScrollStrip::leastThumb);
    if (along < thumb.from || along >= thumb.from + thumb.length) {
        const int to = TurnTo(scroll, along, thumb);
        ScrollTo(isDown ? to : First(), isDown ? Offset() : to);
        return true;
    }
    m_grip = isDown ? Grip::BarDown : Grip::BarAcross;
    m_gripAt = along - thumb.from;
    SetCapture();
    Invalidate(FALSE);
    return true;
}

/** A press of the headings. @return whether it was theirs */
bool CEGrid::PressHead(const Parts& parts, CPoint at)
{
    if (!parts.head.PtInRect(at))
        return false;
    const bool twice = IsDoubleClick(at);
    const int border = BorderAt(at);
    const int col = border >= 0 ? border : HeadingAt(at);
    if (col < 0)
        return true;
    if (border >= 0 && twice) {
        FitCol(border);
        return true;
    }
    m_grip = border >= 0 ? Grip::Border : Grip::Heading;
    m_gripCol = col;
    m_widthWas = GetCol(col)->width;
    m_gripAt = static_cast<int>(at.x) - m_widthWas;
    SetCapture();
    Invalidate(FALSE);
    return true;
}

void CEGrid::PressCell(Cell cell, bool row, UINT flags)
{
    const int before = CurRow();
    if (row)
        cell.col = std::max(m_layout.At(Offset()), 0);
    if (flags & MK_SHIFT)
        m_sel.Extend(cell, row);
    else if (flags & MK_CONTROL)
        m_sel.Toggle(cell, row);
    else
        m_sel.Go(cell, row);
    m_grip = row ? Grip::Rows : Grip::Cells;
    SetCapture();
    SetTimer(dragTimer, dragPeriod, nullptr);
    ShowPlace(m_sel.Current().row, m_sel.Current().col);
    Invalidate(FALSE);
    RowChanged(before);
}

/** Whether a press is the second one at its place. A third begins anew. */
bool CEGrid::IsDoubleClick(CPoint at)
{
    constexpr int reach = 4; // units that the mouse may move in between
    const LONG now = ::GetMessageTime();
    const bool isNear = std::abs(at.x - m_pressAt.x) <= reach && std::abs(at.y - m_pressAt.y) <= reach;
    const bool soon = static_cast<UINT>(now - m_pressTime) <= ::GetDoubleClickTime();
    const bool twice = m_pressed && isNear && soon;
    m_pressed = !twice;
    m_pressAt = at;
    m_pressTime = now;
    return twice;
}

void CEGrid::OnLButtonDown(UINT flags, CPoint point)
{
    if (!vant::detail::FocusByPress(m_hWnd))
        return;
    SyncLayout();
    const CPoint at = m_mouse = Dpi().ToUnits(point);
    const Parts parts = PartsOf();
    if (PressBar(parts, at) || PressHead(parts, at))
        return;
    const Cell cell = CellAt(at);
    const bool row = parts.numbers.PtInRect(at) != FALSE;
    if (cell.row < 0 || (cell.col < 0 && !row))
        return;
    const bool twice = IsDoubleClick(at);
    if (row || !twice || (flags & (MK_SHIFT | MK_CONTROL)))
        return PressCell(cell, row, flags);
    if (!BeginEdit())
        Tell(LBN_DBLCLK);
}

/** The mouse has moved with what it holds. */
void CEGrid::Drag(CPoint at)
{
    const Parts parts = PartsOf();
    switch (m_grip) {
    case Grip::Cells:
    case Grip::Rows: {
        const int height = std::max(rowH, 1);
        const int y = std::clamp<int>(at.y, parts.cells.top - 1, parts.cells.bottom);
        const int x = std::clamp<int>(at.x, parts.cells.left - 1, parts.cells.right);
        const int down = y < parts.cells.top ? -1 : static_cast<int>(y - parts.cells.top) / height;
        const int across = std::clamp(x - static_cast<int>(parts.cells.left) + Offset(), 0,
                                      std::max(m_layout.Total() - 1, 0));
        const Cell current = m_sel.Current();
        const Cell cell{std::clamp(First() + std::min(down, Page()), 0, std::max(m_rows - 1, 0)),
                        m_grip == Grip::Rows ? current.col : m_layout.At(across)};
        if (cell != current)
            GoTo(cell, true);
        break;
    }
    case Grip::Border:
        GetCol(m_gripCol)->width = vant::detail::ColumnLayout::Fit(static_cast<int>(at.x) - m_gripAt);
        Refresh();
        break;
    case Grip::BarDown:
        ScrollTo(m_down.FirstAt(static_cast<int>(at.y - parts.barDown.top) - m_gripAt, parts.barDown.Height(),
                                ScrollStrip::leastThumb),
                 Offset());
        break;
    case Grip::BarAcross:
        ScrollTo(First(), m_across.FirstAt(static_cast<int>(at.x - parts.barAcross.left) - m_gripAt,
                                           parts.barAcross.Width(), ScrollStrip::leastThumb));
        break;
    default:
        break;
    }
}

void CEGrid::OnMouseMove(UINT flags, CPoint point)
{
    SyncLayout();
    m_mouse = Dpi().ToUnits(point);
    if (m_grip != Grip::None)
        return Drag(m_mouse);
    const int hot = BorderAt(m_mouse) >= 0 ? -1 : HeadingAt(m_mouse);
    if (hot != m_hotCol) {
        m_hotCol = hot;
        Invalidate(FALSE);
    }
    CECtrl::OnMouseMove(flags, point);
}

void CEGrid::OnLButtonUp(UINT flags, CPoint point)
{
    SyncLayout();
    const int heading = m_grip == Grip::Heading ? m_gripCol : -1;
    EndGrip();
    if (heading >= 0 && heading == HeadingAt(Dpi().ToUnits(point)))
        ClickHeading(heading);
    else
        CECtrl::OnLButtonUp(flags, point);
}

/** Lets go of what the mouse holds. */
void CEGrid::EndGrip()
{
    if (m_grip == Grip::None)
        return;
    m_grip = Grip::None;
    if (!m_hWnd)
        return;
    KillTimer(dragTimer);
    if (::GetCapture() == m_hWnd)
        ::ReleaseCapture();
    Invalidate(FALSE);
}

void CEGrid::OnCaptureChanged(CWnd* to)
{
    EndGrip();
    CECtrl::OnCaptureChanged(to);
}

void CEGrid::OnTimer(UINT_PTR event)
{
    if (event != dragTimer)
        return CECtrl::OnTimer(event);
    if (m_grip == Grip::Cells || m_grip == Grip::Rows)
        Drag(m_mouse);
}

void CEGrid::OnMouseLeave()
{
    m_hotCol = -1;
    CECtrl::OnMouseLeave();
}

/** Scrolls by a wheel, and keeps what is less than a step. @return whether there is anything to scroll */
bool CEGrid::TakeWheel(short delta, bool across)
{
    SyncLayout();
    const RowScroll& scroll = across ? m_across : m_down;
    if (scroll.MaxFirst() == 0)
        return false;
    UINT steps = 3;
    ::SystemParametersInfoW(across ? SPI_GETWHEELSCROLLCHARS : SPI_GETWHEELSCROLLLINES, 0, &steps, 0);
    const int page = scroll.Page();
    const int step = across ? acrossStep : 1;
    const int perNotch = steps > static_cast<UINT>(page / step) ? page : static_cast<int>(steps) * step;
    const int by = (across ? m_wheelAcross : m_wheelDown).Take(delta, perNotch);
    ScrollTo(First() - (across ? 0 : by), Offset() + (across ? by : 0));
    return true;
}

BOOL CEGrid::OnMouseWheel(UINT flags, short delta, CPoint point)
{
    // Upwards is to the left.
    const bool across = (flags & MK_SHIFT) != 0;
    const bool taken = across ? TakeWheel(static_cast<short>(-std::max<int>(delta, -SHRT_MAX)), true)
                              : TakeWheel(delta, false);
    return taken ? TRUE : CECtrl::OnMouseWheel(flags, delta, point);
}

void CEGrid::OnMouseHWheel(UINT flags, short delta, CPoint point)
{
    if (!TakeWheel(delta, true))
        CECtrl::OnMouseHWheel(flags, delta, point);
}

void CEGrid::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    if (!TakeKey(key))
        CECtrl::OnKeyDown(key, repeat, flags);
}

void CEGrid::OnChar(UINT character, UINT repeat, UINT flags)
{
    // Shift and blank has selected rows; Ctrl and Backspace types a character that no text has.
    constexpr UINT ctrlBackspace = 0x7F;
    const bool isSelecting = character == firstPrintable && IsKeyDown(VK_SHIFT);
    if (character < firstPrintable || character == ctrlBackspace || isSelecting || !BeginEdit())
        return CECtrl::OnChar(character, repeat, flags);
    CEEdit& field = *Editor();
    field.SendMessage(WM_CHAR, character, static_cast<LPARAM>(repeat));
    DWORD from = 0;
    field.SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&from), 0);
    // What was let in stands before the caret.
    if (from == 0)
        EndEdit(false);
}

UINT CEGrid::OnGetDlgCode()
{
    const auto* const asked = reinterpret_cast<const MSG*>(GetCurrentMessage()->lParam);
    const bool isKey = asked && asked->message == WM_KEYDOWN;
    const bool enter = isKey && asked->wParam == VK_RETURN && m_rows > 0;
    const bool tab = isKey && asked->wParam == VK_TAB && m_rows > 0 &&
                     m_layout.Next(CurCol(), IsKeyDown(VK_SHIFT) ? -1 : 1) >= 0;
    return DLGC_WANTARROWS | DLGC_WANTCHARS | (enter ? DLGC_WANTMESSAGE : 0) | (tab ? DLGC_WANTTAB : 0);
}

BOOL CEGrid::OnSetCursor(CWnd* wnd, UINT hitTest, UINT message)
{
    CPoint at;
    ::GetCursorPos(&at);
    ScreenToClient(&at);
    if (hitTest != HTCLIENT || wnd != this || BorderAt(Dpi().ToUnits(at)) < 0)
        return CECtrl::OnSetCursor(wnd, hitTest, message);
    ::SetCursor(::LoadCursorW(nullptr, IDC_SIZEWE));
    return TRUE;
}

void CEGrid::OnSize(UINT how, int width, int height)
{
    CECtrl::OnSize(how, width, height);
    Refresh();
}

LRESULT CEGrid::OnScaleChanged(WPARAM, LPARAM)
{
    Refresh();
    return 0;
}
