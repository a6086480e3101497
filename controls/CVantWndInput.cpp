// CVantWnd: focus and Tab.
#include "controls/CVantWnd.h"

#include "controls/CECheck.h"

#include <algorithm>

namespace
{

using Stops = std::vector<HWND>;

bool HasStyle(HWND wnd, DWORD bits) noexcept
{
    return (static_cast<DWORD>(::GetWindowLongPtrW(wnd, GWL_STYLE)) & bits) != 0;
}

bool IsUsable(HWND wnd) noexcept
{
    return wnd && HasStyle(wnd, WS_VISIBLE) && !HasStyle(wnd, WS_DISABLED);
}

/** The window if Tab stops at it, else those inside it that Tab stops at. */
void AppendStop(HWND wnd, Stops& stops)
{
    if (!IsUsable(wnd))
        return;
    if (HasStyle(wnd, WS_TABSTOP)) {
        const auto* const ctrl = dynamic_cast<CECtrl*>(CWnd::FromHandlePermanent(wnd));
        if (!ctrl || ctrl->IsTabStop())
            stops.push_back(wnd);
        return;
    }
    for (HWND child = ::GetWindow(wnd, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT))
        AppendStop(child, stops);
}

/** Whether the window that has the focus uses a Tab key itself, as an edit field of several lines does. */
bool WantsTab(MSG& msg) noexcept
{
    const LRESULT code = ::SendMessageW(msg.hwnd, WM_GETDLGCODE, VK_TAB, reinterpret_cast<LPARAM>(&msg));
    return (code & (DLGC_WANTTAB | DLGC_WANTALLKEYS)) != 0;
}

bool IsDown(int key) noexcept
{
    return ::GetKeyState(key) < 0;
}

bool IsTab(const MSG& msg) noexcept
{
    return msg.message == WM_KEYDOWN && msg.wParam == VK_TAB && !IsDown(VK_CONTROL) && !IsDown(VK_MENU);
}

void FocusByKey(HWND wnd)
{
    ::SetFocus(wnd);
    if (::SendMessageW(wnd, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL)
        ::SendMessageW(wnd, EM_SETSEL, 0, -1);
    CVantWnd::ScrollAllIntoView(CWnd::FromHandle(wnd));
}

} // namespace

void CVantWnd::OnMouseMove(UINT flags, CPoint point)
{
    const HWND focus = ::GetFocus();
    const bool leavesIt = focus && HasStyle(focus, CECtrl::keepFocus | WS_POPUP);
    if (focus != m_hWnd && !leavesIt && !s_inhibitFocus)
        SetFocus();
    CWnd::OnMouseMove(flags, point);
}

void CVantWnd::OnActivate(UINT activation, CWnd* other, BOOL isMinimized)
{
    if (activation == WA_INACTIVE) {
        const HWND focus = ::GetFocus();
        m_lastFocus = focus && ::IsChild(m_hWnd, focus) ? focus : nullptr;
    }
    CWnd::OnActivate(activation, other, isMinimized);
    if (activation != WA_INACTIVE && !isMinimized && ::IsChild(m_hWnd, m_lastFocus) && IsUsable(m_lastFocus))
        ::SetFocus(m_lastFocus);
}

void CVantWnd::AppendStops(Stops& stops)
{
    ForEachCat([&stops](CCtrlCat& cat) {
        if (cat.m_hdrCheck)
            AppendStop(cat.m_hdrCheck->m_hWnd, stops);
        for (CVantPtr* pos = cat.ctrls.GetHeadPos(); pos;)
            AppendStop(cat.ctrls.GetNext(pos)->m_hWnd, stops);
    });
    for (HWND child = ::GetWindow(m_hWnd, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
        if (IsOwnCtrl(child))
            continue;
        auto* const wnd = dynamic_cast<CVantWnd*>(FromHandlePermanent(child));
        if (!wnd) {
            AppendStop(child, stops);
            continue;
        }
        if (!IsUsable(child))
            continue;
        if (HasStyle(child, WS_TABSTOP))
            stops.push_back(child);
        wnd->AppendStops(stops);
    }
}

CWnd* CVantWnd::NextCtrl(CWnd* from, bool back)
{
    if (!m_hWnd)
        return nullptr;
    Stops stops;
    AppendStops(stops);
    if (stops.empty())
        return nullptr;
    auto at = stops.end();
    for (HWND wnd = from->GetSafeHwnd(); wnd && wnd != m_hWnd && at == stops.end();
         wnd = ::GetAncestor(wnd, GA_PARENT))
        at = std::find(stops.begin(), stops.end(), wnd);

    if (at == stops.end())
        at = back ? stops.end() - 1 : stops.begin();
    else if (back)
        at = at == stops.begin() ? stops.end() - 1 : at - 1;
    else if (++at == stops.end())
        at = stops.begin();
    return CWnd::FromHandle(*at);
}

CVantWnd* CVantWnd::OutermostWnd()
{
    CVantWnd* found = this;
    for (HWND wnd = m_hWnd; HasStyle(wnd, WS_CHILD);) {
        wnd = ::GetAncestor(wnd, GA_PARENT);
        if (auto* const outer = dynamic_cast<CVantWnd*>(FromHandlePermanent(wnd)))
            found = outer;
    }
    return found;
}

BOOL CVantWnd::PreTranslateMessage(MSG* pMsg)
{
    if (m_hWnd && IsTab(*pMsg) && !WantsTab(*pMsg)) {
        if (CWnd* const next = OutermostWnd()->NextCtrl(CWnd::FromHandle(pMsg->hwnd), IsDown(VK_SHIFT))) {
            FocusByKey(next->m_hWnd);
            return TRUE;
        }
    }
    return CWnd::PreTranslateMessage(pMsg);
}
