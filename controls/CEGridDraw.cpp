// CEGrid: where its parts are, and the drawing.
#include "controls/CEGrid.h"

#include "controls/detail/CtrlLook.h"
#include "controls/detail/CtrlText.h"
#include "controls/detail/FieldFrame.h"
#include "controls/detail/ScrollStrip.h"
#include "controls/detail/SkinPiece.h"
#include "platform/Vant.h"
#include "resources/Skins.h"
#include "values/EUnits.h"

#include <algorithm>
#include <cstdint>

using vant::detail::ScrollStrip;

namespace
{

// Units.
constexpr int textInset = 4;
constexpr int unitGap = 4; // between a heading and its unit
constexpr int arrowRoom = 14;
constexpr int arrowHalf = 4; // half its width, and its height
constexpr int digitWidth = 9;
constexpr int leastDigits = 3;

enum HeadingCell { headNormal, headHover, headPressed };

/** Fills a triangle that points up or down, in the middle of `r`. */
void DrawArrow(CDC& dc, const CRect& r, bool up, COLORREF colour)
{
    const int x = static_cast<int>(r.left + r.right) / 2;
    const int y = static_cast<int>(r.top + r.bottom) / 2;
    const int tip = up ? y - arrowHalf / 2 : y + arrowHalf / 2;
    const int base = up ? y + arrowHalf / 2 : y - arrowHalf / 2;
    const POINT corners[] = {{x - arrowHalf, base}, {x + arrowHalf, base}, {x, tip}};
    const HGDIOBJ pen = ::SelectObject(dc, ::GetStockObject(DC_PEN));
    const HGDIOBJ brush = ::SelectObject(dc, ::GetStockObject(DC_BRUSH));
    ::SetDCPenColor(dc, colour);
    ::SetDCBrushColor(dc, colour);
    ::Polygon(dc, corners, static_cast<int>(std::size(corners)));
    ::SelectObject(dc, brush);
    ::SelectObject(dc, pen);
}

} // namespace

int CEGrid::NumbersWidth() const
{
    if (!rowNumbers)
        return 0;
    const int digits = static_cast<int>(std::to_string(m_rows).size());
    return std::max(digits, leastDigits) * digitWidth + 2 * textInset;
}

CEGrid::Parts CEGrid::PartsOf() const
{
    CRect r = ClientRc();
    r.DeflateRect(vant::detail::fieldFrame, vant::detail::fieldFrame);
    r.right = std::max(r.right, r.left);
    r.bottom = std::max(r.bottom, r.top);
    Parts parts;
    parts.head = r;
    parts.head.bottom = std::min<int>(r.bottom, r.top + std::max(hdrH, 0));
    r.top = parts.head.bottom;
    const int numbers = std::min(NumbersWidth(), r.Width());
    int barDown = 0;
    int barAcross = 0;
    // Either bar may make the other one necessary.
    for (int pass = 0; pass < 3; ++pass) {
        const std::int64_t height = std::int64_t{m_rows} * std::max(rowH, 1);
        barDown = height > r.Height() - barAcross ? ScrollStrip::width : barDown;
        barAcross = m_layout.Total() > r.Width() - numbers - barDown ? ScrollStrip::width : barAcross;
    }
    const int right = std::max<int>(r.left + numbers, r.right - barDown);
    const int bottom = std::max<int>(r.top, r.bottom - barAcross);
    parts.numbers = CRect(r.left, r.top, r.left + numbers, bottom);
    parts.cells = CRect(r.left + numbers, r.top, right, bottom);
    parts.barDown = CRect(right, r.top, r.right, bottom);
    parts.barAcross = CRect(r.left, bottom, right, r.bottom);
    return parts;
}

/** Goes from a column that is hidden to the one beside it, where the user sees what is current. */
void CEGrid::KeepCurrentShown()
{
    const Cell current = m_sel.Current();
    if (current.col < 0 || m_layout.Width(current.col) > 0)
        return;
    const int next = m_layout.Next(current.col, 1);
    const int shown = next >= 0 ? next : m_layout.Next(current.col, -1);
    if (shown >= 0)
        m_sel.Go({current.row, shown});
}

/** Adapts what is scrolled and selected to columns, rows and room. */
void CEGrid::SyncLayout()
{
    std::vector<int> widths;
    for (const auto& col : m_cols)
        widths.push_back(col->hidden ? 0 : vant::detail::ColumnLayout::Fit(col->width));
    m_layout.Set(widths);
    m_sel.wholeRows = wholeRows != 0;
    m_sel.SetSize(m_rows, ColCount());
    KeepCurrentShown();
    const Parts parts = PartsOf();
    m_down.SetRows(m_rows);
    m_down.SetPage(parts.cells.Height() / std::max(rowH, 1));
    m_across.SetRows(m_layout.Total());
    m_across.SetPage(parts.cells.Width());
}

