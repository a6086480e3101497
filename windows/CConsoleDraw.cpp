#include "controls/detail/ScrollStrip.h"
#include "platform/Vant.h"
#include "windows/CConsole.h"
#include "windows/detail/OneLine.h"

#include <algorithm>
#include <cwchar>
#include <iterator>
#include <utility>

/** @file
 *  What a console shows: the copy of its entries that is drawn, and the drawing. */

namespace
{

using vant::detail::ScrollStrip;

constexpr unsigned lockWait = 1; // milliseconds

constexpr int rowH = 18;
constexpr int fontH = 16;
constexpr int margin = 4;
constexpr int frameW = 2;    // of the list, around its rectangle
constexpr int textLeft = 10; // behind the mark of the newest entry
constexpr int markW = 3;

// Colours of the texts: the higher the range of levels, the more they stand out.
constexpr COLORREF amber = RGB(255, 196, 84);
constexpr COLORREF salmon = RGB(255, 138, 120);

COLORREF LevelColour(int level)
{
    if (level < 0)
        return Vant::dark;
    if (level < 1000)
        return Vant::light;
    if (level < 5000)
        return Vant::cyan;
    return level < 9000 ? amber : salmon;
}

int Count(const std::vector<CECEntry>& lines)
{
    return static_cast<int>(lines.size());
}

std::size_t Index(int line)
{
    return static_cast<std::size_t>(line);
}

bool IsDrawnAlike(const CECEntry& a, const CECEntry& b)
{
    return a.state == b.state && a.kind == b.kind && a.text == b.text;
}

} // namespace

/** Tries for a millisecond. A critical section has no such wait, and a mutex of the system, which has, costs
 * every logger a call of the system for each entry. */
bool CConsole::TryLock()
{
    LARGE_INTEGER frequency;
    LARGE_INTEGER start;
    ::QueryPerformanceFrequency(&frequency);
    ::QueryPerformanceCounter(&start);
    for (;;) {
        if (::TryEnterCriticalSection(entryLock))
            return true;
        LARGE_INTEGER now;
        ::QueryPerformanceCounter(&now);
        if ((now.QuadPart - start.QuadPart) * 1000 >= frequency.QuadPart * lockWait)
            return false;
        ::SwitchToThread();
    }
}

void CConsole::OnTrigger(double, double)
{
    if (!m_hWnd || !TryLock())
        return;
    const bool isChanged = changed != 0;
    entryLock.Unlock();
    if (isChanged && IsWindowVisible())
        Refresh();
}

/** Copies what passes the filter. @return false when the entries cannot be had in time */
bool CConsole::Snapshot(Shown& shown)
{
    if (!TryLock())
        return false;
    const auto unlock = [](CCriticalSection* lock) { lock->Unlock(); };
    const std::unique_ptr<CCriticalSection, decltype(unlock)> guard(&entryLock, unlock);
    for (CVantPtr* pos = entries.GetHeadPos(); pos;) {
        const CECEntry* const entry = entries.GetNext(pos);
        ++shown.total;
        if (!TestEntry(entry))
            continue;
        if (entry == m_newest)
            shown.newest = static_cast<int>(shown.lines.size());
        shown.lines.push_back(*entry);
    }
    shown.keyed = m_keyed;
    changed = 0;
    return true;
}

void CConsole::Refresh()
{
    Shown now;
    if (!Snapshot(now))
        return;
    for (CECEntry& line : now.lines)
        line.text = vant::detail::OneLine(line.text);
    SyncPage();
    const CString headBefore = Summary(m_shown.total);
    const Shown before = std::exchange(m_shown, std::move(now));
    const int firstBefore = m_scroll.First();
    m_scroll.SetRows(static_cast<int>(m_shown.lines.size()));
    KeepPlace(before, firstBefore);
    RedrawRows(before, firstBefore);
    if (m_hWnd && Summary(m_shown.total) != headBefore)
        InvalidateRect(Dpi().ToPx(HeadRc()), FALSE);
}

