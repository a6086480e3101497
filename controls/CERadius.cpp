#include "controls/CERadius.h"

#include "controls/detail/BoundNumber.h"
#include "controls/detail/CtrlLook.h"
#include "controls/detail/DialGeometry.h"
#include "controls/detail/SkinPiece.h"
#include "core/ML.h"
#include "platform/Vant.h"
#include "platform/detail/Module.h"
#include "resources/Skins.h"
#include "values/detail/ValueType.h"

#include <algorithm>
#include <cmath>

using vant::detail::DialGeometry;
using vant::detail::TypeOf;
using vant::detail::ValueType;

IMPLEMENT_DYNAMIC(CERadius, CECtrl)

BEGIN_MESSAGE_MAP(CERadius, CECtrl)
    ON_WM_CREATE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_MOUSEMOVE()
    ON_WM_SETCURSOR()
    ON_WM_CAPTURECHANGED()
    ON_WM_KEYDOWN()
    ON_WM_GETDLGCODE()
    ON_WM_SIZE()
END_MESSAGE_MAP()

namespace
{

constexpr double coarse = 5 * ML::d2r;
constexpr double fine = 1 * ML::d2r;
constexpr int handleHalf = 4;   // units from the handle's middle to its edges
constexpr int handleCorner = 8; // units

DialGeometry GeometryOf(const CECtrl& ctrl)
{
    const CRect client = ctrl.ClientRc();
    return {client.Width(), client.Height()};
}

/** Shows one of the library's cursors. They are shared: the system frees them. */
void ShowCursorOf(int id)
{
    const HANDLE cursor = ::LoadImageW(vant::detail::Module(), MAKEINTRESOURCEW(id), IMAGE_CURSOR, 0, 0,
                                       LR_DEFAULTSIZE | LR_SHARED);
    if (cursor)
        ::SetCursor(static_cast<HCURSOR>(cursor));
}

/** Lets only the inside of the dial through. */
void ClipToRim(CDC& dc, int diameter)
{
    CRect px(0, 0, diameter, diameter);
    dc.LPtoDP(&px);
    CRgn rim;
    rim.CreateEllipticRgn(px.left, px.top, px.right + 1, px.bottom + 1);
    dc.SelectClipRgn(&rim, RGN_AND);
}

/** Draws the skin of the dial in a square, all at the top left. Each pixel of the skin is combined with the
 * brush, which white leaves as it is. @param back  colour of what the dial stands on */
void DrawFace(CDC& dc, CDC& skin, int diameter, COLORREF back)
{
    constexpr vant::skins::Region face = vant::skins::dial::face;
    const int saved = dc.SaveDC();
    if (back != vant::detail::skinBack)
        ClipToRim(dc, diameter);
    dc.SelectStockObject(WHITE_BRUSH);
    dc.SetStretchBltMode(HALFTONE);
    // Halftoning leaves the brush origin undefined.
    dc.SetBrushOrg(0, 0);
    dc.StretchBlt(0, 0, diameter, diameter, &skin, face.x, face.y, face.w, face.h, MERGECOPY);
    dc.RestoreDC(saved);
}

/** A ring around the dial. */
void DrawFocus(CDC& dc, int diameter)
{
    const int saved = dc.SaveDC();
    dc.SelectStockObject(NULL_BRUSH);
    dc.SelectObject(&Vant::lightL);
    dc.Ellipse(0, 0, diameter, diameter);
    dc.RestoreDC(saved);
}

} // namespace

CERadius::CERadius()
{
    ctrlType = typeRadius;
    LoadBitmapW(vant::skins::dial::skin.id);
}

unsigned long CERadius::WndStyle() const
{
    return CECtrl::WndStyle() | WS_TABSTOP | keepFocus;
}

int CERadius::OnCreate(LPCREATESTRUCT create)
{
    TakeBrg();
    return CECtrl::OnCreate(create);
}

void CERadius::Update(int arg)
{
    TakeBrg();
    CECtrl::Update(arg);
}

void CERadius::TakeBrg()
{
    if (!HoldsAngle())
        return;
    const double bound = vant::detail::NumberOf(*this);
    if (std::isfinite(bound))
        brg = bound;
}

void CERadius::Retreive()
{
    StoreBrg();
}

bool CERadius::HoldsAngle() const
{
    return TypeOf(type) == ValueType::Float || TypeOf(type) == ValueType::Double;
}

void CERadius::StoreBrg()
{
    if (HoldsAngle())
        SetVal(brg);
}

