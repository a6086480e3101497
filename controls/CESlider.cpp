// CESlider: its value, the mouse and the keyboard.
#include "controls/CESlider.h"

#include "controls/detail/BoundNumber.h"
#include "controls/detail/CtrlLook.h"
#include "controls/detail/KeyState.h"
#include "values/detail/ValueLock.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>

using vant::detail::SliderLayout;
using vant::detail::SliderScale;

namespace
{

/** Private window message: an adjustment has ended. */
constexpr UINT releasedMsg = WM_USER + 1;

} // namespace

IMPLEMENT_DYNAMIC(CESlider, CECtrl)

BEGIN_MESSAGE_MAP(CESlider, CECtrl)
    ON_WM_LBUTTONDOWN()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONUP()
    ON_WM_CAPTURECHANGED()
    ON_WM_MOUSEWHEEL()
    ON_WM_KEYDOWN()
    ON_WM_KEYUP()
    ON_WM_KILLFOCUS()
    ON_WM_ENABLE()
    ON_WM_SHOWWINDOW()
    ON_WM_DESTROY()
    ON_WM_GETDLGCODE()
    ON_WM_SIZE()
    ON_MESSAGE(releasedMsg, &CESlider::OnReleased)
END_MESSAGE_MAP()

CESlider::CESlider()
{
    ctrlType = typeSlider;
}

void CESlider::SetRelease(CObject* target, CbDouble fn)
{
    m_releaseObj = target;
    m_release = fn;
}

void CESlider::Retreive() {}

unsigned long CESlider::WndStyle() const
{
    return CECtrl::WndStyle() | WS_TABSTOP | keepFocus;
}

double CESlider::Shown() const
{
    return dragging && !live && m_moved ? m_pending : vant::detail::NumberOf(*this);
}

SliderScale CESlider::Scale() const
{
    if (!vant::detail::IsInteger(*this))
        return {rangeMin, rangeMax, step};
    const auto [least, most] = vant::detail::LimitsOf(*this);
    const auto [low, high] = std::minmax(rangeMin, rangeMax);
    const double first = std::ceil(std::clamp(low, least, most));
    const double last = std::max(std::floor(std::clamp(high, least, most)), first);
    const double whole = std::max(std::floor(step + 0.5), 1.0);
    return rangeMin <= rangeMax ? SliderScale(first, last, whole) : SliderScale(last, first, whole);
}

int CESlider::Along(CPoint px) const
{
    if (!vertical)
        return px.x;
    CRect client;
    GetClientRect(&client);
    return client.bottom - px.y;
}

int CESlider::ThumbAt(double value) const
{
    const SliderLayout layout = PlaceNow().layout;
    const CDpi dpi = Dpi();
    const double travel = Scale().ShareOf(value) * dpi.ToPx(layout.Travel());
    return dpi.ToPx(layout.Start()) + static_cast<int>(std::floor(travel + 0.5));
}

void CESlider::BeginDrag(CPoint px)
{
    if (m_changed)
        Released();
    const double value = vant::detail::NumberOf(*this);
    const int at = Along(px);
    const int thumb = ThumbAt(value);
    const bool onThumb = !std::isnan(value) && std::abs(at - thumb) <= Dpi().ToPx(SliderLayout::thumb / 2);
    m_grip = onThumb ? at - thumb : 0;
    m_at = onThumb ? thumb : std::numeric_limits<int>::min();
    m_before = m_written = vant::detail::SnapshotOf(*this);
    m_moved = false;
    dragging = 1;
    look |= lookPressed;
    SetCapture();
    Invalidate(FALSE);
}

void CESlider::DragTo(CPoint px)
{
    const int at = Along(px) - m_grip;
    const int travel = Dpi().ToPx(PlaceNow().layout.Travel());
    if (at == m_at || travel == 0)
        return;
    m_at = at;
    m_moved = true;
    m_pending = Scale().At(static_cast<double>(at - Dpi().ToPx(SliderLayout::thumb / 2)) / travel);
    Invalidate(FALSE);
    if (!live)
        return;
    TakeForeignChange();
    Store(m_pending);
}

/** A value that the application stored since the drag last did is the one to come back to. */
void CESlider::TakeForeignChange()
{
    const std::uint64_t now = vant::detail::SnapshotOf(*this);
    if (now != m_written)
        m_before = m_written = now;
}

void CESlider::Store(double value)
{
    const std::uint64_t before = vant::detail::SnapshotOf(*this);
    vant::detail::PutNumber(*this, value);
    m_written = vant::detail::SnapshotOf(*this);
    if (m_written == before)
        return;
    Changed();
    // What a callback has made of it is not foreign.
    m_written = vant::detail::SnapshotOf(*this);
}

void CESlider::Changed()
{
    m_changed = true;
    Invalidate(FALSE);
    Execute();
    if (m_hWnd)
        Invalidate(FALSE);
}

void CESlider::Released()
{
    m_changed = false;
    if (m_releaseObj && m_release)
        (m_releaseObj->*m_release)(vant::detail::NumberOf(*this));
}

void CESlider::EndDrag()
{
    dragging = 0;
    look &= ~lookPressed;
    if (m_hWnd)
        Invalidate(FALSE);
}

void CESlider::Cancel()
{
    EndDrag();
    ::ReleaseCapture();
    m_changed = false;
    if (!live)
        return;
    TakeForeignChange();
    if (vant::detail::SnapshotOf(*this) == m_before)
        return;
    vant::detail::PutBack(*this, m_before);
    Execute();
}

