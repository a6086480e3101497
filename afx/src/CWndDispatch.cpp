#include "detail/Handles.h"
#include "detail/MapSearch.h"
#include "detail/WndThread.h"
#include "vafx/CDC.h"
#include "vafx/CException.h"
#include "vafx/CScrollBar.h"
#include "vafx/CWinThread.h"
#include "vafx/CWnd.h"

#include <exception>

using vafx::detail::FindEntry;
using vafx::detail::ThisThread;

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
    ON_WM_NCDESTROY()
    ON_WM_PARENTNOTIFY()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_CTLCOLOR()
    ON_WM_DRAWITEM()
    ON_WM_MEASUREITEM()
    ON_WM_DELETEITEM()
    ON_WM_COMPAREITEM()
END_MESSAGE_MAP()

CPoint vafx::Point(LPARAM packed) noexcept
{
    return CPoint(X(packed), Y(packed));
}

CWnd* vafx::Window(ULONG_PTR handle)
{
    return CWnd::FromHandle(reinterpret_cast<HWND>(handle));
}

CWnd* vafx::Window(LPARAM handle)
{
    return CWnd::FromHandle(reinterpret_cast<HWND>(handle));
}

CDC* vafx::DeviceContext(WPARAM handle)
{
    return CDC::FromHandle(reinterpret_cast<HDC>(handle));
}

CScrollBar* vafx::ScrollBar(LPARAM handle)
{
    const HWND window = reinterpret_cast<HWND>(handle);
    return vafx::detail::ObjectOf<CScrollBar>(ThisThread().temporary, vafx::detail::HandleKind::Window,
                                              window, [window](CScrollBar& bar) { bar.m_hWnd = window; });
}

namespace
{

/** Makes a message the current one for the time of its handling. */
class CurrentMessage
{
public:
    CurrentMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
        : m_thread(ThisThread())
        , m_outer(m_thread.current)
    {
        m_thread.current.hwnd = window;
        m_thread.current.message = message;
        m_thread.current.wParam = wParam;
        m_thread.current.lParam = lParam;
    }
    ~CurrentMessage() { m_thread.current = m_outer; }
    CurrentMessage(const CurrentMessage&) = delete;
    CurrentMessage& operator=(const CurrentMessage&) = delete;

    const MSG& Get() const noexcept { return m_thread.current; }

private:
    vafx::detail::WndThread& m_thread;
    MSG m_outer;
};

LRESULT FailedResult(const MSG& msg) noexcept
{
    if (msg.message == WM_CREATE)
        return -1;
    // Otherwise the same WM_PAINT would come again at once.
    if (msg.message == WM_PAINT)
        ::ValidateRect(msg.hwnd, nullptr);
    return 0;
}

// Nothing may be thrown into the system, which called the window procedure.
LRESULT HandleException(CException* e, const MSG& msg) noexcept
{
    LRESULT result = FailedResult(msg);
    try {
        if (CWinThread* thread = ::AfxGetThread())
            result = thread->ProcessWndProcException(e, &msg);
        e->Delete();
    } catch (CException* another) {
        another->Delete();
    } catch (...) {
        ::OutputDebugStringW(L"An exception was thrown while another was reported.\n");
    }
    return result;
}

/** For a window that has lost its object: what its class would do. */
LRESULT DefaultOfClass(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const WNDPROC procedure = vafx::detail::ProcedureOfClass(window);
    return procedure != nullptr ? ::CallWindowProcW(procedure, window, message, wParam, lParam)
                                : ::DefWindowProcW(window, message, wParam, lParam);
}

/** One entry serves all WM_CTLCOLOR... messages. */
UINT MapMessage(UINT message, vafx::Dispatch& d) noexcept
{
    if (message < WM_CTLCOLORMSGBOX || message > WM_CTLCOLORSTATIC)
        return message;
    d.ident = message - WM_CTLCOLORMSGBOX;
    return vafx::ctlColorMessage;
}

} // namespace

LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam)
{
    CWnd* window = CWnd::FromHandlePermanent(hWnd);
    if (window == nullptr)
        return DefaultOfClass(hWnd, nMsg, wParam, lParam);

    const CurrentMessage current(hWnd, nMsg, wParam, lParam);
    LRESULT result = 0;
    try {
        result = window->WindowProc(nMsg, wParam, lParam);
    } catch (CException* e) {
        result = HandleException(e, current.Get());
    } catch (const std::exception& e) {
        ::OutputDebugStringA(e.what());
        result = FailedResult(current.Get());
    } catch (...) {
        result = FailedResult(current.Get());
    }
    // A class that handles the last message without its base must not leave its object in the table.
    if (nMsg == WM_NCDESTROY && CWnd::FromHandlePermanent(hWnd) == window)
        window->Detach();
    return result;
}

const MSG* PASCAL CWnd::GetCurrentMessage()
{
    MSG& msg = ThisThread().current;
    msg.time = static_cast<DWORD>(::GetMessageTime());
    const DWORD position = ::GetMessagePos();
    msg.pt = {vafx::X(static_cast<LPARAM>(position)), vafx::Y(static_cast<LPARAM>(position))};
    return &msg;
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT result = 0;
    return OnWndMsg(message, wParam, lParam, &result) ? result : DefWindowProc(message, wParam, lParam);
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (m_hWnd == nullptr)
        return 0;
    return m_super != nullptr ? ::CallWindowProcW(m_super, m_hWnd, message, wParam, lParam)
                              : ::DefWindowProcW(m_hWnd, message, wParam, lParam);
}

