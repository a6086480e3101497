#include "windows/CCslAlm.h"

#include "controls/detail/SkinPiece.h"
#include "platform/Vant.h"

#include <algorithm>

namespace
{

constexpr int rowH = 22;
constexpr int boxW = 24;
constexpr int boxLeft = 6; // behind the mark of the newest alarm
constexpr int textLeft = boxLeft + boxW + 4;

constexpr int loudLevel = 1;
constexpr COLORREF white = RGB(255, 255, 255);
constexpr COLORREF amber = RGB(255, 196, 84);
constexpr COLORREF loudBack = RGB(140, 12, 12);

bool IsChecked(const CECEntry& entry)
{
    return (entry.kind & CConsole::kindChecked) != 0;
}

bool IsLoud(const CECEntry& entry)
{
    return entry.state == loudLevel && !IsChecked(entry);
}

COLORREF BackOf(const CECEntry& entry)
{
    return IsLoud(entry) ? loudBack : Vant::back;
}

COLORREF AlarmColour(const CECEntry& entry)
{
    if (entry.state < 0 || IsChecked(entry))
        return Vant::dark;
    if (entry.state == 0)
        return Vant::light;
    return entry.state == loudLevel ? white : amber;
}

} // namespace

IMPLEMENT_DYNAMIC(CCslAlm, CConsole)

CCslAlm::CCslAlm()
{
    m_kind = kindAlarm;
}

void CCslAlm::CheckEntry(unsigned long id, int check)
{
    const CSingleLock guard(&entryLock, TRUE);
    CECEntry* const entry = FindEntry(id);
    if (!entry)
        return;
    const unsigned int others = entry->kind & ~static_cast<unsigned int>(kindChecked);
    entry->kind = check ? others | kindChecked : others;
    changed = 1;
}

bool CCslAlm::GetSelected(unsigned long& id) const noexcept
{
    if (m_isSel)
        id = m_selId;
    return m_isSel;
}

CString CCslAlm::Summary(int total) const
{
    const auto& lines = Lines();
    const auto open = std::count_if(lines.begin(), lines.end(),
                                    [](const CECEntry& line) { return line.state >= 0 && !IsChecked(line); });
    CString text;
    text.Format(L"%d not acknowledged, ", static_cast<int>(open));
    return text + CConsole::Summary(total);
}

int CCslAlm::RowH() const
{
    return rowH;
}

void CCslAlm::DrawChk(CDC* dc, const CRect& r, const CECEntry& entry)
{
    using vant::skins::Look;
    const auto& box = IsChecked(entry) ? vant::skins::check::on : vant::skins::check::off;
    const bool isFocused = m_isSel && entry.id == m_selId && ::GetFocus() == m_hWnd;
    const CPoint at(r.CenterPoint().x - box.w / 2, r.CenterPoint().y - box.h / 2);
    vant::detail::DrawPiece(*dc, CRect(at, CSize(box.w, box.h)), Vant::check, box,
                            isFocused ? Look::Focused : Look::Normal, BackOf(entry));
}

void CCslAlm::DrawLine(CDC* dc, const CRect& r, const CECEntry& line)
{
    if (IsLoud(line))
        dc->FillSolidRect(r.left, r.top + 1, r.Width(), r.Height() - 2, loudBack);
    DrawChk(dc, CRect(r.left + boxLeft, r.top, r.left + boxLeft + boxW, r.bottom), line);
    CRect text = r;
    text.left += textLeft;
    DrawLineText(dc, text, line, AlarmColour(line));
    if (m_isSel && line.id == m_selId)
        dc->FrameRect(r, ::GetFocus() == m_hWnd ? &Vant::cyanB : &Vant::greyB);
}

int CCslAlm::SelectedLine() const
{
    const auto& lines = Lines();
    const auto found =
        std::find_if(lines.begin(), lines.end(), [this](const CECEntry& line) { return line.id == m_selId; });
    return m_isSel && found != lines.end() ? static_cast<int>(found - lines.begin()) : -1;
}

void CCslAlm::Select(int line)
{
    const auto count = static_cast<int>(Lines().size());
    if (count == 0)
        return;
    line = std::clamp(line, 0, count - 1);
    m_selId = Lines()[static_cast<std::size_t>(line)].id;
    m_isSel = true;
    ShowLine(line);
    RedrawList();
}

void CCslAlm::Toggle(int line)
{
    const CECEntry& entry = Lines()[static_cast<std::size_t>(line)];
    CheckEntry(entry.id, !IsChecked(entry));
    Refresh();
}

void CCslAlm::OnLineClick(int line, CPoint point, bool twice)
{
    Select(line);
    if (point.x < textLeft || twice)
        Toggle(line);
}

bool CCslAlm::OnListKey(UINT key)
{
    const int line = SelectedLine();
    const auto last = static_cast<int>(Lines().size()) - 1;
    switch (key) {
    case VK_SPACE:
        if (line >= 0)
            Toggle(line);
        return line >= 0;
    case VK_UP:
        Select(line < 0 ? last : line - 1);
        return last >= 0;
    case VK_DOWN:
        Select(line + 1);
        return last >= 0;
    case VK_PRIOR:
        Select(line - PageRows());
        return last >= 0;
    case VK_NEXT:
        Select(line + PageRows());
        return last >= 0;
    case VK_HOME:
        Select(0);
        return last >= 0;
    case VK_END:
        Select(last);
        return last >= 0;
    default:
        return CConsole::OnListKey(key);
    }
}
