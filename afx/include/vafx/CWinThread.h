#pragma once

#include "vafx/CCmdTarget.h"

class CException;
class CWnd;

/** What a worker thread runs. @return The thread's exit code. */
using AFX_THREADPROC = UINT (*)(LPVOID);

/** A thread: a worker that runs one function, or one with windows, which derives a class and pumps messages.
 *  The object is normally made by AfxBeginThread and destroys itself when the thread ends. */
class VAFX_API CWinThread : public CCmdTarget
{
    DECLARE_DYNAMIC(CWinThread)

public:
    CWinThread();
    /** Closes the handle; a thread that still runs goes on without it. */
    ~CWinThread() override;

    /** Starts the thread of an object that has none yet: InitInstance, then Run.
     *  @param dwCreateFlags 0, or CREATE_SUSPENDED: it waits for ResumeThread.
     *  @param nStackSize In bytes; 0: the program's default.
     *  @return FALSE when the system makes none. */
    BOOL CreateThread(DWORD dwCreateFlags = 0, UINT nStackSize = 0,
                      LPSECURITY_ATTRIBUTES lpSecurityAttrs = nullptr);

    operator HANDLE() const { return m_hThread; }
    /** @return THREAD_PRIORITY_NORMAL and the like; THREAD_PRIORITY_ERROR_RETURN on failure. */
    int GetThreadPriority();
    BOOL SetThreadPriority(int nPriority);
    /** @return How often it was suspended before; 0xFFFFFFFF on failure. */
    DWORD SuspendThread();
    /** @copydoc SuspendThread */
    DWORD ResumeThread();
    /** Puts a message without a window into the thread's queue. @return FALSE while it has no queue. */
    BOOL PostThreadMessage(UINT message, WPARAM wParam, LPARAM lParam);

    /** @name What a thread with windows overrides; called in the thread itself */
    ///@{
    /** Prepares the thread. @return FALSE: do not run. The default is FALSE. */
    virtual BOOL InitInstance();
    /** Pumps messages until WM_QUIT. @return What ExitInstance answers. */
    virtual int Run();
    /** Ends the thread. @return The exit code; the default is that of WM_QUIT. */
    virtual int ExitInstance();
    /** Sees every message before its window. The default asks the window and its parents, up to the main
     *  window, through CWnd::PreTranslateMessage. @return TRUE when the message is done with. */
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    /** Waits for a message and dispatches it. @return FALSE for WM_QUIT. */
    virtual BOOL PumpMessage();
    /** Called while no message waits, with @p lCount 0 and upwards. The default frees the thread's temporary
     *  window and GDI objects. @return FALSE: not again before another message. */
    virtual BOOL OnIdle(LONG lCount);
    /** @return FALSE for messages that do not make OnIdle start anew: painting, the caret's blinking, and a
     *  mouse that did not move. */
    virtual BOOL IsIdleMessage(MSG* pMsg);
    /** Receives exceptions that a window's handlers let out. @return The message's result. The exception
     * stays the caller's to delete. */
    virtual LRESULT ProcessWndProcException(CException* e, const MSG* pMsg);
    /** @return m_pMainWnd. */
    virtual CWnd* GetMainWnd();
    ///@}

    CWnd* m_pMainWnd;   ///< The thread's main window, not owned.
    CWnd* m_pActiveWnd; ///< The container's main window when an embedded object is active, not owned.
    BOOL m_bAutoDelete; ///< TRUE (the default): the object is deleted when the thread ends.
    HANDLE m_hThread;   ///< Null before the start.
    DWORD m_nThreadID;

private:
    friend VAFX_API CWinThread* AfxBeginThread(AFX_THREADPROC, LPVOID, int, UINT, DWORD,
                                               LPSECURITY_ATTRIBUTES);

    static unsigned __stdcall Main(void* object);

    AFX_THREADPROC m_proc; // null: InitInstance and Run
    LPVOID m_param;
    MSG m_message;
    POINT m_mouse;
    UINT m_mouseMessage;
};

/** Starts a worker thread.
 *  @param dwCreateFlags CREATE_SUSPENDED keeps it from running before ResumeThread. Use that to touch the
 * object safely: a thread that ends has deleted it, unless m_bAutoDelete was set to FALSE before.
 *  @return The thread's object; null when the system makes no thread. */
VAFX_API CWinThread* AfxBeginThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam,
                                    int nPriority = THREAD_PRIORITY_NORMAL, UINT nStackSize = 0,
                                    DWORD dwCreateFlags = 0, LPSECURITY_ATTRIBUTES lpSecurityAttrs = nullptr);

/** Starts a thread with windows. @param pThreadClass RUNTIME_CLASS of a class derived from CWinThread, with
 *  dynamic creation. */
VAFX_API CWinThread* AfxBeginThread(CRuntimeClass* pThreadClass, int nPriority = THREAD_PRIORITY_NORMAL,
                                    UINT nStackSize = 0, DWORD dwCreateFlags = 0,
                                    LPSECURITY_ATTRIBUTES lpSecurityAttrs = nullptr);

/** Ends the calling thread at once; objects on its stack are not destroyed. @param bDelete FALSE keeps the
 *  thread's object even with m_bAutoDelete. */
VAFX_API void AfxEndThread(UINT nExitCode, BOOL bDelete = TRUE);

/** @return The calling thread's object; null for a thread that was not started through one. */
VAFX_API CWinThread* AfxGetThread();