LRESULT CWnd::Default()
{
    const MSG msg = ThisThread().current;
    return DefWindowProc(msg.message, msg.wParam, msg.lParam);
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    LRESULT ignored = 0;
    LRESULT& result = pResult != nullptr ? *pResult : ignored;
    result = 0;
    if (message == WM_COMMAND)
        return OnCommand(wParam, lParam);
    if (message == WM_NOTIFY)
        return OnNotify(wParam, lParam, &result);

    vafx::Dispatch d;
    d.wParam = wParam;
    d.lParam = lParam;
    const AFX_MSGMAP_ENTRY* entry = FindEntry(GetMessageMap(), MapMessage(message, d), 0, 0);
    if (entry == nullptr)
        return FALSE;
    // The handler may free this object.
    entry->pfn(this, d);
    result = d.result;
    return d.handled ? TRUE : FALSE;
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const UINT id = LOWORD(wParam);
    const HWND control = reinterpret_cast<HWND>(lParam);
    if (control == nullptr)
        return OnCmdMsg(id, CN_COMMAND, nullptr, nullptr);

    LRESULT result = 0;
    CWnd* child = FromHandlePermanent(control);
    if (child != nullptr && child->OnChildNotify(WM_COMMAND, wParam, lParam, &result))
        return TRUE;
    return OnCmdMsg(id, HIWORD(wParam), nullptr, nullptr);
}

BOOL CWnd::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    auto* header = reinterpret_cast<NMHDR*>(lParam);
    if (header == nullptr)
        return FALSE;
    CWnd* child = FromHandlePermanent(header->hwndFrom);
    if (child != nullptr && child->OnChildNotify(WM_NOTIFY, wParam, lParam, pResult))
        return TRUE;
    AFX_NOTIFY notify{pResult, header};
    return OnCmdMsg(static_cast<UINT>(wParam), MAKELONG(LOWORD(header->code), WM_NOTIFY), &notify, nullptr);
}

BOOL CWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    return CCmdTarget::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

BOOL CWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult)
{
    return ReflectChildNotify(message, wParam, lParam, pLResult);
}

BOOL CWnd::ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    vafx::Dispatch d;
    d.wParam = wParam;
    d.lParam = lParam;
    UINT code = 0;
    if (message == WM_COMMAND) {
        code = HIWORD(wParam);
    } else if (message == WM_NOTIFY) {
        d.notify = reinterpret_cast<NMHDR*>(lParam);
        code = d.notify->code;
    }
    const AFX_MSGMAP_ENTRY* entry =
        FindEntry(GetMessageMap(), vafx::reflectBase + MapMessage(message, d), code, 0);
    if (entry == nullptr)
        return FALSE;
    entry->pfn(this, d);
    if (pResult != nullptr && d.handled)
        *pResult = d.result;
    return d.handled ? TRUE : FALSE;
}

bool CWnd::ReflectCurrent(HWND child, LRESULT& result)
{
    CWnd* object = child != nullptr ? FromHandlePermanent(child) : nullptr;
    if (object == nullptr)
        return false;
    const MSG msg = ThisThread().current;
    return object->OnChildNotify(msg.message, msg.wParam, msg.lParam, &result) != FALSE;
}

void CWnd::OnParentNotify(UINT message, LPARAM lParam)
{
    LRESULT result = 0;
    const bool hasHandle = LOWORD(message) == WM_CREATE || LOWORD(message) == WM_DESTROY;
    if (!hasHandle || !ReflectCurrent(reinterpret_cast<HWND>(lParam), result))
        Default();
}

void CWnd::OnHScroll(UINT, UINT, CScrollBar* pScrollBar)
{
    LRESULT result = 0;
    if (pScrollBar == nullptr || !ReflectCurrent(pScrollBar->m_hWnd, result))
        Default();
}

void CWnd::OnVScroll(UINT, UINT, CScrollBar* pScrollBar)
{
    LRESULT result = 0;
    if (pScrollBar == nullptr || !ReflectCurrent(pScrollBar->m_hWnd, result))
        Default();
}

HBRUSH CWnd::OnCtlColor(CDC*, CWnd* pWnd, UINT)
{
    LRESULT result = 0;
    if (!ReflectCurrent(vafx::detail::HandleOf(pWnd), result))
        result = Default();
    return reinterpret_cast<HBRUSH>(result);
}

void CWnd::OnDrawItem(int, LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    LRESULT result = 0;
    if (lpDrawItemStruct->CtlType == ODT_MENU || !ReflectCurrent(lpDrawItemStruct->hwndItem, result))
        Default();
}

void CWnd::OnMeasureItem(int nIDCtl, LPMEASUREITEMSTRUCT lpMeasureItemStruct)
{
    LRESULT result = 0;
    const bool isMenu = lpMeasureItemStruct->CtlType == ODT_MENU;
    if (isMenu || !ReflectCurrent(::GetDlgItem(m_hWnd, nIDCtl), result))
        Default();
}

void CWnd::OnDeleteItem(int, LPDELETEITEMSTRUCT lpDeleteItemStruct)
{
    LRESULT result = 0;
    if (!ReflectCurrent(lpDeleteItemStruct->hwndItem, result))
        Default();
}

int CWnd::OnCompareItem(int, LPCOMPAREITEMSTRUCT lpCompareItemStruct)
{
    LRESULT result = 0;
    if (!ReflectCurrent(lpCompareItemStruct->hwndItem, result))
        result = Default();
    return static_cast<int>(result);
}
