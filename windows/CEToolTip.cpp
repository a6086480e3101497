#include "windows/CEToolTip.h"

#include "controls/detail/MouseMessages.h"
#include "platform/Vant.h"
#include "windows/detail/MsgPlace.h"

#include <algorithm>

namespace
{

constexpr UINT_PTR restTimer = 1;  // the mouse rests
constexpr UINT_PTR watchTimer = 2; // a tip is shown
constexpr UINT watchPeriod = 200;  // milliseconds
constexpr SIZE margin{6, 4};       // between edge and text, units
constexpr int belowMouse = 22;     // from the mouse's point to the tip, under the arrow; units
constexpr int aboveMouse = 6;      // the same upwards
constexpr UINT wrapped = DT_WORDBREAK | DT_EDITCONTROL | DT_EXPANDTABS | DT_NOPREFIX;

/** Milliseconds that the mouse has to rest. */
UINT RestTime()
{
    constexpr double most = 1e6; // seconds; beyond a timer's range
    const double rest = Vant::hoverTime;
    if (!(rest > 0))
        return USER_TIMER_MINIMUM;
    return std::max(static_cast<UINT>(std::min(rest, most) * 1000), UINT{USER_TIMER_MINIMUM});
}

bool IsInput(UINT message)
{
    return message == WM_KEYDOWN || message == WM_SYSKEYDOWN || vant::detail::IsMousePress(message) ||
           vant::detail::IsMouseWheel(message);
}

// The tip that watches for input: one at a time, as there is one mouse.
CEToolTip* watching = nullptr;

} // namespace

IMPLEMENT_DYNAMIC(CEToolTip, CVantWnd)

BEGIN_MESSAGE_MAP(CEToolTip, CVantWnd)
    ON_WM_TIMER()
    ON_WM_DESTROY()
    ON_WM_WINDOWPOSCHANGING()
    ON_WM_NCHITTEST()
    ON_WM_MOUSEACTIVATE()
END_MESSAGE_MAP()

constexpr int CEToolTip::maxWidth;

CEToolTip::CEToolTip()
    : text(L"test")
{
    name = L"ToolTip";
}

CEToolTip::~CEToolTip()
{
    if (m_hWnd)
        DestroyWindow();
}

int CEToolTip::Create()
{
    if (m_hWnd)
        DestroyWindow();
    if (!CWnd::CreateEx(WS_EX_TOPMOST | WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE, Vant::wndClass, L"", WS_POPUP,
                        CRect(0, 0, 0, 0), nullptr, 0))
        return 0;
    UpdateSize();
    return 1;
}

void CEToolTip::SetText(const CString& newText)
{
    text = newText;
    UpdateSize();
    if (m_hWnd)
        Invalidate(FALSE);
}

