// CEEdit: its frame, colours and font.
#include "controls/CEEdit.h"

#include "controls/detail/CtrlText.h"
#include "controls/detail/FieldFrame.h"
#include "controls/detail/PaintBuffer.h"
#include "controls/detail/SkinPiece.h"
#include "platform/Vant.h"
#include "resources/Skins.h"

#include <algorithm>

using vant::detail::FieldCell;

namespace
{

// Units.
constexpr int frameWidth = 1;
constexpr int focusWidth = 2;
constexpr int textInset = 4;

/** The room between the window's edges and its line of text, pixels. */
struct Insets {
    int x, y;
};

/** The line stands in the middle; what is too high for the window keeps the frame and is cut. */
Insets InsetsFor(CDpi dpi, int windowHeight, int lineHeight)
{
    const int least = dpi.ToPx(frameWidth);
    return {dpi.ToPx(textInset), std::max(least, (windowHeight - lineHeight) / 2)};
}

void Deflate(RECT& r, Insets by)
{
    const LONG middle = (r.left + r.right) / 2;
    r.left = std::min(r.left + by.x, middle);
    r.right = std::max(r.right - by.x, r.left);
    r.top += by.y;
    r.bottom = std::max(r.bottom - by.y, r.top);
}

LOGFONTW Scaled(HFONT font, CDpi dpi)
{
    LOGFONTW record{};
    ::GetObjectW(font, sizeof record, &record);
    record.lfHeight = dpi.ToPx(record.lfHeight);
    record.lfWidth = dpi.ToPx(record.lfWidth);
    return record;
}

/** Height of a line of the font, or of the system's where there is none, pixels. */
int LineHeight(HWND window, HFONT font)
{
    const HDC dc = ::GetDC(window);
    const HGDIOBJ before = font ? ::SelectObject(dc, font) : nullptr;
    TEXTMETRICW metrics{};
    ::GetTextMetricsW(dc, &metrics);
    if (before)
        ::SelectObject(dc, before);
    ::ReleaseDC(window, dc);
    return static_cast<int>(metrics.tmHeight);
}

} // namespace

CEEdit::Colours CEEdit::ColoursFor(bool valid) const
{
    if (!valid)
        return {style.txtCol, Vant::blue, Vant::blueB};
    // Deliberately black behind the letters on a brush of one's own, too.
    return {style.txtCol, style.greyBk ? Vant::grey : RGB(0, 0, 0), vant::detail::FieldBrush(style)};
}

FieldCell CEEdit::FrameCell() const
{
    if (!IsWindowEnabled())
        return FieldCell::Disabled;
    if (::GetFocus() == m_hWnd)
        return FieldCell::Focused;
    if (!validNow)
        return FieldCell::Invalid;
    return (look & lookHover) != 0 ? FieldCell::Hover : FieldCell::Normal;
}

void CEEdit::DrawField(CDC& dc, const CRect& r) const
{
    const FieldCell cell = FrameCell();
    const int width = cell == FieldCell::Focused ? focusWidth : frameWidth;
    CRect inside = r;
    inside.DeflateRect(width, width);

    const int saved = dc.SaveDC();
    dc.ExcludeClipRect(inside);
    const vant::skins::Region& frames = style.greyBk ? vant::skins::txt::grey : vant::skins::txt::black;
    vant::detail::DrawPiece(dc, r, Vant::txt, frames, static_cast<int>(cell), BackCol());
    dc.RestoreDC(saved);

    ::FillRect(dc, &inside, ColoursFor(validNow != 0).brush);
}

void CEEdit::Draw(CDC* dc)
{
    if (!m_hWnd)
        return;
    CRect r;
    GetWindowRect(r);
    r.OffsetRect(-r.TopLeft());
    r = Dpi().ToUnits(r);
    DrawField(*dc, r);

    style.Set(dc);
    if (!IsWindowEnabled())
        dc->SetTextColor(::GetSysColor(COLOR_GRAYTEXT));
    UINT align = DT_LEFT;
    if (GetStyle() & ES_CENTER)
        align = DT_CENTER;
    else if (GetStyle() & ES_RIGHT)
        align = DT_RIGHT;
    r.DeflateRect(textInset, 0);
    vant::detail::DrawLine(*dc, TypedText(), r, align);
}

