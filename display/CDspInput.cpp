// CDsp: mouse and keys.
#include "display/CDsp.h"

#include "display/CMdlPos.h"
#include "display/detail/ViewCameraOf.h"
#include "display/detail/ViewState.h"
#include "platform/detail/Module.h"
#include "resources/Ids.h"

#include <cmath>
#include <cstdlib>

using namespace vant::detail;

namespace
{

constexpr double perNotch = 1.25;     ///< zoom of a notch of the wheel
constexpr double perFineNotch = 1.04; ///< and with Ctrl
constexpr double perKeyZoom = 1.25;
constexpr double dragForDouble = 120;         ///< units of a drag that zooms by 2
constexpr double anglePerUnit = ML::D2R(0.4); ///< of a drag that turns
constexpr double keyAngle = ML::D2R(5);
constexpr double fine = 0.1;     ///< of a step, with Shift
constexpr double keyShare = 0.1; ///< of the view, that an arrow pans by

bool IsDown(int key) noexcept
{
    return ::GetKeyState(key) < 0;
}

int CursorOf(int mode)
{
    switch (mode) {
    case CDsp::mouseZoom:
        return VANT_IDC_ZOOM_IN;
    case CDsp::mouseRotate:
        return VANT_IDC_ROTATE;
    case CDsp::mousePick:
        return VANT_IDC_CROSS;
    default:
        return VANT_IDC_PAN;
    }
}

void ShowCursorOf(int mode)
{
    ::SetCursor(::LoadCursorW(Module(), MAKEINTRESOURCEW(CursorOf(mode))));
}

} // namespace

void CDsp::BeginDrag(int mode, UINT button, CPoint point)
{
    if (m_state->drag) // the button of the drag that goes on decides
        return;
    SetFocus();
    SetCapture();
    ViewDrag drag{mode, button, point, point, m_cam, m_up, {}, false, false};
    drag.grabbed = Geometry().Grab(point.x - insetLeft, point.y - insetTop, drag.isLevel);
    m_state->drag = drag;
}

/** Ends the drag of a button. @return whether it was a click: nothing has moved */
bool CDsp::EndDrag(UINT button)
{
    if (!m_state->drag || m_state->drag->button != button)
        return false;
    const bool isClick = !m_state->drag->hasMoved;
    m_state->drag.reset();
    if (GetCapture() == this)
        ::ReleaseCapture();
    return isClick;
}

void CDsp::DragTo(CPoint point)
{
    ViewDrag& drag = *m_state->drag;
    if (!drag.hasMoved) {
        const CPoint way = point - drag.start;
        if (std::abs(way.x) < ::GetSystemMetrics(SM_CXDRAG) &&
            std::abs(way.y) < ::GetSystemMetrics(SM_CYDRAG))
            return;
        drag.hasMoved = true;
        ShowCursorOf(drag.mode); // the system does not ask for it during a drag
    }
    const CPoint last = drag.last;
    drag.last = point;
    const double toUnits = 1 / OverlayScale();
    switch (drag.mode) {
    case mouseZoom:
        ZoomBy(std::exp2((point.y - last.y) * toUnits / dragForDouble), drag.start.x, drag.start.y);
        break;
    case mouseRotate:
        if (m_cam.kind == CDspCam::plan)
            TurnAround(last, point);
        else
            TurnBy((point.x - last.x) * toUnits * anglePerUnit, (point.y - last.y) * toUnits * anglePerUnit);
        break;
    default:
        Point3 under;
        if (Geometry().OnGrabbed(point.x - insetLeft, point.y - insetTop, drag.isLevel, under)) {
            CDspCam cam = m_cam;
            cam.org += FromPoint(drag.grabbed - under);
            ApplyByUser(cam);
        }
    }
}

/** Turns a chart so that what was under one position comes as near as possible to another one. */
void CDsp::TurnAround(CPoint from, CPoint to)
{
    const ViewGeometry geometry = Geometry();
    const auto bearing = [&](CPoint at) {
        return std::atan2(at.x - insetLeft - geometry.Width() / 2, geometry.Height() / 2 - (at.y - insetTop));
    };
    TurnBy(bearing(from) - bearing(to), 0);
}