void CEToolTip::UpdateSize()
{
    if (!m_hWnd)
        return;
    const CDpi dpi = Dpi();
    CRect r(0, 0, maxWidth, 0);
    {
        CClientDC dc(this);
        dpi.Apply(dc);
        CFont* const before = dc.SelectObject(&Vant::normalF);
        dc.DrawText(text, &r, wrapped | DT_CALCRECT);
        if (before)
            dc.SelectObject(before);
    }
    // One unit more in width, lest the rounding to pixels wraps a line.
    r.right = std::min<int>(r.right, maxWidth) + 1;
    r.InflateRect(margin);
    const CSize size = dpi.ToPx(r).Size();
    CRect place;
    GetWindowRect(&place);
    const CRect area = vant::detail::WorkArea(place.TopLeft());
    place = CRect(place.TopLeft(), CSize(size.cx, std::min<int>(size.cy, area.Height())));
    place = vant::detail::MovedInto(place, area);
    SetWindowPos(nullptr, place.left, place.top, place.Width(), place.Height(),
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

void CEToolTip::Show()
{
    if (!m_hWnd)
        return;
    ShowWindow(SW_SHOW);
    UpdateWindow();
}

void CEToolTip::ShowAt(CPoint screenPt)
{
    if (!m_hWnd)
        return;
    UpdateSize();
    CRect place;
    GetWindowRect(&place);
    const CDpi dpi = Dpi();
    const CRect area = vant::detail::WorkArea(screenPt);
    const CSize size = place.Size();
    CPoint at(screenPt.x, screenPt.y + dpi.ToPx(belowMouse));
    if (at.y + size.cy > area.bottom)
        at.y = screenPt.y - dpi.ToPx(aboveMouse) - size.cy;
    place = vant::detail::MovedInto(CRect(at, size), area);
    SetWindowPos(&wndTopMost, place.left, place.top, 0, 0, SWP_NOSIZE | SWP_NOACTIVATE);
    Show();
}

void CEToolTip::Hide()
{
    WatchInput(false);
    if (!m_hWnd)
        return;
    KillTimer(restTimer);
    KillTimer(watchTimer);
    ShowWindow(SW_HIDE);
}

void CEToolTip::Draw(CDC* dc)
{
    CRect r = ClientRc();
    dc->FillSolidRect(r, Vant::med);
    r.DeflateRect(1, 1);
    dc->FillSolidRect(r, Vant::slate);
    r = ClientRc();
    // The lower margin is free for what hangs below the last line.
    r.DeflateRect(margin.cx, margin.cy, margin.cx, 1);
    dc->SetBkMode(TRANSPARENT);
    dc->SetTextColor(Vant::light);
    CFont* const before = dc->SelectObject(&Vant::normalF);
    dc->DrawText(text, &r, wrapped | DT_END_ELLIPSIS);
    if (before)
        dc->SelectObject(before);
}

void CEToolTip::Follow(CECtrl& ctrl)
{
    if (!m_hWnd)
        return;
    CPoint at;
    ::GetCursorPos(&at);
    if (&ctrl != m_over || ctrl.m_hWnd != m_overWnd) {
        Hide();
        m_over = &ctrl;
        m_overWnd = ctrl.m_hWnd;
        m_muted = false;
    } else if (m_muted || IsWindowVisible() || at == m_mouse) {
        return;
    }
    m_mouse = at;
    WatchInput(true);
    SetTimer(restTimer, RestTime());
}

void CEToolTip::Leave(const CECtrl& ctrl)
{
    if (&ctrl != m_over)
        return;
    m_over = nullptr;
    m_overWnd = nullptr;
    Hide();
}

/** The tip of what is under the mouse, if that is still the same control. */
bool CEToolTip::FindTip(CString& tip, CPoint& at) const
{
    if (!m_over || !::GetCursorPos(&at))
        return false;
    const CECtrl* const found = CECtrl::GetTip(at, tip);
    return found && found->m_hWnd == m_overWnd;
}

void CEToolTip::OnTimer(UINT_PTR event)
{
    if (event == restTimer)
        OnRest();
    else if (event == watchTimer)
        OnWatch();
    else
        CVantWnd::OnTimer(event);
}

void CEToolTip::OnRest()
{
    KillTimer(restTimer);
    CString tip;
    CPoint at;
    if (!FindTip(tip, at)) {
        WatchInput(false);
        return;
    }
    CDpi::Of(m_overWnd).Set(m_hWnd);
    SetText(tip);
    ShowAt(at);
    SetTimer(watchTimer, watchPeriod);
}

/** The control does not hear of it when a window around it is hidden, nor of a new tip. */
void CEToolTip::OnWatch()
{
    CString tip;
    CPoint at;
    if (!FindTip(tip, at))
        Hide();
    else if (tip != text)
        SetText(tip);
}

void CEToolTip::WatchInput(bool watch)
{
    if (watch == (m_input != nullptr))
        return;
    if (watch) {
        watching = this;
        m_input = ::SetWindowsHookExW(WH_GETMESSAGE, SeeMessage, nullptr, ::GetCurrentThreadId());
    } else {
        ::UnhookWindowsHookEx(m_input);
        m_input = nullptr;
        watching = nullptr;
    }
}

LRESULT CALLBACK CEToolTip::SeeMessage(int code, WPARAM wParam, LPARAM lParam)
{
    const LRESULT next = ::CallNextHookEx(nullptr, code, wParam, lParam);
    if (code == HC_ACTION && wParam == PM_REMOVE && watching &&
        IsInput(reinterpret_cast<const MSG*>(lParam)->message)) {
        watching->m_muted = true;
        watching->Hide();
    }
    return next;
}

void CEToolTip::OnDestroy()
{
    Hide();
    m_over = nullptr;
    m_overWnd = nullptr;
    CVantWnd::OnDestroy();
}

void CEToolTip::OnWindowPosChanging(WINDOWPOS* pos)
{
    // Whatever shows or moves it.
    pos->flags |= SWP_NOACTIVATE;
    CVantWnd::OnWindowPosChanging(pos);
}

LRESULT CEToolTip::OnNcHitTest(CPoint)
{
    return HTTRANSPARENT;
}

int CEToolTip::OnMouseActivate(CWnd*, UINT, UINT)
{
    return MA_NOACTIVATE;
}