CRect CEGrid::PlaceRc(int place, int col) const
{
    const CRect cells = PartsOf().cells;
    if (place < First() || place > First() + Page())
        return {};
    const int x = static_cast<int>(cells.left) - Offset();
    const int y = static_cast<int>(cells.top) + (place - First()) * rowH;
    return {x + m_layout.Left(col), y, x + m_layout.Right(col), y + rowH};
}

CRect CEGrid::CellRc(int row, int col) const
{
    CRect r;
    if (!HasCell(row, col) || !r.IntersectRect(PlaceRc(PlaceOf(row), col), PartsOf().cells))
        return {};
    return r;
}

CRect CEGrid::HeadingRc(int col) const
{
    const Parts parts = PartsOf();
    if (!GetCol(col))
        return {};
    const int x = static_cast<int>(parts.cells.left) - Offset();
    const CRect whole(x + m_layout.Left(col), parts.head.top, x + m_layout.Right(col), parts.head.bottom);
    CRect r;
    if (!r.IntersectRect(whole, CRect(parts.cells.left, parts.head.top, parts.head.right, parts.head.bottom)))
        return {};
    return r;
}

/** The place and column at a point; -1 for what is beside them. */
CEGrid::Cell CEGrid::CellAt(CPoint at) const
{
    const Parts parts = PartsOf();
    const bool onCells = parts.cells.PtInRect(at) != FALSE;
    if (!onCells && !parts.numbers.PtInRect(at))
        return {};
    const int place = First() + static_cast<int>(at.y - parts.cells.top) / std::max(rowH, 1);
    if (place >= m_rows)
        return {};
    return {place, onCells ? m_layout.At(static_cast<int>(at.x - parts.cells.left) + Offset()) : -1};
}

int CEGrid::HeadingAt(CPoint at) const
{
    const Parts parts = PartsOf();
    if (!parts.head.PtInRect(at) || at.x < parts.cells.left)
        return -1;
    return m_layout.At(static_cast<int>(at.x - parts.cells.left) + Offset());
}

int CEGrid::BorderAt(CPoint at) const
{
    constexpr int reach = 4; // units to both sides
    const Parts parts = PartsOf();
    if (!parts.head.PtInRect(at) || at.x < parts.cells.left)
        return -1;
    return m_layout.BorderAt(static_cast<int>(at.x - parts.cells.left) + Offset(), reach);
}

void CEGrid::ScrollTo(int first, int offset)
{
    SyncLayout();
    const auto down = m_down;
    const auto across = m_across;
    m_down.ScrollTo(first);
    m_across.ScrollTo(offset);
    if (m_down == down && m_across == across)
        return;
    PlaceEditor();
    if (m_hWnd)
        Invalidate(FALSE);
}

void CEGrid::ShowPlace(int place, int col)
{
    SyncLayout();
    if (place < 0 || !GetCol(col))
        return;
    auto down = m_down;
    auto across = m_across;
    down.Show(place);
    // The left edge counts where a column is wider than the grid.
    across.Show(m_layout.Right(col) - 1);
    across.Show(m_layout.Left(col));
    ScrollTo(down.First(), across.First());
}

void CEGrid::Show(int row, int col)
{
    if (HasCell(row, col))
        ShowPlace(PlaceOf(row), col);
}

/** Width of a text in the grid's font, units. */
int CEGrid::TextWidth(const CString& label) const
{
    CDC dc;
    if (!dc.CreateCompatibleDC(nullptr))
        return 0;
    Dpi().Apply(dc);
    style.Set(&dc);
    return static_cast<int>(dc.GetTextExtent(label).cx);
}

void CEGrid::FitCol(int col)
{
    CEGridCol* const column = GetCol(col);
    if (!column)
        return;
    SyncLayout();
    const bool hasArrow = column->sortable || col == m_sortCol;
    int width = TextWidth(HeadingText(col)) + (hasArrow ? arrowRoom : 0);
    const int last = std::min(First() + Page(), m_rows - 1);
    for (int place = First(); place <= last; ++place)
        width = std::max(width, TextWidth(CellText(RowAt(place), col)));
    constexpr int margin = 2 * textInset + 2; // of the text, and the line between columns
    column->width = vant::detail::ColumnLayout::Fit(width + margin);
    Refresh();
}

