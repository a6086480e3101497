#include "controls/detail/DropList.h"

#include "controls/CECb.h"
#include "controls/detail/FieldFrame.h"
#include "controls/detail/MouseMessages.h"
#include "controls/detail/SkinPiece.h"
#include "platform/Vant.h"
#include "platform/detail/Skins.h"
#include "resources/Skins.h"

#include <algorithm>

namespace vant::detail
{

namespace
{

constexpr UINT_PTR watchTimer = 1;
constexpr UINT watchPeriod = 100; // milliseconds

// The combo box whose list is open: one at a time, as there is one focus.
CECb* openBox = nullptr;
HHOOK mouseHook = nullptr;

/** Closes the list when the mouse is used elsewhere; what is clicked gets its click all the same. */
LRESULT CALLBACK OnMouse(int code, WPARAM message, LPARAM lParam)
{
    const auto sent = static_cast<UINT>(message);
    if (code == HC_ACTION && openBox && (IsMousePress(sent) || IsMouseWheel(sent))) {
        const HWND at = reinterpret_cast<const MOUSEHOOKSTRUCT*>(lParam)->hwnd;
        if (at != openBox->m_hWnd && at != openBox->List().m_hWnd)
            openBox->Close();
    }
    return ::CallNextHookEx(nullptr, code, message, lParam);
}

void WatchMouse(CECb* box)
{
    openBox = box;
    if (box && !mouseHook)
        mouseHook = ::SetWindowsHookExW(WH_MOUSE, OnMouse, nullptr, ::GetCurrentThreadId());
    if (!box && mouseHook) {
        ::UnhookWindowsHookEx(mouseHook);
        mouseHook = nullptr;
    }
}

} // namespace

BEGIN_MESSAGE_MAP(DropList, CEList)
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSEACTIVATE()
    ON_WM_TIMER()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

DropList::DropList(CECb& box)
    : m_box(box)
{
}

DropList::~DropList()
{
    Close();
}

void DropList::Follow()
{
    style = m_box.style;
    pWnd = m_box.pWnd;
    state = m_box.IsEnabled() ? stShown | stEnabled : stShown;
    inRow = m_box.IsVertical() ? 1 : 0;
    const CRect box = m_box.ClientRc();
    if (inRow)
        entryH = std::max(box.Width() - 2 * fieldFrame, 1);
    // What the open window would have room for, of which Page Up and Page Down make use while it is closed.
    const int length = LengthOf(std::clamp(GetCount(), 1, std::max(m_box.maxRows, 1)));
    rc = inRow ? CRect(0, 0, length, box.Height()) : CRect(0, 0, box.Width(), length);
}

bool DropList::Open(const CRect& place)
{
    const HWND top = ::GetAncestor(m_box.m_hWnd, GA_ROOT);
    const auto topmost = static_cast<DWORD>(::GetWindowLongPtrW(top, GWL_EXSTYLE)) & WS_EX_TOPMOST;
    m_current = GetSel();
    m_box.GetWindowRect(&m_boxPlace);
    ::GetCursorPos(&m_mouse);
    if (!CreateEx(WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE | topmost, Vant::ctlClass, L"", WS_POPUP,
                  CRect(place.TopLeft(), CSize(0, 0)), CWnd::FromHandle(top), 0))
        return false;
    m_box.Dpi().Set(m_hWnd);
    SetWindowPos(&wndTop, place.left, place.top, place.Width(), place.Height(), SWP_NOACTIVATE);
    // What is near is in view on both sides.
    ScrollTo(m_current ? m_current->Index() - Page() / 2 : 0);
    ShowWindow(SW_SHOWNOACTIVATE);
    SetTimer(watchTimer, watchPeriod);
    WatchMouse(&m_box);
    return true;
}

void DropList::Close()
{
    if (!m_hWnd)
        return;
    ReleaseMouse();
    DestroyWindow();
}

void DropList::OnDestroy()
{
    if (openBox == &m_box)
        WatchMouse(nullptr);
    m_current = nullptr;
    CEList::OnDestroy();
}

void DropList::OnTimer(UINT_PTR event)
{
    if (event != watchTimer)
        return CEList::OnTimer(event);
    // Nobody tells a window that another one around it was moved or hidden.
    CRect place;
    m_box.GetWindowRect(&place);
    const bool isInUse = m_box.IsWindowVisible() && m_box.IsWindowEnabled() && ::GetFocus() == m_box.m_hWnd;
    if (place != m_boxPlace || !isInUse)
        m_box.Close();
}

int DropList::OnMouseActivate(CWnd*, UINT, UINT)
{
    return MA_NOACTIVATE;
}

void DropList::SetCurrent(CELEnt* ent)
{
    if (ent == m_current)
        return;
    InvalidateEnt(m_current);
    m_current = ent;
    InvalidateEnt(m_current);
}

void DropList::OnRemove(const CELEnt* ent)
{
    if (!ent || ent == m_current)
        m_current = nullptr;
    CEList::OnRemove(ent);
}

void DropList::OnHot(CELEnt* ent)
{
    if (ent)
        SetCurrent(ent);
}

void DropList::OnMouseMove(UINT flags, CPoint point)
{
    // A window that opens under a mouse at rest is told of a move that there was none.
    CPoint at = point;
    ClientToScreen(&at);
    if (at == m_mouse)
        return;
    m_mouse = at;
    CEList::OnMouseMove(flags, point);
}

CELEnt* DropList::EntAtScreen(CPoint screenPt) const
{
    if (!m_hWnd)
        return nullptr;
    ScreenToClient(&screenPt);
    return EntAt(Dpi().ToUnits(screenPt));
}

void DropList::HoverAt(CPoint screenPt)
{
    if (CELEnt* const ent = EntAtScreen(screenPt))
        SetCurrent(ent);
}

void DropList::OnPick(CELEnt* ent, Pick how)
{
    if (m_hWnd && (how == Pick::Move || how == Pick::Press))
        SetCurrent(ent);
    else
        m_box.Choose(ent);
}

void DropList::DrawFrame(CDC* dc, const CRect& r)
{
    if (DrawPiece(*dc, r, MenuSkin(), skins::menu::panel, 0))
        return;
    dc->FillSolidRect(r, Vant::slate);
    CEStyle::Brdr2(dc, r);
}

} // namespace vant::detail