/** @param turn  of what is up, clockwise  @param rise  of an orbiting eye; radians */
void CDsp::TurnBy(double turn, double rise)
{
    CDspCam cam = m_cam;
    cam.align += turn;
    if (cam.kind == CDspCam::orbit)
        cam.elev += rise;
    ApplyByUser(cam);
}

/** Multiplies the zoom; what is under a position stays there, if the user may pan. */
void CDsp::ZoomBy(double factor, double atX, double atY)
{
    CDspCam cam = m_cam;
    cam.zoom *= factor;
    CDspCam limited = m_cam;
    limited.Take(cam);
    bool isLevel = false;
    const Point3 still = Geometry().Grab(atX - insetLeft, atY - insetTop, isLevel);
    const double share = limited.zoom / m_cam.zoom;
    limited.org = FromPoint(still + (ToPoint(m_cam.org) - still) * share);
    ApplyByUser(limited);
}

/** Moves the view over the display: shares of its height to the right and upwards. */
void CDsp::PanBy(double right, double up)
{
    // Ahead on the ground, which an orbiting eye may see from the side.
    const CV3 ahead(std::sin(m_cam.align), std::cos(m_cam.align), 0);
    CDspCam cam = m_cam;
    cam.org += m_cam.Right() * (right * m_cam.zoom) + ahead * (up * m_cam.zoom);
    ApplyByUser(cam);
}

void CDsp::OnLButtonDown(UINT, CPoint point)
{
    BeginDrag(mouseMode, MK_LBUTTON, point);
}

void CDsp::OnLButtonUp(UINT, CPoint point)
{
    if (EndDrag(MK_LBUTTON) && mouseMode == mousePick)
        PickFor(pickClick, point.x, point.y);
}

void CDsp::OnLButtonDblClk(UINT, CPoint point)
{
    if (mouseMode == mousePick)
        return PickFor(pickDblClick, point.x, point.y);
    CDspCam cam = m_cam;
    bool isLevel = false;
    cam.org = FromPoint(Geometry().Grab(point.x - insetLeft, point.y - insetTop, isLevel));
    ApplyByUser(cam);
}

void CDsp::OnMButtonDown(UINT, CPoint point)
{
    BeginDrag(mousePan, MK_MBUTTON, point);
}

void CDsp::OnMButtonUp(UINT, CPoint)
{
    EndDrag(MK_MBUTTON);
}

void CDsp::OnMButtonDblClk(UINT flags, CPoint point)
{
    OnMButtonDown(flags, point);
}

void CDsp::OnRButtonDown(UINT, CPoint point)
{
    BeginDrag(mouseRotate, MK_RBUTTON, point);
}

void CDsp::OnRButtonUp(UINT flags, CPoint point)
{
    // The system makes WM_CONTEXTMENU of it.
    if (EndDrag(MK_RBUTTON))
        CGLWnd::OnRButtonUp(flags, point);
}

void CDsp::OnRButtonDblClk(UINT flags, CPoint point)
{
    OnRButtonDown(flags, point);
}

void CDsp::OnContextMenu(CWnd* wnd, CPoint point)
{
    if (wnd != this) // of a control in the view
        return CGLWnd::OnContextMenu(wnd, point);
    if (point == CPoint(-1, -1)) // by a key
        return PickMiddle(pickMenu);
    ScreenToClient(&point);
    PickFor(pickMenu, point.x, point.y);
}

void CDsp::PickMiddle(int how)
{
    const ViewGeometry geometry = Geometry();
    PickFor(how, insetLeft + geometry.Width() / 2, insetTop + geometry.Height() / 2);
}

void CDsp::OnMouseMove(UINT flags, CPoint point)
{
    if (!m_state->drag)
        return CGLWnd::OnMouseMove(flags, point);
    // The release may have been somebody else's.
    if (!(flags & m_state->drag->button))
        EndDrag(m_state->drag->button);
    else
        DragTo(point);
}

