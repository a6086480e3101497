#pragma once

#include "detail/HandleMaps.h"

#include <windows.h>

class CWnd;

namespace vafx
{

/** One running CWnd::RunModalLoop. Lives on its stack, so that it outlasts a window that frees itself. */
struct ModalLoop {
    CWnd* window; ///< Null once the object is gone.
    bool goOn = true;
    int result = -1;
};

namespace detail
{

/** What a thread with windows knows. */
struct WndThread {
    MSG current{};                   ///< The message whose handler runs; all zero outside.
    CWnd* creating = nullptr;        ///< The object that waits for the window being created.
    LPCWSTR creatingClass = nullptr; ///< Its class; null for a dialog, whose template decides.
    HWND created = nullptr;          ///< The window it was tied to.
    TemporaryMap temporary;
    std::size_t temporaryFloor = 0; ///< Temporary objects below this belong to the callers of a modal loop.
};

WndThread& ThisThread();

/** Frees the temporary objects that nothing up the stack may hold. */
void FreeTemporaries() noexcept;

/** What the window's class does with its messages; null where that is no more than AfxWndProc. */
WNDPROC ProcedureOfClass(HWND window) noexcept;

/** Offers @p msg to the PreTranslateMessage of its window and of that one's parents, up to @p stop. */
BOOL WalkPreTranslate(HWND stop, MSG& msg);

/** Waits for a message and dispatches it, by the thread's object if it has one. @return FALSE for WM_QUIT. */
BOOL PumpOne();

/** Ties the next window that this thread creates to an object, before the window gets its first message. */
class CreationHook
{
public:
    /** @param windowClass Null for a dialog. */
    CreationHook(CWnd& object, LPCWSTR windowClass);
    ~CreationHook();
    CreationHook(const CreationHook&) = delete;
    CreationHook& operator=(const CreationHook&) = delete;

    /** Ends the hook. After a failed creation the object is told through PostNcDestroy, unless the window's
     *  end told it already; it may be gone then. @return TRUE when there is a window. */
    BOOL Finish(HWND window);

private:
    void Unhook() noexcept;

    CWnd& m_object;
    HHOOK m_hook; ///< Null when the system gave none; Finish ties the window then.
    bool m_ended = false;
    CWnd* m_outerCreating;
    LPCWSTR m_outerClass;
    HWND m_outerCreated;
};

} // namespace detail

/** What the library's own sources may do to a window object. */
struct WndAccess {
    /** Ties a window to @p object and routes its messages there. */
    static void Bind(CWnd& object, HWND window);
    static void PostNcDestroy(CWnd& object);
};

} // namespace vafx