void CEEdit::DrawFrame()
{
    CWindowDC dc(this);
    CRect window;
    CRect client;
    GetWindowRect(window);
    GetClientRect(client);
    ClientToScreen(client);
    client.OffsetRect(-window.TopLeft());
    window.OffsetRect(-window.TopLeft());
    dc.ExcludeClipRect(client);
    const CDpi dpi = Dpi();
    const CRect r = dpi.ToUnits(window);
    if (glow == 0) {
        dpi.Apply(dc);
        DrawField(dc, r);
    } else {
        vant::detail::PaintBuffer buffer(dc, window.Size(), dpi, BackCol());
        DrawField(buffer.Dc(), r);
        DrawGlow(buffer.Dc(), r);
        buffer.Show();
    }
    m_shownFrame = FrameCell();
    m_shownBack = BackCol();
}

void CEEdit::RefreshFrame()
{
    if (FrameCell() != m_shownFrame || BackCol() != m_shownBack)
        DrawFrame();
}

void CEEdit::OnMouseMove(UINT flags, CPoint point)
{
    RefreshFrame();
    CECtrl::OnMouseMove(flags, point);
}

void CEEdit::OnMouseLeave()
{
    RefreshFrame();
    CECtrl::OnMouseLeave();
}

void CEEdit::OnEnable(BOOL enable)
{
    CECtrl::OnEnable(enable);
    DrawFrame();
}

void CEEdit::SetGlow(int strength)
{
    const int before = glow;
    CECtrl::SetGlow(strength);
    if (m_hWnd && glow != before)
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME);
}

/** Paints the text and the glow on it in one step. */
void CEEdit::PaintGlowing()
{
    CPaintDC dc(this);
    CRect client;
    CRect window;
    GetClientRect(client);
    GetWindowRect(window);
    ScreenToClient(window);
    if (client.IsRectEmpty())
        return;
    vant::detail::PaintBuffer buffer(dc, client.Size(), CDpi(), BackCol());
    ::FillRect(buffer.Dc(), &client, ColoursFor(validNow != 0).brush);
    SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(buffer.Dc().m_hDC), PRF_CLIENT);
    // As for the frame, to the pixel.
    const CDpi dpi = Dpi();
    const int saved = buffer.Dc().SaveDC();
    buffer.Dc().SetViewportOrg(window.TopLeft());
    dpi.Apply(buffer.Dc());
    DrawGlow(buffer.Dc(), dpi.ToUnits(CRect(CPoint(0, 0), window.Size())));
    buffer.Dc().RestoreDC(saved);
    buffer.Show();
}

void CEEdit::OnPaint()
{
    if (glow != 0)
        PaintGlowing();
    else
        Default();
    RefreshFrame();
}

BOOL CEEdit::OnEraseBkgnd(CDC*)
{
    return static_cast<BOOL>(Default());
}

void CEEdit::OnNcPaint()
{
    DrawFrame();
}

void CEEdit::OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS* params)
{
    RECT& r = params->rgrc[0];
    Deflate(r, InsetsFor(Dpi(), r.bottom - r.top, m_lineHeight));
}

LRESULT CEEdit::OnNcHitTest(CPoint)
{
    // A click beside the line of text is a click into the field.
    return HTCLIENT;
}

LRESULT CEEdit::OnScaleChanged(WPARAM, LPARAM)
{
    ApplyFont();
    return 0;
}

void CEEdit::ApplyFont()
{
    const HGDIOBJ handle = style.pFont ? style.pFont->GetSafeHandle() : nullptr;
    const HFONT source = static_cast<HFONT>(handle);
    const CDpi dpi = Dpi();
    if (m_lineHeight != 0 && source == m_fontOf && dpi == m_fontDpi)
        return;
    m_fontOf = source;
    m_fontDpi = dpi;

    CFont scaled;
    if (source && !dpi.IsUnit()) {
        const LOGFONTW record = Scaled(source, dpi);
        scaled.CreateFontIndirect(&record);
    }
    const HFONT used = scaled.GetSafeHandle() ? static_cast<HFONT>(scaled) : source;
    SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(used), TRUE);
    // The window has let go of the font that it had.
    const HGDIOBJ kept = scaled.Detach();
    m_scaledFont.DeleteObject();
    m_scaledFont.Attach(kept);

    SendMessage(EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, 0);
    m_lineHeight = LineHeight(m_hWnd, used);
    SetWindowPos(nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}