/** Chooses the first row after the lines have changed: what the user reads stays where it is, unless there is
 * something new to see. */
void CConsole::KeepPlace(const Shown& before, int firstBefore)
{
    const bool keyed = m_shown.keyed;
    if (keyed)
        m_follow = false;
    if (m_follow)
        return m_scroll.ScrollTo(m_scroll.MaxFirst());
    const auto find = [keyed](const std::vector<CECEntry>& lines, const CECEntry& line) {
        return std::find_if(lines.begin(), lines.end(), [&](const CECEntry& other) {
            return other.id == line.id && (keyed || other.text == line.text);
        });
    };
    const std::vector<CECEntry>& lines = m_shown.lines;
    if (firstBefore < Count(before.lines)) {
        const auto found = find(lines, before.lines[Index(firstBefore)]);
        if (found != lines.end())
            m_scroll.ScrollTo(static_cast<int>(found - lines.begin()));
    }
    if (!keyed || m_shown.newest < 0)
        return;
    // Of states that change all the time only the first one is news; an alarm always is, unless it is over.
    const CECEntry& newest = lines[Index(m_shown.newest)];
    const auto known = find(before.lines, newest);
    const bool isRaised = (newest.kind & kindAlarm) && newest.state >= 0;
    if (known == before.lines.end() || (isRaised && known->text != newest.text))
        m_scroll.Show(m_shown.newest);
}

/** Has the rows drawn again that differ from before. */
void CConsole::RedrawRows(const Shown& before, int firstBefore)
{
    if (!m_hWnd)
        return;
    const int was = Count(before.lines);
    const int is = Count(m_shown.lines);
    const int page = m_scroll.Page();
    if (m_scroll.First() != firstBefore || (was != is && std::max(was, is) > page))
        return RedrawList();
    const auto differs = [&](int line) {
        if (line >= was || line >= is)
            return line < was || line < is;
        return (line == before.newest) != (line == m_shown.newest) ||
               !IsDrawnAlike(before.lines[Index(line)], m_shown.lines[Index(line)]);
    };
    // One row more than the page: the last one may be in view in part.
    for (int line = m_scroll.First(); line <= m_scroll.First() + page; ++line) {
        if (differs(line))
            InvalidateRect(Dpi().ToPx(RowRc(line)), FALSE);
    }
}

void CConsole::RedrawList()
{
    if (!m_hWnd)
        return;
    CRect r = ListRc();
    r.InflateRect(frameW, frameW);
    InvalidateRect(Dpi().ToPx(r), FALSE);
}

/** The heading: the room that every platform window leaves above its sections. */
CRect CConsole::HeadRc() const
{
    CRect r = m_hWnd ? ClientRc() : CRect();
    r.DeflateRect(margin + 2, 0);
    r.top = org.y - ScrollPos();
    r.bottom = r.top + hdrH;
    return r;
}

CString CConsole::Summary(int total) const
{
    const int lines = Count(m_shown.lines);
    CString text;
    if (lines < total)
        text.Format(L"%d of %d entries shown", lines, total);
    else if (total == 1)
        text = L"1 entry";
    else
        text.Format(L"%d entries", total);
    return text;
}

void CConsole::DrawHead(CDC* dc) const
{
    CRect r = HeadRc();
    constexpr UINT oneLine = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS;
    dc->SetTextColor(Vant::cyan);
    dc->SelectObject(&Vant::boldF);
    dc->DrawText(name, r, DT_LEFT | oneLine);
    r.left += dc->GetTextExtent(name).cx + textLeft;
    dc->SetTextColor(Vant::yellow);
    dc->SelectObject(&Vant::smallF);
    dc->DrawText(Summary(m_shown.total), r, DT_RIGHT | oneLine);
}

