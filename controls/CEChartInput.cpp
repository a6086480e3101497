// CEChart: mouse and keyboard.
#include "controls/CEChart.h"

#include "controls/detail/ChartState.h"
#include "controls/detail/PressFocus.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

using vant::detail::ChartView;

BEGIN_MESSAGE_MAP(CEChart, CECtrl)
    ON_WM_CREATE()
    ON_WM_TIMER()
    ON_WM_SIZE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
    ON_WM_MOUSEWHEEL()
    ON_WM_CAPTURECHANGED()
    ON_WM_KEYDOWN()
    ON_WM_GETDLGCODE()
END_MESSAGE_MAP()

namespace
{

constexpr double zoomStep = 1.25;  // per notch of the wheel
constexpr double keyZoom = 1.5;    // per press
constexpr double arrowShare = 0.1; // of the span, per press
constexpr double pageShare = 0.9;
constexpr double stayLive = 0.95; // of the width: zooming in right of it goes on live
constexpr int tremble = 3;        // units that the mouse may move between press and release of a click

} // namespace

void CEChart::OnLButtonDown(UINT, CPoint point)
{
    if ((GetStyle() & WS_TABSTOP) && !vant::detail::FocusByPress(m_hWnd))
        return;
    auto& parts = *m_state;
    const auto named = std::find_if(parts.names.begin(), parts.names.end(),
                                    [&](const auto& name) { return name.place.Has(point.x, point.y); });
    if (named != parts.names.end()) {
        parts.pressTime.reset();
        if (CETrace* const trace = GetTrace(named->trace)) {
            trace->visible = !trace->visible;
            Redraw();
        }
        return;
    }
    const LONG now = ::GetMessageTime();
    if (parts.pressTime && static_cast<UINT>(now - *parts.pressTime) <= ::GetDoubleClickTime()) {
        parts.pressTime.reset();
        return SetLive(1);
    }
    parts.pressTime = now;
    parts.dragging = true;
    parts.dragged = false;
    parts.dragFrom = point;
    SetCapture();
}

void CEChart::OnMouseMove(UINT flags, CPoint point)
{
    auto& parts = *m_state;
    parts.mouse = point;
    if (parts.dragging && parts.perPixel > 0) {
        const int moved = point.x - parts.dragFrom.x;
        if (parts.dragged || std::abs(moved) > Dpi().ToPx(tremble)) {
            parts.dragged = true;
            parts.pressTime.reset();
            SyncTimes();
            parts.view.Pan(-moved * parts.perPixel);
            parts.dragFrom = point;
        }
    }
    Redraw();
    CECtrl::OnMouseMove(flags, point);
}

void CEChart::OnMouseLeave()
{
    m_state->mouse.reset();
    Redraw();
    CECtrl::OnMouseLeave();
}

void CEChart::OnLButtonUp(UINT flags, CPoint point)
{
    if (m_state->dragging)
        ::ReleaseCapture();
    CECtrl::OnLButtonUp(flags, point);
}

void CEChart::OnCaptureChanged(CWnd* wnd)
{
    m_state->dragging = false;
    CECtrl::OnCaptureChanged(wnd);
}

BOOL CEChart::OnMouseWheel(UINT, short delta, CPoint point)
{
    auto& parts = *m_state;
    // Fine wheels report parts of a notch.
    const double notches = static_cast<double>(delta) / WHEEL_DELTA;
    ScreenToClient(&point);
    double place = 1;
    if (parts.plot.Width() > 0)
        place = static_cast<double>(point.x - parts.plot.left) / parts.plot.Width();
    if (parts.view.IsLive() && place > stayLive)
        place = 1;
    SyncTimes();
    parts.view.Zoom(std::pow(zoomStep, -notches), place);
    Redraw();
    return TRUE;
}

bool CEChart::TakeKey(UINT key)
{
    SyncTimes();
    ChartView& view = m_state->view;
    const double middle = view.IsLive() ? 1.0 : 0.5;
    switch (key) {
    case VK_LEFT:
        view.Pan(-view.Span() * arrowShare);
        break;
    case VK_RIGHT:
        view.Pan(view.Span() * arrowShare);
        break;
    case VK_PRIOR:
        view.Pan(-view.Span() * pageShare);
        break;
    case VK_NEXT:
        view.Pan(view.Span() * pageShare);
        break;
    case VK_HOME:
        view.GoToOldest();
        break;
    case VK_END:
        view.SetLive(true);
        break;
    case VK_SPACE:
        view.SetLive(!view.IsLive());
        break;
    case VK_ADD:
    case VK_OEM_PLUS:
        view.Zoom(1 / keyZoom, middle);
        break;
    case VK_SUBTRACT:
    case VK_OEM_MINUS:
        view.Zoom(keyZoom, middle);
        break;
    default:
        return false;
    }
    Redraw();
    return true;
}

void CEChart::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    if (!TakeKey(key))
        CECtrl::OnKeyDown(key, repeat, flags);
}

UINT CEChart::OnGetDlgCode()
{
    return DLGC_WANTARROWS | DLGC_WANTCHARS;
}
