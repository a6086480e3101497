// CEList: where the entries are, and the drawing.
#include "controls/CEList.h"

#include "controls/detail/CtrlLook.h"
#include "controls/detail/CtrlText.h"
#include "controls/detail/FieldFrame.h"
#include "controls/detail/ScrollStrip.h"
#include "controls/detail/SkinPiece.h"
#include "platform/Vant.h"
#include "platform/detail/Skins.h"
#include "resources/Skins.h"

#include <algorithm>

using vant::detail::ScrollStrip;

namespace
{

// Units.
constexpr int frameW = vant::detail::fieldFrame;
constexpr int textInset = 4;

/** Draws a line that runs upwards, from the lower end of `r`. */
void DrawUpright(CDC& dc, const CString& text, const CRect& r)
{
    const HGDIOBJ before = Vant::vertF.m_hObject ? ::SelectObject(dc, Vant::vertF.m_hObject) : nullptr;
    TEXTMETRICW font{};
    dc.GetTextMetrics(&font);
    const int left = r.left + (r.Width() - static_cast<int>(font.tmHeight)) / 2;
    ::ExtTextOutW(dc, left, r.bottom - textInset, ETO_CLIPPED, r, text, static_cast<UINT>(text.GetLength()),
                  nullptr);
    if (before)
        ::SelectObject(dc, before);
}

} // namespace

CRect CEList::InnerRc() const
{
    CRect r = ClientRc();
    r.DeflateRect(frameW, frameW);
    const int bar = m_scroll.MaxFirst() > 0 ? ScrollStrip::width : 0;
    if (inRow)
        r.bottom = std::max<int>(r.top, r.bottom - bar);
    else
        r.right = std::max<int>(r.left, r.right - bar);
    return r;
}

/** The scroll bar; empty while all entries are in view. */
CRect CEList::BarRc() const
{
    CRect r = ClientRc();
    r.DeflateRect(frameW, frameW);
    const CRect inner = InnerRc();
    if (inRow)
        r.top = inner.bottom;
    else
        r.left = inner.right;
    return r;
}

/** A point's distance from the beginning of the entries in view, along them. */
int CEList::Along(CPoint at) const noexcept
{
    return (inRow ? at.x : at.y) - frameW;
}

int CEList::BarLength() const
{
    const CRect bar = BarRc();
    return inRow ? bar.Width() : bar.Height();
}

int CEList::LengthOf(int count) const noexcept
{
    return count * std::max(entryH, 1) + 2 * frameW;
}

/** Adapts the page to the room that there is. */
void CEList::SyncPage()
{
    const CRect client = ClientRc();
    const int length = (inRow ? client.Width() : client.Height()) - 2 * frameW;
    m_scroll.SetPage(length / std::max(entryH, 1));
}

CRect CEList::EntRc(const CELEnt* ent) const
{
    const CRect inner = InnerRc();
    if (!IsOwn(ent) || ent->Index() < First() || ent->Index() > First() + Page())
        return {};
    const int from = (ent->Index() - First()) * entryH;
    CRect r = inner;
    if (inRow) {
        r.left = inner.left + from;
        r.right = std::min<int>(r.left + entryH, inner.right);
    } else {
        r.top = inner.top + from;
        r.bottom = std::min<int>(r.top + entryH, inner.bottom);
    }
    return r.IsRectEmpty() ? CRect() : r;
}

CELEnt* CEList::EntAt(CPoint at) const
{
    if (!InnerRc().PtInRect(at))
        return nullptr;
    return GetAt(First() + Along(at) / std::max(entryH, 1));
}

void CEList::ScrollTo(int first)
{
    SyncPage();
    const int before = First();
    m_scroll.ScrollTo(first);
    if (m_hWnd && First() != before)
        Invalidate(FALSE);
}

void CEList::Show(const CELEnt* ent)
{
    if (!IsOwn(ent))
        return;
    SyncPage();
    const int before = First();
    m_scroll.Show(ent->Index());
    if (m_hWnd && First() != before)
        Invalidate(FALSE);
}

void CEList::InvalidateEnt(const CELEnt* ent)
{
    if (!m_hWnd || !ent)
        return;
    const CRect r = EntRc(ent);
    if (!r.IsRectEmpty())
        InvalidateRect(Dpi().ToPx(r), FALSE);
}

void CEList::DrawEnt(CDC* dc, const CRect& place, CELEnt* ent, bool selected)
{
    const int saved = dc->SaveDC();
    dc->IntersectClipRect(place);
    style.Set(dc);
    if (m_drawTarget && m_draw)
        (m_drawTarget->*m_draw)(dc, place, ent, selected ? 1 : 0);
    else
        DrawLabel(dc, place, ent->text, selected);
    dc->RestoreDC(saved);
}

void CEList::DrawLabel(CDC* dc, CRect r, const CString& label, bool selected)
{
    if (!IsEnabled())
        dc->SetTextColor(vant::detail::disabledText);
    else if (selected)
        dc->SetTextColor(vant::detail::litText);
    if (inRow)
        return DrawUpright(*dc, label, r);
    r.DeflateRect(textInset, 0);
    vant::detail::DrawLine(*dc, label, r, DT_LEFT);
}

void CEList::DrawFrame(CDC* dc, const CRect& r)
{
    const auto cell = vant::detail::FieldCellOf(*this, vant::detail::HasFocus(*this));
    vant::detail::DrawFieldFrame(*dc, r, style, cell, BackCol());
}

void CEList::DrawBar(CDC* dc) const
{
    const CRect bar = BarRc();
    const auto thumb = m_scroll.Thumb(BarLength(), ScrollStrip::leastThumb);
    const auto held = m_grip < 0 ? ScrollStrip::Look::Normal : ScrollStrip::Look::Held;
    if (inRow)
        ScrollStrip::DrawAcross(*dc, bar, thumb, held);
    else
        ScrollStrip::Draw(*dc, bar, thumb, held);
}

void CEList::Draw(CDC* dc)
{
    m_stale = false;
    SyncPage();
    DrawBack(dc);
    style.Set(dc);
    DrawFrame(dc, ClientRc());
    const CELEnt* const current = Current();
    const bool isFocused = vant::detail::HasFocus(*this) || (m_hWnd && (GetStyle() & WS_POPUP));
    const int last = std::min(First() + Page(), GetCount() - 1);
    for (int index = First(); index <= last; ++index) {
        CELEnt* const ent = GetAt(index);
        const CRect r = EntRc(ent);
        if (r.IsRectEmpty())
            continue;
        constexpr int hotCell = 1;
        const bool isCurrent = ent == current;
        if (isCurrent &&
            !(isFocused && IsEnabled() &&
              vant::detail::DrawPiece(*dc, r, vant::detail::MenuSkin(), vant::skins::menu::row, hotCell)))
            dc->FillSolidRect(r, Vant::teal);
        else if (ent == m_hot && !isCurrent)
            dc->FillSolidRect(r, Vant::slate);
        DrawEnt(dc, r, ent, isCurrent);
    }
    if (GetCount() == 0 && !emptyText.IsEmpty()) {
        style.Set(dc);
        dc->SetTextColor(vant::detail::disabledText);
        CRect r = InnerRc();
        (inRow ? r.right : r.bottom) = (inRow ? r.left : r.top) + entryH;
        DrawLabel(dc, r, emptyText, false);
    }
    if (m_scroll.MaxFirst() > 0)
        DrawBar(dc);
}
