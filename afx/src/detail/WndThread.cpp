#include "detail/WndThread.h"

#include "vafx/CException.h"
#include "vafx/CWinThread.h"
#include "vafx/CWnd.h"

namespace vafx
{
namespace detail
{
namespace
{

bool IsClass(HWND window, LPCWSTR windowClass)
{
    if (IS_INTRESOURCE(windowClass))
        return ::GetClassLongPtrW(window, GCW_ATOM) == reinterpret_cast<ULONG_PTR>(windowClass);
    constexpr int longestName = 257;
    wchar_t name[longestName];
    return ::GetClassNameW(window, name, longestName) > 0 && ::lstrcmpiW(name, windowClass) == 0;
}

// The system may make windows of its own first (input methods), which must not be taken for the awaited one.
bool IsAwaited(const WndThread& thread, HWND window)
{
    if (thread.creatingClass != nullptr)
        return IsClass(window, thread.creatingClass);
    return (::GetClassLongPtrW(window, GCL_STYLE) & CS_IME) == 0;
}

LRESULT CALLBACK OnCbt(int code, WPARAM wParam, LPARAM lParam)
{
    WndThread& thread = ThisThread();
    if (code == HCBT_CREATEWND && thread.creating != nullptr) {
        const HWND window = reinterpret_cast<HWND>(wParam);
        if (IsAwaited(thread, window)) {
            CWnd& object = *thread.creating;
            thread.creating = nullptr;
            thread.created = window;
            try {
                WndAccess::Bind(object, window);
            } catch (CException* e) {
                e->Delete();
                return 1;
            } catch (...) {
                return 1;
            }
        }
    }
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

} // namespace

WndThread& ThisThread()
{
    thread_local WndThread thread;
    return thread;
}

void FreeTemporaries() noexcept
{
    WndThread& thread = ThisThread();
    thread.temporary.FreeDownTo(thread.temporaryFloor);
}

WNDPROC ProcedureOfClass(HWND window) noexcept
{
    const auto procedure = reinterpret_cast<WNDPROC>(::GetClassLongPtrW(window, GCLP_WNDPROC));
    return procedure == &AfxWndProc ? nullptr : procedure;
}

BOOL WalkPreTranslate(HWND stop, MSG& msg)
{
    for (HWND window = msg.hwnd; window != nullptr; window = ::GetParent(window)) {
        CWnd* object = CWnd::FromHandlePermanent(window);
        if (object != nullptr && object->PreTranslateMessage(&msg))
            return TRUE;
        if (window == stop)
            break;
    }
    return FALSE;
}

BOOL PumpOne()
{
    if (CWinThread* thread = ::AfxGetThread())
        return thread->PumpMessage();
    MSG msg;
    if (::GetMessageW(&msg, nullptr, 0, 0) <= 0)
        return FALSE;
    if (!WalkPreTranslate(nullptr, msg)) {
        ::TranslateMessage(&msg);
        ::DispatchMessageW(&msg);
    }
    return TRUE;
}

CreationHook::CreationHook(CWnd& object, LPCWSTR windowClass)
    : m_object(object)
    , m_hook(::SetWindowsHookExW(WH_CBT, OnCbt, nullptr, ::GetCurrentThreadId()))
{
    WndThread& thread = ThisThread();
    m_outerCreating = thread.creating;
    m_outerClass = thread.creatingClass;
    m_outerCreated = thread.created;
    thread.creating = &object;
    thread.creatingClass = windowClass;
    thread.created = nullptr;
}

CreationHook::~CreationHook()
{
    Unhook();
}

void CreationHook::Unhook() noexcept
{
    if (m_ended)
        return;
    m_ended = true;
    if (m_hook != nullptr)
        ::UnhookWindowsHookEx(m_hook);
    WndThread& thread = ThisThread();
    thread.creating = m_outerCreating;
    thread.creatingClass = m_outerClass;
    thread.created = m_outerCreated;
}

BOOL CreationHook::Finish(HWND window)
{
    const bool tied = ThisThread().creating != &m_object;
    const HWND created = ThisThread().created;
    Unhook();
    if (window != nullptr) {
        if (!tied)
            WndAccess::Bind(m_object, window);
        return TRUE;
    }
    if (!tied) {
        WndAccess::PostNcDestroy(m_object);
    } else if (CWnd::FromHandlePermanent(created) == &m_object) {
        m_object.Detach();
        WndAccess::PostNcDestroy(m_object);
    }
    return FALSE;
}

} // namespace detail

void WndAccess::Bind(CWnd& object, HWND window)
{
    object.Attach(window);
    object.PreSubclassWindow();
    const auto old = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&AfxWndProc)));
    // A former object that let go of the window took with it what had been the procedure before.
    object.m_super = old != &AfxWndProc ? old : detail::ProcedureOfClass(window);
}

void WndAccess::PostNcDestroy(CWnd& object)
{
    object.PostNcDestroy();
}

} // namespace vafx
