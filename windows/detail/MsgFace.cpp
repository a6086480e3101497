#include "windows/detail/MsgFace.h"

#include "controls/detail/CtrlText.h"
#include "controls/detail/SkinPiece.h"
#include "platform/Vant.h"

#include <algorithm>

namespace vant::detail
{

namespace
{

namespace back = skins::msgBack;

// What is not stretched: the icon's column and the frames; the caption and the upper end of the text's well;
// the lower end of the well and the buttons.
constexpr skins::Region stretched = back::skin.region(0, 0, msgSize.cx, msgSize.cy, 1, {100, 60, 20, 80});

constexpr UINT wrapped = DT_WORDBREAK | DT_EDITCONTROL | DT_EXPANDTABS | DT_NOPREFIX;
constexpr int linePitch = 31; // from a line to the next one where there is room

CRect Place(const skins::Region& region)
{
    return CRect(CPoint(region.x, region.y), CSize(region.w, region.h));
}

/** What is drawn of a line: without a line break at its end, and no more than any screen has room for, as the
 * time to wrap a text grows with its length. */
CString Shown(const CString& line)
{
    constexpr int most = 32768;
    CString text = line.Left(most);
    text.TrimRight(L"\r\n");
    return text;
}

/** Where the lines are in their room, and in which font. */
struct TextPlan {
    CFont* font = nullptr;
    std::array<int, 4> top{};
    std::array<int, 4> height{};
    int needed = 0; // height of all lines without gaps
    bool fits = false;
};

int HeightOf(CDC& dc, const CString& line, int width, int lineHeight)
{
    const CString text = Shown(line);
    if (text.IsEmpty())
        return lineHeight;
    CRect r(0, 0, width, 0);
    dc.DrawText(text, &r, wrapped | DT_CALCRECT);
    return r.Width() > width ? lineHeight : std::max<int>(r.Height(), lineHeight);
}

TextPlan PlanWith(CDC& dc, CFont& font, const MsgLines& lines, CSize room)
{
    TextPlan plan;
    plan.font = &font;
    CFont* const before = dc.SelectObject(&font);
    const int lineHeight = dc.GetTextExtent(L"X").cy;
    std::size_t count = lines.size();
    while (count > 0 && Shown(lines[count - 1]).IsEmpty())
        --count;
    for (std::size_t i = 0; i < count; ++i) {
        plan.height[i] = HeightOf(dc, lines[i], room.cx, lineHeight);
        plan.needed += plan.height[i];
    }
    if (before)
        dc.SelectObject(before);
    plan.fits = plan.needed <= room.cy;
    const int spare = count > 0 ? (room.cy - plan.needed) / static_cast<int>(count) : 0;
    const int gap = std::clamp(spare, 0, std::max(linePitch - lineHeight, 0));
    int y = 0;
    for (std::size_t i = 0; i < count; ++i) {
        plan.top[i] = y;
        plan.height[i] = std::clamp<int>(room.cy - y, 0, plan.height[i]);
        y += plan.height[i] + gap;
    }
    return plan;
}

/** In the usual font if the text fits, else in the small one. */
TextPlan PlanText(CDC& dc, const MsgLines& lines, CSize room)
{
    const TextPlan plan = PlanWith(dc, Vant::normalF, lines, room);
    return plan.fits ? plan : PlanWith(dc, Vant::smallF, lines, room);
}

void DrawIcon(CDC& dc, int type)
{
    const CRect place = Place(back::icon);
    if (type & Vant::msgStopIcon)
        DrawPiece(dc, place, Vant::msgStop, skins::msgStop::icon, 0);
    else if (type & Vant::msgWarnIcon)
        DrawPiece(dc, place, Vant::msgWarn, skins::msgWarn::icon, 0);
    else
        DrawPiece(dc, place, Vant::msgInfo, skins::msgInfo::icon, 0);
}

void DrawFrame(CDC& dc, const CRect& r, COLORREF inside)
{
    dc.FillSolidRect(r, Vant::med);
    CRect inner = r;
    inner.DeflateRect(1, 1);
    dc.FillSolidRect(inner, inside);
}

} // namespace

MsgLines SplitMsg(const CString& text)
{
    MsgLines lines;
    int from = 0;
    for (std::size_t i = 0; i + 1 < lines.size(); ++i) {
        const int end = text.Find(L'\n', from);
        if (end < 0) {
            lines[i] = text.Mid(from);
            return lines;
        }
        lines[i] = text.Mid(from, end - from);
        from = end + 1;
    }
    lines.back() = text.Mid(from);
    return lines;
}

CRect MsgTextRc(CSize box)
{
    CRect r = Place(back::text);
    r.right += box.cx - msgSize.cx;
    r.bottom += box.cy - msgSize.cy;
    return r;
}

bool MsgTextFits(CDC& dc, const MsgLines& lines, CSize room)
{
    return PlanText(dc, lines, room).fits;
}

CSize MsgSizeFor(CDC& dc, const MsgLines& lines, CSize most)
{
    constexpr int step = 50;
    CSize size(msgSize);
    for (;; size.cx += step) {
        const CSize room = MsgTextRc(CSize(size.cx, msgSize.cy)).Size();
        const int missing = PlanWith(dc, Vant::normalF, lines, room).needed - room.cy;
        size.cy = msgSize.cy + std::max<int>(missing, 0);
        // As wide as the skin for its height, or as it may be.
        if (size.cy * msgSize.cx <= size.cx * msgSize.cy || size.cx + step > most.cx)
            break;
    }
    size.cy = std::clamp<int>(most.cy, msgSize.cy, size.cy);
    return size;
}

CRect MsgButtonRc(CSize box, int fromRight)
{
    constexpr skins::Region places[] = {back::button1, back::button2, back::button3};
    CRect r = Place(places[std::clamp(fromRight, 0, 2)]);
    r.OffsetRect(box.cx - msgSize.cx, box.cy - msgSize.cy);
    return r;
}

void DrawMsgFace(CDC& dc, CSize box, int type, const MsgLines& lines)
{
    const CRect all(CPoint(0, 0), box);
    if (!DrawPiece(dc, all, Vant::msgBack, stretched, 0))
        DrawFrame(dc, all, Vant::back);
    DrawIcon(dc, type);

    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(Vant::light);
    CRect title = Place(back::title);
    title.right += box.cx - msgSize.cx;
    CFont* const before = dc.SelectObject(&Vant::boldF);
    DrawLine(dc, Vant::appTitle, title, DT_LEFT);

    const CRect room = MsgTextRc(box);
    const TextPlan plan = PlanText(dc, lines, room.Size());
    dc.SelectObject(plan.font);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        CRect r(CPoint(room.left, room.top + plan.top[i]), CSize(room.Width(), plan.height[i]));
        if (r.IsRectEmpty())
            continue;
        // The height was rounded to units, which must not cut what hangs below the last line.
        r.bottom += plan.fits ? 2 : 0;
        dc.DrawText(Shown(lines[i]), &r, wrapped | DT_END_ELLIPSIS);
    }
    if (before)
        dc.SelectObject(before);
}

void DrawMsgButton(CDC& dc, const CRect& r, CDC& skin, const skins::Region& piece, skins::Look look,
                   const CString& caption)
{
    if (!DrawPiece(dc, r, skin, piece, look))
        DrawFrame(dc, r, look == skins::Look::Normal ? Vant::back : Vant::teal);
    else if (&skin != &Vant::msgBlankBtn)
        return;
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(look == skins::Look::Normal ? Vant::light : litText);
    CFont* const before = dc.SelectObject(&Vant::normalF);
    CRect text = r;
    if (look == skins::Look::Pressed)
        text.OffsetRect(0, 1); // as the face of the skin
    DrawLine(dc, caption, text, DT_CENTER);
    if (before)
        dc.SelectObject(before);
}

} // namespace vant::detail