BOOL CDsp::OnMouseWheel(UINT flags, short delta, CPoint point)
{
    // Any part of a notch, as fine wheels and touch pads report it.
    const double notches = static_cast<double>(delta) / WHEEL_DELTA;
    ScreenToClient(&point);
    ZoomBy(std::pow(flags & MK_CONTROL ? perFineNotch : perNotch, -notches), point.x, point.y);
    return TRUE;
}

void CDsp::OnCaptureChanged(CWnd*)
{
    m_state->drag.reset();
}

void CDsp::OnCancelMode()
{
    m_state->drag.reset();
    CGLWnd::OnCancelMode();
}

BOOL CDsp::OnSetCursor(CWnd* wnd, UINT hitTest, UINT message)
{
    if (hitTest != HTCLIENT || wnd != this)
        return CGLWnd::OnSetCursor(wnd, hitTest, message);
    ShowCursorOf(m_state->drag ? m_state->drag->mode : mouseMode);
    return TRUE;
}

UINT CDsp::OnGetDlgCode()
{
    return DLGC_WANTARROWS | DLGC_WANTCHARS;
}

bool CDsp::OnModeKey(UINT key)
{
    switch (key) {
    case 'P':
        mouseMode = mousePan;
        return true;
    case 'Z':
        mouseMode = mouseZoom;
        return true;
    case 'R':
        mouseMode = mouseRotate;
        return true;
    case 'S':
        mouseMode = mousePick;
        return true;
    case 'N':
    case 'C':
        if (!m_pos || m_pos->AllowUserAlign())
            SetUp(key == 'N' ? upNorth : upCourse);
        break;
    case 'V': {
        CDspCam cam = m_cam;
        cam.kind = cam.kind == CDspCam::plan ? CDspCam::orbit : CDspCam::plan;
        Apply(cam);
        break;
    }
    case 'G':
        graticule = !graticule;
        AskDraw();
        break;
    case VK_HOME: {
        CDspCam cam = m_cam;
        if (FitTo(nullptr, cam))
            ApplyByUser(cam);
        break;
    }
    default:
        return false;
    }
    AskDrawSoon();
    return true;
}

bool CDsp::OnMoveKey(UINT key)
{
    const double step = IsDown(VK_SHIFT) ? fine : 1;
    const bool turns = mouseMode == mouseRotate || IsDown(VK_CONTROL);
    const ViewGeometry geometry = Geometry();
    const auto zoom = [&](bool closer) {
        ZoomBy(std::pow(perKeyZoom, closer ? -step : step), insetLeft + geometry.Width() / 2,
               insetTop + geometry.Height() / 2);
    };
    switch (key) {
    case VK_ADD:
    case VK_OEM_PLUS:
    case VK_SUBTRACT:
    case VK_OEM_MINUS:
        zoom(key == VK_ADD || key == VK_OEM_PLUS);
        return true;
    case VK_LEFT:
    case VK_RIGHT: {
        const double side = key == VK_RIGHT ? step : -step;
        if (turns)
            TurnBy(side * keyAngle, 0);
        else
            PanBy(side * keyShare, 0);
        return true;
    }
    case VK_UP:
    case VK_DOWN: {
        const double side = key == VK_UP ? step : -step;
        if (turns)
            TurnBy(0, side * keyAngle);
        else if (mouseMode == mouseZoom)
            zoom(key == VK_UP);
        else
            PanBy(0, side * keyShare);
        return true;
    }
    default:
        return false;
    }
}

void CDsp::OnKeyDown(UINT key, UINT repeats, UINT flags)
{
    if (key == VK_ESCAPE && m_state->drag) {
        const ViewDrag drag = *m_state->drag;
        EndDrag(drag.button);
        ApplyByUser(drag.before);
        m_up = drag.upBefore;
        return;
    }
    const bool picks = mouseMode == mousePick && (key == VK_RETURN || key == VK_SPACE);
    if (picks)
        PickMiddle(pickClick);
    else if ((IsDown(VK_CONTROL) || !OnModeKey(key)) && !OnMoveKey(key))
        CGLWnd::OnKeyDown(key, repeats, flags);
}
