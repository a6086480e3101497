#include "windows/CEMsgBox.h"

#include "platform/Vant.h"
#include "windows/CEMsgBoxModal.h"
#include "windows/detail/MsgFace.h"
#include "windows/detail/MsgPlace.h"

using vant::skins::Look;

namespace
{

constexpr UINT_PTR tickTimer = 1;

// The box that Alt+F6 leads to: the one that was shown last.
CEMsgBox* watching = nullptr;

} // namespace

IMPLEMENT_DYNAMIC(CEMsgBox, CECtrl)

BEGIN_MESSAGE_MAP(CEMsgBox, CECtrl)
    ON_WM_TIMER()
    ON_WM_LBUTTONDOWN()
    ON_WM_MOUSEMOVE()
    ON_WM_KEYDOWN()
    ON_WM_KEYUP()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_SHOWWINDOW()
    ON_WM_DESTROY()
    ON_MESSAGE(WM_DPICHANGED, &CEMsgBox::OnDpiChanged)
END_MESSAGE_MAP()

constexpr unsigned CEMsgBox::tickPeriod;

CEMsgBox::CEMsgBox()
{
    rc = CRect(CPoint(0, 0), CSize(vant::detail::msgSize));
    state = stEnabled;
}

CEMsgBox::~CEMsgBox()
{
    if (m_hWnd)
        DestroyWindow();
}

bool CEMsgBox::Open()
{
    if (m_hWnd)
        return true;
    const CRect place(0, 0, rc.Width(), rc.Height());
    return CWnd::CreateEx(WS_EX_TOPMOST, Vant::ctlClass, Vant::appTitle, WS_POPUP, place,
                          CWnd::FromHandle(vant::detail::MsgOwner()), 0) != FALSE;
}

void CEMsgBox::MoveToPlace()
{
    if (!m_hWnd)
        return;
    const HWND over = vant::detail::MsgOwner();
    const CDpi dpi = CDpi::Of(over ? over : m_hWnd);
    dpi.Set(m_hWnd);
    CRect place = vant::detail::MsgPlace(over, dpi.ToPx(CRect(CPoint(0, 0), rc.Size())).Size());
    if (const HWND modal = CEMsgBoxModal::TopWnd()) {
        CRect other;
        ::GetWindowRect(modal, &other);
        place = vant::detail::MsgPlaceBeside(place, other);
    }
    SetWindowPos(&wndTopMost, place.left, place.top, place.Width(), place.Height(), SWP_NOACTIVATE);
}

int CEMsgBox::DisplayMsg(int bits, const CString& message, int limit)
{
    msgType = bits;
    tickLimit = limit;
    active = 1;
    if (bits & Vant::msgStay)
        stay = 1;
    lines = vant::detail::SplitMsg(message);
    if (!Open()) {
        active = 0;
        return 0;
    }
    MoveToPlace();
    {
        CClientDC dc(this);
        Dpi().Apply(dc);
        const CSize room = vant::detail::MsgTextRc(rc.Size()).Size();
        tip = vant::detail::MsgTextFits(dc, lines, room) ? CString() : message;
    }
    state |= stShown;
    WatchKeys(true);
    ShowWindow(SW_SHOWNOACTIVATE);
    RunTimer(!stay);
    Invalidate(FALSE);
    UpdateWindow();
    return 1;
}

void CEMsgBox::Close()
{
    NoteHidden();
    if (!m_hWnd)
        return;
    if (::GetFocus() == m_hWnd)
        SwitchFocus();
    ShowWindow(SW_HIDE);
}

void CEMsgBox::NoteHidden()
{
    RunTimer(false);
    WatchKeys(false);
    active = 0;
    ticks = 0;
    state &= ~stShown;
    look &= ~lookPressed;
    m_overButton = false;
}

void CEMsgBox::RunTimer(bool run)
{
    // One that runs is left alone: messages that follow each other faster than the ticks must not stop them.
    if (run == m_ticking || !m_hWnd)
        return;
    m_ticking = run && SetTimer(tickTimer, tickPeriod) != 0;
    if (!run)
        KillTimer(tickTimer);
}