CRect CConsole::ListRc() const
{
    CRect r = m_hWnd ? ClientRc() : CRect();
    if (m_options)
        r.top = m_options->y + m_options->GetCtrlHeight();
    r.DeflateRect(margin, margin);
    return r.bottom - r.top < RowH() || r.right <= r.left ? CRect() : r;
}

CRect CConsole::RowRc(int line) const
{
    const CRect list = ListRc();
    const int top = list.top + (line - m_scroll.First()) * RowH();
    return {list.left, top, BarRc().left, top + RowH()};
}

int CConsole::LineAt(CPoint point) const
{
    const CRect list = ListRc();
    if (!list.PtInRect(point) || point.x >= BarRc().left)
        return -1;
    const int line = m_scroll.First() + (point.y - list.top) / RowH();
    return line < m_scroll.Rows() ? line : -1;
}

int CConsole::RowH() const
{
    return rowH;
}

/** The scroll bar; without width while all lines are in view. */
CRect CConsole::BarRc() const
{
    CRect r = ListRc();
    r.left = r.right - (m_scroll.MaxFirst() > 0 ? ScrollStrip::width : 0);
    return r;
}

void CConsole::OnPaint()
{
    // Here, before the area to paint is settled: rows that turn out to have changed are painted in the same
    // go.
    if (changed)
        Refresh();
    m_painting = true;
    CVantWnd::OnPaint();
    m_painting = false;
}

void CConsole::Draw(CDC* dc)
{
    CVantWnd::Draw(dc);
    // Drawn on other occasions than by the window's own painting, it shows what there is at that moment.
    if (changed && !m_painting)
        Refresh();
    SyncPage();
    dc->SetBkMode(TRANSPARENT);
    const int saved = dc->SaveDC();
    DrawHead(dc);
    const CRect list = ListRc();
    if (!list.IsRectEmpty())
        DrawList(dc, list);
    dc->RestoreDC(saved);
}

void CConsole::DrawList(CDC* dc, const CRect& list)
{
    if (!m_font.GetSafeHandle()) {
        LOGFONTW font{};
        font.lfHeight = fontH;
        font.lfWeight = FW_NORMAL;
        font.lfPitchAndFamily = FIXED_PITCH | FF_MODERN;
        std::wcsncpy(font.lfFaceName, L"Courier New", std::size(font.lfFaceName) - 1);
        m_font.CreateFontIndirect(&font);
    }
    CRect frame = list;
    frame.InflateRect(frameW, frameW);
    dc->FrameRect(frame, ::GetFocus() == m_hWnd ? &Vant::medB : &Vant::greyB);
    dc->IntersectClipRect(list);
    dc->SelectObject(&m_font);
    const int last = std::min(m_scroll.First() + m_scroll.Page() + 1, m_scroll.Rows());
    for (int line = m_scroll.First(); line < last; ++line) {
        const CRect r = RowRc(line);
        DrawLine(dc, r, m_shown.lines[Index(line)]);
        if (line == m_shown.newest)
            dc->FillSolidRect(r.left, r.top + 2, markW, r.Height() - 4, Vant::cyan);
    }
    if (m_scroll.MaxFirst() > 0)
        DrawBar(dc);
}

void CConsole::DrawLine(CDC* dc, const CRect& r, const CECEntry& line)
{
    CRect textRc = r;
    textRc.left += textLeft;
    DrawLineText(dc, textRc, line, LevelColour(line.state));
}

void CConsole::DrawLineText(CDC* dc, CRect r, const CECEntry& line, COLORREF colour) const
{
    dc->SetTextColor(colour);
    CString text = line.text.Mid(m_column);
    text.Replace(L'\t', L' ');
    dc->DrawText(text, r, DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
}

void CConsole::DrawBar(CDC* dc) const
{
    const CRect bar = BarRc();
    const auto thumb = m_scroll.Thumb(bar.Height(), ScrollStrip::leastThumb);
    ScrollStrip::Draw(*dc, bar, thumb, m_grip < 0 ? ScrollStrip::Look::Normal : ScrollStrip::Look::Held);
}
