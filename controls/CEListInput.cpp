// CEList: mouse and keyboard.
#include "controls/CEList.h"

#include "controls/detail/ParentCommand.h"
#include "controls/detail/PressFocus.h"
#include "controls/detail/ScrollStrip.h"

#include <algorithm>

using vant::detail::ScrollStrip;

BEGIN_MESSAGE_MAP(CEList, CECtrl)
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
    ON_WM_CAPTURECHANGED()
    ON_WM_MOUSEWHEEL()
    ON_WM_KEYDOWN()
    ON_WM_CHAR()
    ON_WM_GETDLGCODE()
    ON_WM_SIZE()
END_MESSAGE_MAP()

void CEList::OnPick(CELEnt* ent, Pick how)
{
    const HWND self = m_hWnd;
    if (ent != m_sel && how != Pick::Release) {
        Sel(ent);
        StoreIn(*this, ent);
        Execute();
        // A callback may have destroyed the window, and the entry with a list that was filled anew.
        if (!::IsWindow(self))
            return;
        Tell(LBN_SELCHANGE);
    }
    if (how == Pick::Choose && ::IsWindow(self))
        Tell(LBN_DBLCLK);
}

void CEList::Tell(int code)
{
    vant::detail::SendCommand(m_hWnd, id, code);
}

bool CEList::IsTyping() const
{
    return m_typed.IsTyping(::GetTickCount());
}

bool CEList::TakeKey(UINT key)
{
    const int last = GetCount() - 1;
    CELEnt* const current = Current();
    const int at = current ? current->Index() : -1;
    const int turn = std::max(Page() - 1, 1);
    int to = -1;
    switch (key) {
    case VK_LEFT:
    case VK_RIGHT:
        if (!inRow)
            return false;
        to = key == VK_LEFT ? at - 1 : at + 1;
        break;
    case VK_UP:
        to = at - 1;
        break;
    case VK_DOWN:
        to = at + 1;
        break;
    case VK_PRIOR:
        to = at - turn;
        break;
    case VK_NEXT:
        to = at + turn;
        break;
    case VK_HOME:
        to = 0;
        break;
    case VK_END:
        to = last;
        break;
    case VK_RETURN:
        if (!current)
            return false;
        OnPick(current, Pick::Choose);
        return true;
    default:
        return false;
    }
    m_typed.Reset();
    CELEnt* const ent = GetAt(std::clamp(to, 0, std::max(last, 0)));
    Show(ent);
    if (ent && ent != current)
        OnPick(ent, Pick::Move);
    return true;
}

int CEList::Press()
{
    return m_hWnd && IsWindowEnabled() && TakeKey(VK_RETURN) ? 1 : 0;
}

int CEList::Jog(int notches, double, int)
{
    const int last = GetCount() - 1;
    if (notches == 0 || last < 0)
        return 0;
    const CELEnt* const current = Current();
    const int at = current ? current->Index() : notches < 0 ? last + 1 : -1;
    CELEnt* const ent = GetAt(std::clamp(at + std::clamp(notches, -last - 1, last + 1), 0, last));
    if (ent == current)
        return 0;
    m_typed.Reset();
    Show(ent);
    OnPick(ent, Pick::Move);
    return 1;
}

bool CEList::TakeChar(wchar_t character)
{
    constexpr wchar_t blank = L' ';
    if (character < blank || (character == blank && !IsTyping()))
        return false;
    const CString typed = m_typed.Type(character, ::GetTickCount()).c_str();
    const CELEnt* const current = Current();
    const int here = current ? current->Index() : -1;
    const bool isFirst = typed.GetLength() == 1;
    CELEnt* ent = FindPrefix(typed, isFirst ? here + 1 : here);
    if (!ent && m_typed.IsRepeated())
        ent = FindPrefix(typed.Left(1), here + 1);
    Show(ent);
    if (ent && ent != current)
        OnPick(ent, Pick::Move);
    return true;
}

bool CEList::TakeWheel(short delta)
{
    if (m_scroll.MaxFirst() == 0)
        return false;
    UINT lines = 3;
    ::SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    const int perNotch = static_cast<int>(std::min(lines, static_cast<UINT>(Page())));
    ScrollTo(First() - m_wheel.Take(delta, perNotch));
    return true;
}

