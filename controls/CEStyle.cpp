#include "controls/CEStyle.h"

#include "platform/Vant.h"

namespace
{

constexpr COLORREF defaultText = 0xcccccc;

void SelectIfCreated(CDC& dc, const CGdiObject* object)
{
    if (const HGDIOBJ handle = object ? object->m_hObject : nullptr)
        ::SelectObject(dc.m_hDC, handle);
}

void Outline(CDC& dc, int left, int top, int right, int bottom)
{
    dc.MoveTo(left, top);
    dc.LineTo(right, top);
    dc.LineTo(right, bottom);
    dc.LineTo(left, bottom);
    dc.LineTo(left, top);
}

} // namespace

constinit CLstMgd<CEStyle> CEStyle::s_styles;

CEStyle::CEStyle()
    : name(L"Default")
    , txtCol(defaultText)
    , pFont(&Vant::normalF)
    , pBrush(&Vant::blackB)
    , pPen(&Vant::blueL)
{
}

void CEStyle::AddStyle(const CEStyle& style)
{
    s_styles.AddTail(new CEStyle(style));
}

CEStyle* CEStyle::GetStyle(const CString& name)
{
    for (CVantPtr* pos = s_styles.GetHeadPos(); pos;) {
        CEStyle* const style = s_styles.GetNext(pos);
        if (style->name == name)
            return style;
    }
    return nullptr;
}

void CEStyle::Set(CDC* dc) const
{
    SelectIfCreated(*dc, pFont);
    SelectIfCreated(*dc, pBrush);
    SelectIfCreated(*dc, pPen);
    dc->SetTextColor(txtCol);
    dc->SetBkMode(TRANSPARENT);
}

void CEStyle::Brdr1(CDC* dc, const CRect& r)
{
    Outline(*dc, r.left, r.top, r.right, r.bottom);
}

void CEStyle::Brdr2(CDC* dc, const CRect& r)
{
    Outline(*dc, r.left, r.top, r.right - 1, r.bottom - 1);
}