void CEMsgBox::WatchKeys(bool watch)
{
    if (watch) {
        watching = this;
        if (!m_keys)
            m_keys = ::SetWindowsHookExW(WH_GETMESSAGE, SeeMessage, nullptr, ::GetCurrentThreadId());
        return;
    }
    if (watching == this)
        watching = nullptr;
    if (m_keys)
        ::UnhookWindowsHookEx(m_keys);
    m_keys = nullptr;
}

LRESULT CALLBACK CEMsgBox::SeeMessage(int code, WPARAM wParam, LPARAM lParam)
{
    MSG& msg = *reinterpret_cast<MSG*>(lParam);
    if (code == HC_ACTION && wParam == PM_REMOVE && watching && msg.message == WM_SYSKEYDOWN &&
        msg.wParam == VK_F6) {
        msg.message = WM_NULL; // nobody else's
        watching->SwitchFocus();
    }
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

void CEMsgBox::SwitchFocus()
{
    if (::GetFocus() != m_hWnd)
        SetFocus();
    else if (::IsWindow(m_focusFrom))
        ::SetFocus(m_focusFrom);
}

void CEMsgBox::OnTimer(UINT_PTR event)
{
    if (event != tickTimer)
        return CECtrl::OnTimer(event);
    if (!active || stay)
        return;
    if (++ticks >= tickLimit)
        Close();
}

bool CEMsgBox::IsOnButton(CPoint px) const
{
    const CPoint at = Dpi().ToUnits(px);
    return vant::detail::MsgButtonRc(rc.Size(), 0).PtInRect(at) != FALSE;
}

void CEMsgBox::OnLButtonDown(UINT, CPoint point)
{
    if (IsOnButton(point))
        Close();
}

void CEMsgBox::OnMouseMove(UINT flags, CPoint point)
{
    const bool over = IsOnButton(point);
    if (over != m_overButton) {
        m_overButton = over;
        Invalidate(FALSE);
    }
    CECtrl::OnMouseMove(flags, point);
}

void CEMsgBox::ShowPressed(bool pressed)
{
    if (pressed == ((look & lookPressed) != 0))
        return;
    look ^= lookPressed;
    Invalidate(FALSE);
}

void CEMsgBox::OnKeyDown(UINT key, UINT repeats, UINT flags)
{
    if (key == VK_ESCAPE || key == VK_RETURN)
        Close();
    else if (key == VK_SPACE)
        ShowPressed(true);
    else
        CECtrl::OnKeyDown(key, repeats, flags);
}

void CEMsgBox::OnKeyUp(UINT key, UINT repeats, UINT flags)
{
    if (key == VK_SPACE && (look & lookPressed))
        Close();
    else
        CECtrl::OnKeyUp(key, repeats, flags);
}

void CEMsgBox::OnSetFocus(CWnd* from)
{
    m_focusFrom = from->GetSafeHwnd();
    CECtrl::OnSetFocus(from);
}

void CEMsgBox::OnKillFocus(CWnd* to)
{
    ShowPressed(false);
    CECtrl::OnKillFocus(to);
}

void CEMsgBox::OnShowWindow(BOOL shown, UINT status)
{
    // A status other than 0 is the main window being minimised or restored: the box comes and goes with it.
    if (!shown && status == 0)
        NoteHidden();
    CECtrl::OnShowWindow(shown, status);
}

void CEMsgBox::OnDestroy()
{
    NoteHidden();
    CECtrl::OnDestroy();
}

LRESULT CEMsgBox::OnDpiChanged(WPARAM dpi, LPARAM)
{
    CDpi(HIWORD(dpi)).Set(m_hWnd);
    MoveToPlace();
    Invalidate(FALSE);
    return 0;
}

void CEMsgBox::Draw(CDC* dc)
{
    const CSize box = rc.Size();
    vant::detail::DrawMsgFace(*dc, box, msgType, lines);
    Look drawn = Look::Normal;
    if (look & lookPressed)
        drawn = Look::Pressed;
    else if ((look & lookHover) && m_overButton)
        drawn = Look::Hover;
    else if (m_hWnd && ::GetFocus() == m_hWnd)
        drawn = Look::Focused;
    vant::detail::DrawMsgButton(*dc, vant::detail::MsgButtonRc(box, 0), Vant::msgBlankBtn,
                                vant::skins::msgBlankBtn::button, drawn, L"Close");
}
