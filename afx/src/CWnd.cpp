#include "vafx/CWnd.h"

#include "detail/Handles.h"
#include "detail/WndThread.h"
#include "vafx/CException.h"
#include "vafx/CFont.h"
#include "vafx/CWinApp.h"
#include "vafx/resources.h"

IMPLEMENT_DYNCREATE(CWnd, CCmdTarget)

using vafx::detail::CreationHook;
using vafx::detail::HandleKind;
using vafx::detail::ThisThread;

const CWnd CWnd::wndTop(HWND_TOP);
const CWnd CWnd::wndBottom(HWND_BOTTOM);
const CWnd CWnd::wndTopMost(HWND_TOPMOST);
const CWnd CWnd::wndNoTopMost(HWND_NOTOPMOST);

CWnd::CWnd() noexcept
    : m_hWnd(nullptr)
    , m_super(nullptr)
    , m_owner(nullptr)
    , m_modal(nullptr)
{
}

CWnd::CWnd(HWND special) noexcept
    : m_hWnd(special)
    , m_super(nullptr)
    , m_owner(nullptr)
    , m_modal(nullptr)
{
}

CWnd::~CWnd()
{
    // The places of SetWindowPos are no windows.
    if (this == &wndTop || this == &wndBottom || this == &wndTopMost || this == &wndNoTopMost)
        return;
    if (m_modal != nullptr) {
        m_modal->window = nullptr;
        m_modal->goOn = false;
    }
    if (m_hWnd == nullptr)
        return;
    const HWND window = m_hWnd;
    ::DestroyWindow(window);
    vafx::detail::RemovePermanent(HandleKind::Window, window, this);
}

HWND CWnd::GetSafeHwnd() const noexcept
{
    // Callers rely on being allowed to ask a null pointer.
    const CWnd* volatile self = this;
    return self == nullptr ? nullptr : m_hWnd;
}

CWnd* PASCAL CWnd::FromHandle(HWND hWnd)
{
    return vafx::detail::ObjectOf<CWnd>(ThisThread().temporary, HandleKind::Window, hWnd,
                                        [hWnd](CWnd& wnd) { wnd.m_hWnd = hWnd; });
}

CWnd* PASCAL CWnd::FromHandlePermanent(HWND hWnd)
{
    return static_cast<CWnd*>(vafx::detail::FindPermanent(HandleKind::Window, hWnd));
}

void PASCAL CWnd::DeleteTempMap()
{
    vafx::detail::FreeTemporaries();
}

BOOL CWnd::Attach(HWND hWndNew)
{
    if (hWndNew == nullptr)
        return FALSE;
    Detach();
    vafx::detail::SetPermanent(HandleKind::Window, hWndNew, this);
    m_hWnd = hWndNew;
    return TRUE;
}

HWND CWnd::Detach()
{
    const HWND window = m_hWnd;
    if (window != nullptr)
        vafx::detail::RemovePermanent(HandleKind::Window, window, this);
    m_hWnd = nullptr;
    return window;
}

BOOL CWnd::SubclassWindow(HWND hWnd)
{
    if (m_hWnd != nullptr || !::IsWindow(hWnd) || FromHandlePermanent(hWnd) != nullptr)
        return FALSE;
    vafx::WndAccess::Bind(*this, hWnd);
    return TRUE;
}

BOOL CWnd::SubclassDlgItem(UINT nID, CWnd* pParent)
{
    return SubclassWindow(::GetDlgItem(vafx::detail::HandleOf(pParent), static_cast<int>(nID)));
}

HWND CWnd::UnsubclassWindow()
{
    if (m_hWnd != nullptr && m_super != nullptr)
        ::SetWindowLongPtrW(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_super));
    m_super = nullptr;
    return Detach();
}

