// CEMenu: its window, its rows, and the drawing.
#include "controls/CEMenu.h"

#include "controls/detail/CtrlText.h"
#include "controls/detail/SkinPiece.h"
#include "platform/Vant.h"
#include "resources/Skins.h"

#include <algorithm>

namespace skin = vant::skins::menu;
using vant::detail::DrawPiece;

namespace
{

// Units.
constexpr int rowH = 24;
constexpr int lineH = 8;
constexpr int markW = 20;  // of a mark, and of the arrow of a sub-menu
constexpr int textGap = 4; // behind the mark
constexpr int keyGap = 24; // before the key
constexpr int leastW = 96;

/** Cells of the marks. */
enum Cell { cellNormal, cellHot, cellDisabled };

constexpr UINT oneLine = DT_SINGLELINE | DT_VCENTER;

int WidthOf(CDC& dc, const CString& text, UINT prefix)
{
    CRect r;
    dc.DrawText(text, -1, &r, oneLine | DT_CALCRECT | prefix);
    return r.Width();
}

} // namespace

/** Takes over the entries as rows. */
void CEMenu::Prepare()
{
    m_shown.clear();
    std::vector<int> heights;
    for (CVantPtr* pos = m_ents.GetHeadPos(); pos;) {
        CEMEnt* const ent = m_ents.GetNext(pos);
        if (!pos && ent->IsSeparator())
            break;
        m_shown.push_back(ent);
        heights.push_back(ent->IsSeparator() ? lineH : rowH);
    }
    m_rows.Set(std::move(heights));
    m_current = -1;
}

/** What the prepared rows need, units. */
CSize CEMenu::Size(CDpi dpi)
{
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    dpi.Apply(dc);
    const int saved = dc.SaveDC();
    style.Set(&dc);
    int textW = 0;
    m_keyW = 0;
    for (const CEMEnt* const ent : m_shown) {
        textW = std::max(textW, WidthOf(dc, ent->Label(), 0));
        if (const CString key = ent->Key(); !key.IsEmpty())
            m_keyW = std::max(m_keyW, WidthOf(dc, key, DT_NOPREFIX));
    }
    dc.RestoreDC(saved);
    const int width = markW + textGap + textW + (m_keyW ? keyGap + m_keyW : 0) + markW;
    return {std::max(width, leastW) + 2 * frameW, m_rows.Total() + 2 * frameW};
}

bool CEMenu::OpenAt(const CRect& place, HWND owner, CDpi dpi)
{
    const HWND top = owner ? ::GetAncestor(owner, GA_ROOT) : nullptr;
    if (!CreateEx(WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE | WS_EX_TOPMOST, Vant::ctlClass, L"", WS_POPUP,
                  CRect(place.TopLeft(), CSize(0, 0)), CWnd::FromHandle(top), 0))
        return false;
    dpi.Set(m_hWnd);
    const int room = dpi.ToUnits(place.Height()) - 2 * frameW;
    // Only if it is less: lengths in pixels are rounded.
    if (place.Height() < dpi.ToPx(m_rows.Total() + 2 * frameW))
        m_rows.SetRoom(room);
    SetWindowPos(&wndTop, place.left, place.top, place.Width(), place.Height(), SWP_NOACTIVATE);
    ShowWindow(SW_SHOWNOACTIVATE);
    return true;
}

CEMEnt* CEMenu::EntOf(int row) const
{
    return row >= 0 && row < m_rows.Count() ? m_shown[static_cast<std::size_t>(row)] : nullptr;
}

CRect CEMenu::RowRc(int row) const
{
    const CRect client = ClientRc();
    const int top = frameW + m_rows.Top(row);
    return {client.left + frameW, top, client.right - frameW, top + m_rows.Height(row)};
}

void CEMenu::SetCurrent(int row)
{
    if (row == m_current)
        return;
    m_current = row;
    m_rows.Show(row);
    Invalidate(FALSE);
}

void CEMenu::DrawRow(CDC* dc, int row)
{
    const CEMEnt& ent = *EntOf(row);
    CRect r = RowRc(row);
    if (ent.IsSeparator()) {
        if (!DrawPiece(*dc, r, s_skin, skin::separator, 0))
            dc->FillSolidRect(r.left, r.top + lineH / 2, r.Width(), 1, Vant::med);
        return;
    }
    Cell cell = ent.enabled ? cellNormal : cellDisabled;
    if (row == m_current && ent.enabled) {
        cell = cellHot;
        if (!DrawPiece(*dc, r, s_skin, skin::row, cellHot))
            dc->FillSolidRect(r, Vant::med);
    } else if (row == m_current) {
        // Where the keys are, although nothing can be chosen there.
        vant::detail::DrawFocus(*dc, r);
    }
    CRect mark(r.left, r.top, r.left + markW, r.bottom);
    if (const int shown = ent.ShownMark(); shown != CEMEnt::markNone) {
        const auto& piece = shown == CEMEnt::markCheck ? skin::checkMark : skin::bullet;
        if (!DrawPiece(*dc, mark, s_skin, piece, cell)) {
            constexpr int gap = 7; // to a plain mark
            mark.DeflateRect(gap, gap);
            dc->FillSolidRect(mark, style.txtCol);
        }
    }
    if (ent.sub) {
        const CRect arrow(r.right - markW, r.top, r.right, r.bottom);
        DrawPiece(*dc, arrow, s_skin, skin::subMenu, cell);
    }
    style.Set(dc);
    dc->SetTextColor(cell == cellDisabled ? vant::detail::disabledText
                     : cell == cellHot    ? vant::detail::litText
                                          : style.txtCol);
    r.left += markW + textGap;
    r.right -= markW;
    dc->DrawText(ent.Label(), -1, &r, oneLine | DT_LEFT);
    r.left = r.right - m_keyW;
    dc->DrawText(ent.Key(), -1, &r, oneLine | DT_LEFT | DT_NOPREFIX);
}

void CEMenu::DrawArrow(CDC* dc, const CRect& r, bool isUp) const
{
    const bool canScroll = isUp ? m_rows.First() > 0 : !m_rows.AtEnd();
    const int left = r.left + (r.Width() - markW) / 2;
    DrawPiece(*dc, {left, r.top, left + markW, r.bottom}, s_skin, isUp ? skin::up : skin::down,
              canScroll ? cellNormal : cellDisabled);
}

void CEMenu::Draw(CDC* dc)
{
    CRect r = ClientRc();
    style.Set(dc);
    if (!DrawPiece(*dc, r, s_skin, skin::panel, 0)) {
        dc->FillSolidRect(r, Vant::slate);
        CEStyle::Brdr2(dc, r);
    }
    for (int row = m_rows.First(); row < m_rows.Count() && m_rows.IsInView(row); ++row)
        DrawRow(dc, row);
    if (!m_rows.IsScrolled())
        return;
    constexpr int arrowH = vant::detail::MenuRows::arrowH;
    r.DeflateRect(frameW, frameW);
    DrawArrow(dc, {r.left, r.top, r.right, r.top + arrowH}, true);
    DrawArrow(dc, {r.left, r.bottom - arrowH, r.right, r.bottom}, false);
}
