#include "controls/CECtrl.h"

#include "controls/CVantWnd.h"
#include "controls/detail/HoverHook.h"
#include "controls/detail/PaintBuffer.h"
#include "platform/Vant.h"

IMPLEMENT_DYNAMIC(CECtrl, CWnd)

BEGIN_MESSAGE_MAP(CECtrl, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

constexpr DWORD CECtrl::keepFocus;

CECtrl::CECtrl()
    : rc(0, 0, 0, 0)
    , style(CEStyle::s_default)
{
    s_eCtrls.AddTail(this);
}

CECtrl::~CECtrl()
{
    m_self.reset();
    if (m_hWnd)
        DestroyWindow();
    s_auCtrls.RemoveAt(s_auCtrls.Find(this));
    s_eCtrls.RemoveAt(s_eCtrls.Find(this));
    ReleaseSkin();
}

bool CECtrl::IsEnabled() const
{
    const bool allowed = !enIf || !pEnVar || *pEnVar == enVal;
    return (state & stEnabled) != 0 && allowed;
}

void CECtrl::Update(int)
{
    if (!m_hWnd)
        return;
    const bool enable = IsEnabled();
    // The own style, as the system calls no window visible whose parent is hidden.
    const bool visible = (GetStyle() & WS_VISIBLE) != 0;
    const bool hide = visible && !(state & stShown);
    if (!enable || hide)
        PassFocusOn();
    EnableWindow(enable);
    if (hide)
        ShowWindow(SW_HIDE);
    else if (!visible && (state & stShown) && !(state & stKeepHidden))
        ShowWindow(SW_SHOWNA);
    Invalidate(TRUE);
}

void CECtrl::PassFocusOn()
{
    const HWND focus = ::GetFocus();
    if (!focus || (focus != m_hWnd && !::IsChild(m_hWnd, focus)))
        return;
    if (const HWND parent = ::GetAncestor(m_hWnd, GA_PARENT))
        ::SetFocus(parent);
}

void CECtrl::Retreive()
{
    if (!m_hWnd)
        return;
    CString typed;
    GetWindowText(typed);
    CString message;
    if (IsValidText(typed, message))
        SetText(typed);
    else
        Vant::Alarm(30, 1, L"Unable to get value err=%s", static_cast<LPCWSTR>(message));
}

void CECtrl::GetTip(CString& tipText)
{
    tipText = tip;
}

void CECtrl::AutoUpdate(double) {}

int CECtrl::Create(unsigned long wndStyle, const RECT& r, CWnd* parent, unsigned int childId)
{
    id = static_cast<int>(childId);
    return CWnd::CreateEx(0, Vant::ctlClass, text, wndStyle | WS_CHILD, r, parent, childId) ? 1 : 0;
}

unsigned long CECtrl::WndStyle() const
{
    const bool shown = (state & stShown) && !(state & stKeepHidden);
    return (shown ? static_cast<unsigned long>(WS_VISIBLE) : 0) |
           (IsEnabled() ? 0 : static_cast<unsigned long>(WS_DISABLED));
}

bool CECtrl::IsTabStop() const
{
    return true;
}

CRect CECtrl::ClientRc() const
{
    if (!m_hWnd)
        return {0, 0, rc.Width(), rc.Height()};
    CRect client;
    GetClientRect(&client);
    return Dpi().ToUnits(client);
}

COLORREF CECtrl::BackCol() const
{
    return pWnd && CVantWnd::IsHlt(pWnd) ? Vant::teal : Vant::back;
}

void CECtrl::DrawBack(CDC* dc) const
{
    dc->FillSolidRect(ClientRc(), BackCol());
}

void CECtrl::OnPaint()
{
    CPaintDC dc(this);
    CRect client;
    GetClientRect(&client);
    if (client.IsRectEmpty())
        return;
    if (dblBuf) {
        vant::detail::PaintBuffer buffer(dc, client.Size(), Dpi(), BackCol());
        DrawAll(buffer.Dc());
        buffer.Show();
        return;
    }
    const int saved = dc.SaveDC();
    Dpi().Apply(dc);
    DrawAll(dc);
    dc.RestoreDC(saved);
}

void CECtrl::DrawAll(CDC& dc)
{
    if (glow == 0)
        return Draw(&dc);
    const int saved = dc.SaveDC();
    Draw(&dc);
    dc.RestoreDC(saved);
    DrawGlow(dc, ClientRc());
}

BOOL CECtrl::OnEraseBkgnd(CDC*)
{
    return TRUE;
}

void CECtrl::ShowHover(bool over)
{
    if (over == ((look & lookHover) != 0))
        return;
    look ^= lookHover;
    if (over) {
        TRACKMOUSEEVENT track{sizeof track, TME_LEAVE, m_hWnd, 0};
        ::TrackMouseEvent(&track);
    } else if (const auto left = vant::detail::Hover().left) {
        left(*this);
    }
    Invalidate(FALSE);
}

LRESULT CECtrl::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_MOUSEMOVE: {
        CRect client;
        GetClientRect(&client);
        // A control that holds the mouse gets its moves outside too.
        const bool over = client.PtInRect(CPoint(static_cast<short>(LOWORD(lParam)),
                                                 static_cast<short>(HIWORD(lParam)))) != FALSE;
        ShowHover(over);
        if (const auto moved = vant::detail::Hover().moved; moved && over)
            moved(*this);
        break;
    }
    case WM_ENABLE:
    case WM_SHOWWINDOW:
        if (!wParam)
            ShowHover(false);
        break;
    case WM_MOUSELEAVE:
    case WM_DESTROY:
        ShowHover(false);
        break;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
        Invalidate(FALSE);
        break;
    default:
        break;
    }
    // Last, as a handler may delete the control.
    return CWnd::WindowProc(message, wParam, lParam);
}