void CESlider::OnLButtonDown(UINT flags, CPoint point)
{
    // A click on the read-out would otherwise go to the end of the range.
    const bool onBar = Along(point) <= Dpi().ToPx(PlaceNow().layout.Bar());
    if (!vant::detail::IsNumber(*this) || !onBar)
        return CECtrl::OnLButtonDown(flags, point);
    BeginDrag(point);
    // A field that loses the focus calls its callbacks, which may end the drag.
    if (GetStyle() & WS_TABSTOP)
        SetFocus();
    if (dragging)
        DragTo(point);
}

void CESlider::OnMouseMove(UINT flags, CPoint point)
{
    if (dragging)
        DragTo(point);
    else
        CECtrl::OnMouseMove(flags, point);
}

void CESlider::OnLButtonUp(UINT flags, CPoint point)
{
    if (!dragging)
        return CECtrl::OnLButtonUp(flags, point);
    DragTo(point);
    if (!dragging)
        return;
    EndDrag();
    ::ReleaseCapture();
    if (!live && m_moved)
        Store(m_pending);
    if (m_changed)
        Released();
}

void CESlider::OnCaptureChanged(CWnd* to)
{
    CECtrl::OnCaptureChanged(to);
    if (!dragging)
        return;
    EndDrag();
    ReleaseLater();
}

/** Ends an adjustment that something else puts an end to: the control may be about to be disabled, hidden or
 * destroyed, and nobody is called in the midst of that. */
void CESlider::ReleaseLater()
{
    if (m_changed)
        PostMessage(releasedMsg);
}

LRESULT CESlider::OnReleased(WPARAM, LPARAM)
{
    if (m_changed && !dragging)
        Released();
    return 0;
}

/** Moves the value by an amount, or to the end in that direction, unless it is there already. */
void CESlider::Adjust(double by, bool toEnd)
{
    {
        const vant::detail::ValueLock lock(pMutex);
        if (!vant::detail::IsNumber(*this) || !lock)
            return;
        const SliderScale range = Scale();
        const double value = vant::detail::NumberOf(*this);
        const double end = by > 0 ? 1 : 0;
        if (!std::isnan(value) && range.ShareOf(value) == end)
            return;
        const std::uint64_t before = vant::detail::SnapshotOf(*this);
        vant::detail::PutNumber(*this, toEnd ? range.At(end) : range.Moved(value, by));
        if (vant::detail::SnapshotOf(*this) == before)
            return;
    }
    Changed();
}

bool CESlider::KeyAdjust(UINT key)
{
    const SliderScale range = Scale();
    const double small = vant::detail::IsKeyDown(VK_SHIFT) ? range.FineStep() : range.KeyStep();
    switch (key) {
    case VK_RIGHT:
    case VK_UP:
        Adjust(small);
        return true;
    case VK_LEFT:
    case VK_DOWN:
        Adjust(-small);
        return true;
    case VK_PRIOR:
        Adjust(range.PageStep());
        return true;
    case VK_NEXT:
        Adjust(-range.PageStep());
        return true;
    case VK_END:
        Adjust(1, true);
        return true;
    case VK_HOME:
        Adjust(-1, true);
        return true;
    default:
        return false;
    }
}

int CESlider::Press()
{
    if (!m_hWnd || !IsWindowEnabled())
        return 0;
    SetFocus();
    return 1;
}

int CESlider::Jog(int notches, double by, int fine)
{
    if (dragging || notches == 0)
        return 0;
    // A key that is held down has not told of its change yet.
    if (m_changed)
        Released();
    const SliderScale range = Scale();
    const double own = fine ? range.FineStep() : range.KeyStep();
    Adjust(notches * (by > 0 ? by : own));
    if (!m_changed)
        return 0;
    Released();
    return 1;
}

void CESlider::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    if (dragging) {
        // The mouse has the thumb.
        if (key == VK_ESCAPE)
            Cancel();
        return;
    }
    if (!KeyAdjust(key))
        CECtrl::OnKeyDown(key, repeat, flags);
}

void CESlider::OnKeyUp(UINT key, UINT repeat, UINT flags)
{
    CECtrl::OnKeyUp(key, repeat, flags);
    if (m_changed && !dragging)
        Released();
}

void CESlider::OnKillFocus(CWnd* to)
{
    CECtrl::OnKillFocus(to);
    if (!dragging)
        ReleaseLater();
}

BOOL CESlider::OnMouseWheel(UINT flags, short delta, CPoint point)
{
    CRect place;
    GetWindowRect(&place);
    if (!vant::detail::HasFocus(*this) || !place.PtInRect(point) || dragging)
        return CECtrl::OnMouseWheel(flags, delta, point);
    const int notches = m_wheel.Take(delta);
    const SliderScale range = Scale();
    if (notches != 0)
        Adjust(notches * ((flags & MK_SHIFT) ? range.FineStep() : range.KeyStep()));
    if (m_changed)
        Released();
    return TRUE;
}

void CESlider::OnEnable(BOOL enable)
{
    CECtrl::OnEnable(enable);
    if (!enable && dragging)
        ::ReleaseCapture();
}

void CESlider::OnShowWindow(BOOL show, UINT status)
{
    CECtrl::OnShowWindow(show, status);
    if (!show && dragging)
        ::ReleaseCapture();
}

void CESlider::OnDestroy()
{
    m_changed = false;
    dragging = 0;
    look &= ~lookPressed;
    CECtrl::OnDestroy();
}

UINT CESlider::OnGetDlgCode()
{
    const auto* const asked = reinterpret_cast<const MSG*>(GetCurrentMessage()->lParam);
    const bool escape = asked && asked->message == WM_KEYDOWN && asked->wParam == VK_ESCAPE;
    return DLGC_WANTARROWS | (escape && dragging ? DLGC_WANTMESSAGE : 0);
}

void CESlider::OnSize(UINT how, int width, int height)
{
    CECtrl::OnSize(how, width, height);
    Invalidate(FALSE);
}
