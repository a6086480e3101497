// CWinThread: starting and ending. The message loop is in CWinThreadPump.cpp.
#include <afx.h>

#include "detail/CurrentThread.h"
#include "vafx/CWinThread.h"

#include <memory>
#include <process.h>

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)

namespace
{

thread_local constinit CWinThread* t_current = nullptr;

/** Sets the priority of a thread that waits for its start, and starts it unless it is to go on waiting.
 *  @return The object, which may be gone by then; null when there is no thread. */
CWinThread* Start(std::unique_ptr<CWinThread> thread, int priority, UINT stackSize, DWORD flags,
                  LPSECURITY_ATTRIBUTES security)
{
    if (!thread->CreateThread(flags | CREATE_SUSPENDED, stackSize, security))
        return nullptr;
    thread->SetThreadPriority(priority);
    CWinThread* const started = thread.release(); // it deletes itself
    if ((flags & CREATE_SUSPENDED) == 0)
        started->ResumeThread();
    return started;
}

} // namespace

void vafx::detail::SetCurrentThread(CWinThread* thread) noexcept
{
    t_current = thread;
}

CWinThread* AfxGetThread()
{
    return t_current;
}

CWinThread::CWinThread()
    : m_pMainWnd(nullptr)
    , m_pActiveWnd(nullptr)
    , m_bAutoDelete(TRUE)
    , m_hThread(nullptr)
    , m_nThreadID(0)
    , m_proc(nullptr)
    , m_param(nullptr)
    , m_message{}
    , m_mouse{}
    , m_mouseMessage(0)
{
}

CWinThread::~CWinThread()
{
    if (m_hThread != nullptr)
        ::CloseHandle(m_hThread);
    if (t_current == this)
        t_current = nullptr;
}

unsigned CWinThread::Main(void* object)
{
    auto* const thread = static_cast<CWinThread*>(object);
    t_current = thread;
    unsigned code = 0;
    if (thread->m_proc != nullptr)
        code = thread->m_proc(thread->m_param);
    else
        code = static_cast<unsigned>(thread->InitInstance() ? thread->Run() : thread->ExitInstance());
    t_current = nullptr;
    if (thread->m_bAutoDelete)
        delete thread;
    return code;
}

BOOL CWinThread::CreateThread(DWORD dwCreateFlags, UINT nStackSize, LPSECURITY_ATTRIBUTES lpSecurityAttrs)
{
    if (m_hThread != nullptr)
        return FALSE;
    // It is made waiting, because a thread that runs may have deleted this object already.
    unsigned id = 0;
    const std::uintptr_t handle = _beginthreadex(lpSecurityAttrs, nStackSize, &CWinThread::Main, this,
                                                 dwCreateFlags | CREATE_SUSPENDED, &id);
    if (handle == 0)
        return FALSE;
    m_hThread = reinterpret_cast<HANDLE>(handle);
    m_nThreadID = id;
    if ((dwCreateFlags & CREATE_SUSPENDED) == 0)
        ResumeThread();
    return TRUE;
}

int CWinThread::GetThreadPriority()
{
    return ::GetThreadPriority(m_hThread);
}

BOOL CWinThread::SetThreadPriority(int nPriority)
{
    return ::SetThreadPriority(m_hThread, nPriority);
}

DWORD CWinThread::SuspendThread()
{
    return ::SuspendThread(m_hThread);
}

DWORD CWinThread::ResumeThread()
{
    return ::ResumeThread(m_hThread);
}

BOOL CWinThread::PostThreadMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::PostThreadMessageW(m_nThreadID, message, wParam, lParam);
}

CWinThread* AfxBeginThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam, int nPriority, UINT nStackSize,
                           DWORD dwCreateFlags, LPSECURITY_ATTRIBUTES lpSecurityAttrs)
{
    auto thread = std::make_unique<CWinThread>();
    thread->m_proc = pfnThreadProc;
    thread->m_param = pParam;
    return Start(std::move(thread), nPriority, nStackSize, dwCreateFlags, lpSecurityAttrs);
}

CWinThread* AfxBeginThread(CRuntimeClass* pThreadClass, int nPriority, UINT nStackSize, DWORD dwCreateFlags,
                           LPSECURITY_ATTRIBUTES lpSecurityAttrs)
{
    if (pThreadClass == nullptr || !pThreadClass->IsDerivedFrom(RUNTIME_CLASS(CWinThread)))
        AfxThrowInvalidArgException();
    std::unique_ptr<CWinThread> thread(static_cast<CWinThread*>(pThreadClass->CreateObject()));
    if (thread == nullptr)
        AfxThrowMemoryException();
    return Start(std::move(thread), nPriority, nStackSize, dwCreateFlags, lpSecurityAttrs);
}

void AfxEndThread(UINT nExitCode, BOOL bDelete)
{
    CWinThread* const thread = t_current;
    t_current = nullptr;
    if (thread != nullptr && bDelete && thread->m_bAutoDelete)
        delete thread;
    _endthreadex(nExitCode);
}