void CERadius::Draw(CDC* dc)
{
    const CRect client = ClientRc();
    const DialGeometry dial(client.Width(), client.Height());
    const bool enabled = IsEnabled();
    DrawBack(dc);
    if (ownDC)
        DrawFace(*dc, enabled ? dcNorm : dcGrey, dial.Diameter(), BackCol());
    if (vant::detail::HasFocus(*this))
        DrawFocus(*dc, dial.Diameter());

    dir = vant::detail::DialDirection(brg, slope);
    const auto [x, y] = dial.HandleOf(dir);
    const int saved = dc->SaveDC();
    dc->SelectObject(enabled ? &Vant::lightL : &Vant::darkL);
    dc->SelectObject(enabled ? &Vant::cyanB : &Vant::darkB);
    dc->MoveTo(dial.Radius(), dial.Radius());
    dc->LineTo(x, y);
    dc->RoundRect(x - handleHalf, y - handleHalf, x + handleHalf, y + handleHalf, handleCorner, handleCorner);
    dc->RestoreDC(saved);
}

int CERadius::OnHandle(CPoint pt)
{
    return GeometryOf(*this).IsOnHandle(dir, {pt.x, pt.y});
}

void CERadius::OnLButtonDown(UINT, CPoint point)
{
    if (!OnHandle(Dpi().ToUnits(point)))
        return;
    ShowCursorOf(VANT_IDC_GRAB);
    SetCapture();
    dragging = 1;
    // The last thing: a field that loses the focus calls its callbacks.
    if (GetStyle() & WS_TABSTOP)
        SetFocus();
}

void CERadius::OnMouseMove(UINT, CPoint point)
{
    const CPoint at = Dpi().ToUnits(point);
    if (!dragging) {
        if (OnHandle(at))
            ShowCursorOf(VANT_IDC_HAND);
        return;
    }
    ShowCursorOf(VANT_IDC_GRAB);
    dir = GeometryOf(*this).DirectionAt({at.x, at.y});
    brg = dir.Brg();
    slope = dir.Slope();
    Invalidate();
    StoreBrg();
    // The last thing: a callback may destroy this control.
    Execute();
}

void CERadius::OnLButtonUp(UINT, CPoint)
{
    if (!dragging)
        return;
    dragging = 0;
    ::ReleaseCapture();
    Execute();
}

void CERadius::OnCaptureChanged(CWnd* wnd)
{
    // Another window took the mouse, or a menu or message box came up: the handle stays where it is.
    dragging = 0;
    CECtrl::OnCaptureChanged(wnd);
}

BOOL CERadius::OnSetCursor(CWnd* wnd, UINT hitTest, UINT message)
{
    CPoint at;
    ::GetCursorPos(&at);
    ScreenToClient(&at);
    // Otherwise the arrow would show up between one move of the mouse and the next.
    if (hitTest == HTCLIENT && OnHandle(Dpi().ToUnits(at)))
        return TRUE;
    return CECtrl::OnSetCursor(wnd, hitTest, message);
}

void CERadius::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    const double step = ::GetKeyState(VK_SHIFT) < 0 ? fine : coarse;
    switch (key) {
    case VK_LEFT:
        return Turn(-step, 0);
    case VK_RIGHT:
        return Turn(step, 0);
    case VK_UP:
        return Turn(0, step);
    case VK_DOWN:
        return Turn(0, -step);
    default:
        CECtrl::OnKeyDown(key, repeat, flags);
    }
}

int CERadius::Press()
{
    if (!m_hWnd || !IsWindowEnabled())
        return 0;
    SetFocus();
    return 1;
}

int CERadius::Jog(int notches, double step, int isFine)
{
    if (dragging || notches == 0)
        return 0;
    Turn(notches * (step > 0 ? step : isFine ? fine : coarse), 0);
    return 1;
}

void CERadius::Turn(double byBrg, double bySlope)
{
    brg = ML::FModT(std::fmod(brg + byBrg, ML::pi2) + ML::pi2, ML::pi2);
    slope = std::clamp(std::fabs(slope) + bySlope, 0.0, ML::pi_2);
    dir = vant::detail::DialDirection(brg, slope);
    Invalidate();
    StoreBrg();
    Execute();
}

UINT CERadius::OnGetDlgCode()
{
    return DLGC_WANTARROWS;
}

void CERadius::OnSize(UINT how, int width, int height)
{
    CECtrl::OnSize(how, width, height);
    Invalidate();
}