void CEList::SetHot(CELEnt* ent)
{
    if (ent == m_hot)
        return;
    InvalidateEnt(m_hot);
    m_hot = ent;
    InvalidateEnt(m_hot);
    OnHot(ent);
}

void CEList::OnHot(CELEnt*) {}

void CEList::PressBar(int at)
{
    const auto thumb = m_scroll.Thumb(BarLength(), ScrollStrip::leastThumb);
    if (at < thumb.from) {
        ScrollTo(First() - Page());
    } else if (at >= thumb.from + thumb.length) {
        ScrollTo(First() + Page());
    } else {
        m_grip = at - thumb.from;
        SetCapture();
        Invalidate(FALSE);
    }
}

void CEList::OnLButtonDown(UINT, CPoint point)
{
    if ((GetStyle() & WS_TABSTOP) && !vant::detail::FocusByPress(m_hWnd))
        return;
    const CPoint at = Dpi().ToUnits(point);
    if (m_scroll.MaxFirst() > 0 && BarRc().PtInRect(at))
        return PressBar(Along(at));
    CELEnt* const ent = EntAt(at);
    if (!ent)
        return;
    const LONG now = ::GetMessageTime();
    const bool twice = ent == m_pressed && static_cast<UINT>(now - m_pressTime) <= ::GetDoubleClickTime();
    // A third press begins anew.
    m_pressed = twice ? nullptr : ent;
    m_pressTime = now;
    m_held = true;
    SetCapture();
    OnPick(ent, twice ? Pick::Choose : Pick::Press);
}

void CEList::OnMouseMove(UINT flags, CPoint point)
{
    const CPoint at = Dpi().ToUnits(point);
    if (m_grip >= 0) {
        ScrollTo(m_scroll.FirstAt(Along(at) - m_grip, BarLength(), ScrollStrip::leastThumb));
        return;
    }
    CELEnt* const ent = EntAt(at);
    SetHot(ent);
    if (m_held && ent && ent != Current())
        OnPick(ent, Pick::Press);
    else
        CECtrl::OnMouseMove(flags, point);
}

void CEList::OnLButtonUp(UINT flags, CPoint point)
{
    const bool wasHeld = m_held;
    if (::GetCapture() == m_hWnd)
        ::ReleaseCapture();
    CELEnt* const ent = EntAt(Dpi().ToUnits(point));
    if (wasHeld && ent)
        OnPick(ent, Pick::Release);
    else
        CECtrl::OnLButtonUp(flags, point);
}

void CEList::OnMouseLeave()
{
    SetHot(nullptr);
    CECtrl::OnMouseLeave();
}

void CEList::ReleaseMouse()
{
    if (m_hWnd && ::GetCapture() == m_hWnd)
        ::ReleaseCapture();
    m_hot = nullptr;
    m_pressed = nullptr;
    m_held = false;
    m_grip = -1;
}

void CEList::OnCaptureChanged(CWnd* to)
{
    m_held = false;
    if (m_grip >= 0) {
        m_grip = -1;
        Invalidate(FALSE);
    }
    CECtrl::OnCaptureChanged(to);
}

BOOL CEList::OnMouseWheel(UINT flags, short delta, CPoint point)
{
    return TakeWheel(delta) ? TRUE : CECtrl::OnMouseWheel(flags, delta, point);
}

void CEList::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    if (!TakeKey(key))
        CECtrl::OnKeyDown(key, repeat, flags);
}

void CEList::OnChar(UINT character, UINT repeat, UINT flags)
{
    if (!TakeChar(static_cast<wchar_t>(character)))
        CECtrl::OnChar(character, repeat, flags);
}

UINT CEList::OnGetDlgCode()
{
    // In a dialog Enter belongs to the list that has the focus, and not to the dialog's own button.
    const auto* const asked = reinterpret_cast<const MSG*>(GetCurrentMessage()->lParam);
    const bool enter = asked && asked->message == WM_KEYDOWN && asked->wParam == VK_RETURN;
    return DLGC_WANTARROWS | DLGC_WANTCHARS | (enter && Current() ? DLGC_WANTMESSAGE : 0);
}

void CEList::OnSize(UINT how, int width, int height)
{
    CECtrl::OnSize(how, width, height);
    SyncPage();
    Invalidate(FALSE);
}