void CEGrid::GetTip(CString& tipText)
{
    const Cell cell = CellAt(m_mouse);
    const int head = HeadingAt(m_mouse);
    const int col = head >= 0 ? head : cell.col;
    if (col < 0)
        return CECtrl::GetTip(tipText);
    const CEGridCol& column = *GetCol(col);
    const CString whole = head >= 0 ? HeadingText(col) : CellText(RowAt(cell.row), col);
    const int arrow = head >= 0 && col == m_sortCol ? arrowRoom : 0;
    const CRect r = head >= 0 ? HeadingRc(col) : CellRc(RowAt(cell.row), col);
    const bool isCut = TextWidth(whole) + arrow > r.Width() - 2 * textInset;
    if (head >= 0 && !column.tip.IsEmpty())
        tipText = isCut ? whole + L"\n" + column.tip : column.tip;
    else if (isCut)
        tipText = whole;
    else
        CECtrl::GetTip(tipText);
}

/** Draws what is behind a heading. @param cell  HeadingCell */
void CEGrid::DrawHeadingFace(CDC& dc, const CRect& r, int cell)
{
    // Disabled text would be too faint on the lit bar.
    constexpr int inactiveCell = 1;
    const bool drawn = IsEnabled() ? vant::detail::DrawPiece(dc, r, Vant::grad2, vant::skins::grad2::heading,
                                                             cell, BackCol())
                                   : vant::detail::DrawPiece(dc, r, Vant::grad2, vant::skins::grad2::caption,
                                                             inactiveCell, BackCol());
    if (!drawn)
        dc.FillSolidRect(r, Vant::grey);
    if (!IsEnabled())
        dc.FillSolidRect(r.right - 1, r.top, 1, r.Height(), Vant::grey);
}

void CEGrid::DrawHeading(CDC& dc, int col, const CRect& r)
{
    const bool pressed = m_grip == Grip::Heading && col == m_gripCol;
    const bool hot = IsEnabled() && col == m_hotCol && m_grip == Grip::None && GetCol(col)->sortable;
    const int cell = pressed ? headPressed : hot ? headHover : headNormal;
    DrawHeadingFace(dc, r, cell);
    const COLORREF colour = IsEnabled() ? vant::detail::litText : vant::detail::disabledText;
    CRect place = r;
    place.DeflateRect(textInset, 0);
    if (col == m_sortCol) {
        DrawArrow(dc, {place.right - arrowRoom + textInset, r.top, place.right, r.bottom},
                  m_sortDir == sortUp, colour);
        place.right -= arrowRoom;
    }
    const CEGridCol& column = *GetCol(col);
    const CString unit = EUnits::Get(column.units);
    const int unitW = unit.IsEmpty() ? 0 : static_cast<int>(dc.GetTextExtent(unit).cx) + unitGap;
    const int nameW = std::min(static_cast<int>(dc.GetTextExtent(column.heading).cx) + 1,
                               std::max(static_cast<int>(place.Width()) - unitW, 0));
    int left = static_cast<int>(place.left);
    if (column.DrawAlign() == DT_RIGHT)
        left = std::max(left, static_cast<int>(place.right) - nameW - unitW);
    else if (column.DrawAlign() == DT_CENTER)
        left = std::max(left, static_cast<int>(place.left + place.right - nameW - unitW) / 2);
    dc.SetTextColor(colour);
    vant::detail::DrawLine(dc, column.heading, {left, r.top, left + nameW, r.bottom}, DT_LEFT);
    if (IsEnabled())
        dc.SetTextColor(style.txtCol);
    vant::detail::DrawLine(dc, unit, {left + nameW + unitGap, r.top, place.right, r.bottom}, DT_LEFT);
}

void CEGrid::DrawCell(CDC& dc, int place, int col, const CRect& r)
{
    const bool selected = m_sel.Has(place, col);
    if (selected)
        dc.FillSolidRect(r, Vant::teal);
    dc.FillSolidRect(r.right - 1, r.top, 1, r.Height(), Vant::grey);
    const CEGridCol& column = *GetCol(col);
    const bool enabled = IsEnabled() && IsAllowed(RowAt(place), col);
    dc.SetTextColor(!enabled ? vant::detail::disabledText : selected ? vant::detail::litText : style.txtCol);
    CRect inside = r;
    inside.DeflateRect(textInset, 0);
    vant::detail::DrawLine(dc, CellText(RowAt(place), col), inside, column.DrawAlign());
    if (vant::detail::HasFocus(*this) && m_sel.Current() == Cell{place, col})
        vant::detail::DrawFocus(dc, CRect(r.left, r.top, r.right - 1, r.bottom));
}

