#include "CStill.h"

#include <algorithm>

namespace
{

constexpr int bitsPerPixel = 32;

CECtrl* ControlOf(HWND wnd)
{
    return dynamic_cast<CECtrl*>(CWnd::FromHandlePermanent(wnd));
}

/** Draws a control, and over it those that it is made of, as the screen would show them. */
void DrawTree(CECtrl& ctrl, CDC& dc)
{
    const int saved = dc.SaveDC();
    ctrl.Dpi().Apply(dc);
    ctrl.Draw(&dc);
    dc.RestoreDC(saved);
    CRect outer;
    ctrl.GetWindowRect(outer);
    for (HWND wnd = ::GetWindow(ctrl, GW_CHILD); wnd; wnd = ::GetWindow(wnd, GW_HWNDNEXT)) {
        CECtrl* const part = ControlOf(wnd);
        if (!part)
            continue;
        CRect inner;
        part->GetWindowRect(inner);
        const int before = dc.SaveDC();
        dc.OffsetViewportOrg(inner.left - outer.left, inner.top - outer.top);
        DrawTree(*part, dc);
        dc.RestoreDC(before);
    }
}

bool AreSame(const CImage& a, const CImage& b)
{
    const auto width = static_cast<std::size_t>(a.GetWidth()) * bitsPerPixel / 8;
    for (int row = 0; row < a.GetHeight(); ++row) {
        const auto* const first = static_cast<const unsigned char*>(a.GetPixelAddress(0, row));
        if (!std::equal(first, first + width, static_cast<const unsigned char*>(b.GetPixelAddress(0, row))))
            return false;
    }
    return true;
}

} // namespace

CStill::CStill(CECtrl& model, State inState, const CString& ofWhat)
    : posed(inState)
    , what(ofWhat)
    , m_model(model)
{
}

void CStill::Take()
{
    CImage normal;
    m_looksNormal = !TakeInto(normal, stNormal) || !TakeInto(m_picture, posed) || AreSame(normal, m_picture);
    Pose(m_model, stNormal, *GetParent());
    m_model.state = CECtrl::stEnabled; // not to be seen
    Invalidate();
}

bool CStill::TakeInto(CImage& image, State inState)
{
    CRect size;
    m_model.GetWindowRect(size);
    image.Destroy();
    if (!image.Create(size.Width(), size.Height(), bitsPerPixel))
        return false;
    Pose(m_model, inState, *GetParent());
    CDC dc;
    dc.Attach(image.GetDC());
    DrawTree(m_model, dc);
    dc.Detach();
    image.ReleaseDC();
    ::GdiFlush();
    return true;
}

void CStill::Draw(CDC* dc)
{
    DrawBack(dc);
    if (m_picture.IsNull())
        return;
    const int saved = dc->SaveDC();
    dc->SetMapMode(MM_TEXT); // its pixels are the screen's
    ::BitBlt(*dc, 0, 0, m_picture.GetWidth(), m_picture.GetHeight(), m_picture.GetDC(), 0, 0, SRCCOPY);
    m_picture.ReleaseDC();
    dc->RestoreDC(saved);
}