BOOL CWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                  CWnd* pParentWnd, UINT nID, CCreateContext* pContext)
{
    return CreateEx(0, lpszClassName, lpszWindowName, dwStyle | WS_CHILD, rect, pParentWnd, nID, pContext);
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                    const RECT& rect, CWnd* pParentWnd, UINT nID, LPVOID lpParam)
{
    return CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top,
                    rect.right - rect.left, rect.bottom - rect.top, vafx::detail::HandleOf(pParentWnd),
                    reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)), lpParam);
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, int x,
                    int y, int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam)
{
    if (m_hWnd != nullptr)
        return FALSE;
    CREATESTRUCT cs{};
    cs.dwExStyle = dwExStyle;
    cs.lpszClass = lpszClassName;
    cs.lpszName = lpszWindowName;
    cs.style = static_cast<LONG>(dwStyle);
    cs.x = x;
    cs.y = y;
    cs.cx = nWidth;
    cs.cy = nHeight;
    cs.hwndParent = hWndParent;
    cs.hMenu = nIDorHMenu;
    cs.hInstance = ::AfxGetInstanceHandle();
    cs.lpCreateParams = lpParam;
    if (!PreCreateWindow(cs)) {
        PostNcDestroy();
        return FALSE;
    }

    CreationHook hook(*this, cs.lpszClass);
    const HWND window =
        ::CreateWindowExW(cs.dwExStyle, cs.lpszClass, cs.lpszName, static_cast<DWORD>(cs.style), cs.x, cs.y,
                          cs.cx, cs.cy, cs.hwndParent, cs.hMenu, cs.hInstance, cs.lpCreateParams);
    return hook.Finish(window);
}

BOOL CWnd::DestroyWindow()
{
    const HWND window = m_hWnd;
    if (window == nullptr)
        return FALSE;
    const BOOL destroyed = ::DestroyWindow(window);
    // A subclassed window unties itself at its end, and the object may be gone; one that was only attached
    // leaves the object here.
    if (destroyed && FromHandlePermanent(window) == this)
        Detach();
    return destroyed;
}

BOOL CWnd::PreCreateWindow(CREATESTRUCT& cs)
{
    if (cs.lpszClass == nullptr)
        cs.lpszClass = ::AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW));
    return TRUE;
}

void CWnd::PreSubclassWindow() {}

void CWnd::PostNcDestroy() {}

void CWnd::OnNcDestroy()
{
    if (m_modal != nullptr)
        m_modal->goOn = false;
    if (CWinThread* thread = ::AfxGetThread(); thread != nullptr && thread->m_pMainWnd == this) {
        thread->m_pMainWnd = nullptr;
        ::PostQuitMessage(0);
    }
    Default();
    m_super = nullptr;
    Detach();
    PostNcDestroy();
}

BOOL CWnd::PreTranslateMessage(MSG*)
{
    return FALSE;
}

int CWnd::RunModalLoop(DWORD dwFlags)
{
    struct Scope {
        explicit Scope(CWnd& window)
            : loop{&window}
            , owner(window.m_modal)
        {
            window.m_modal = &loop;
            auto& thread = ThisThread();
            floor = thread.temporaryFloor;
            thread.temporaryFloor = thread.temporary.Count();
        }
        ~Scope()
        {
            vafx::detail::FreeTemporaries();
            ThisThread().temporaryFloor = floor;
            if (loop.window != nullptr)
                owner = nullptr;
        }
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;

        vafx::ModalLoop loop;
        vafx::ModalLoop*& owner;
        std::size_t floor;
    } scope(*this);

    bool show = (dwFlags & MLF_SHOWONIDLE) != 0 && !IsWindowVisible();
    const HWND window = m_hWnd;
    const HWND parent = ::GetParent(window);
    bool idle = true;
    MSG next;
    // Whatever runs here may end the loop, or the object.
    while (scope.loop.window != nullptr && ContinueModal()) {
        if (::PeekMessageW(&next, nullptr, 0, 0, PM_NOREMOVE)) {
            // WM_QUIT stays for the outer loops.
            if (next.message == WM_QUIT || !vafx::detail::PumpOne())
                return -1;
            idle = true;
        } else if (idle) {
            idle = false;
            if (show)
                ::ShowWindow(window, SW_SHOWNORMAL);
            show = false;
            vafx::detail::FreeTemporaries();
            if (parent != nullptr && (dwFlags & MLF_NOIDLEMSG) == 0)
                ::SendMessageW(parent, WM_ENTERIDLE, MSGF_DIALOGBOX, reinterpret_cast<LPARAM>(window));
        } else {
            ::WaitMessage();
        }
    }
    return scope.loop.result;
}

BOOL CWnd::ContinueModal()
{
    return m_modal != nullptr && m_modal->goOn;
}

void CWnd::EndModalLoop(int nResult)
{
    if (m_modal == nullptr || !m_modal->goOn)
        return;
    m_modal->result = nResult;
    m_modal->goOn = false;
    // Wakes a loop that waits for a message.
    PostMessage(WM_NULL);
}