void CEGrid::DrawRow(CDC& dc, const Parts& parts, int place)
{
    const CRect& cells = parts.cells;
    const int top = static_cast<int>(cells.top) + (place - First()) * rowH;
    const int x = static_cast<int>(cells.left) - Offset();
    if (place % 2 != 0 && IsEnabled())
        dc.FillSolidRect(CRect(cells.left, top, cells.right, top + rowH), Vant::slate);
    const int from = std::max(m_layout.At(Offset()), 0);
    for (int col = from; col < ColCount() && m_layout.Left(col) < Offset() + cells.Width(); ++col) {
        if (m_layout.Width(col) > 0)
            DrawCell(dc, place, col, {x + m_layout.Left(col), top, x + m_layout.Right(col), top + rowH});
    }
}

void CEGrid::DrawBars(CDC& dc, const Parts& parts) const
{
    const auto lookOf = [this](Grip grip) {
        return m_grip == grip ? ScrollStrip::Look::Held : ScrollStrip::Look::Normal;
    };
    if (!parts.barDown.IsRectEmpty())
        ScrollStrip::Draw(dc, parts.barDown, m_down.Thumb(parts.barDown.Height(), ScrollStrip::leastThumb),
                          lookOf(Grip::BarDown));
    if (!parts.barAcross.IsRectEmpty())
        ScrollStrip::DrawAcross(dc, parts.barAcross,
                                m_across.Thumb(parts.barAcross.Width(), ScrollStrip::leastThumb),
                                lookOf(Grip::BarAcross));
    const CRect corner(parts.barAcross.right, parts.barDown.bottom, parts.barDown.right,
                       parts.barAcross.bottom);
    if (!corner.IsRectEmpty())
        dc.FillSolidRect(corner, Vant::slate);
}

void CEGrid::DrawHeadings(CDC& dc, const Parts& parts)
{
    const int saved = dc.SaveDC();
    dc.IntersectClipRect(parts.head);
    DrawHeadingFace(dc, parts.head, headNormal);
    dc.IntersectClipRect(parts.cells.left, parts.head.top, parts.head.right, parts.head.bottom);
    const int x = static_cast<int>(parts.cells.left) - Offset();
    for (int col = 0; col < ColCount(); ++col) {
        const CRect r(x + m_layout.Left(col), parts.head.top, x + m_layout.Right(col), parts.head.bottom);
        if (r.Width() > 0 && r.right > parts.cells.left && r.left < parts.head.right)
            DrawHeading(dc, col, r);
    }
    dc.RestoreDC(saved);
}

void CEGrid::DrawRows(CDC& dc, const Parts& parts, int last)
{
    const int saved = dc.SaveDC();
    dc.IntersectClipRect(parts.cells);
    for (int place = First(); place <= last; ++place)
        DrawRow(dc, parts, place);
    if (m_rows == 0 && !emptyText.IsEmpty()) {
        dc.SetTextColor(vant::detail::disabledText);
        const CRect r(parts.cells.left + textInset, parts.cells.top, parts.cells.right,
                      parts.cells.top + rowH);
        vant::detail::DrawLine(dc, emptyText, r, DT_LEFT);
    }
    dc.RestoreDC(saved);
}

void CEGrid::DrawNumbers(CDC& dc, const Parts& parts, int last) const
{
    const int saved = dc.SaveDC();
    dc.IntersectClipRect(parts.numbers);
    for (int place = First(); place <= last; ++place) {
        const int top = static_cast<int>(parts.numbers.top) + (place - First()) * rowH;
        CRect r(parts.numbers.left, top, parts.numbers.right, top + rowH);
        const bool isIn = m_sel.HasRow(place);
        dc.FillSolidRect(r, isIn ? Vant::teal : Vant::grey);
        dc.SetTextColor(isIn && IsEnabled() ? vant::detail::litText : vant::detail::disabledText);
        r.DeflateRect(textInset, 0);
        vant::detail::DrawLine(dc, std::to_wstring(RowAt(place) + std::int64_t{1}).c_str(), r, DT_RIGHT);
    }
    dc.RestoreDC(saved);
}

void CEGrid::Draw(CDC* dc)
{
    SyncLayout();
    const Parts parts = PartsOf();
    DrawBack(dc);
    style.Set(dc);
    const bool hasFocus = vant::detail::HasFocus(*this) || m_editing;
    vant::detail::DrawFieldFrame(*dc, ClientRc(), style, vant::detail::FieldCellOf(*this, hasFocus),
                                 BackCol());

    const int last = std::min(First() + Page(), m_rows - 1);
    DrawHeadings(*dc, parts);
    DrawRows(*dc, parts, last);
    if (rowNumbers)
        DrawNumbers(*dc, parts, last);
    DrawBars(*dc, parts);
}
