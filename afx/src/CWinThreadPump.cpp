// CWinThread: the message loop.
#include <afx.h>

#include "detail/WndThread.h"
#include "vafx/CWinThread.h"
#include "vafx/CWnd.h"

BOOL CWinThread::InitInstance()
{
    return FALSE;
}

int CWinThread::ExitInstance()
{
    return m_message.message == WM_QUIT ? static_cast<int>(m_message.wParam) : 0;
}

int CWinThread::Run()
{
    MSG waiting;
    LONG idleCount = 0;
    bool idle = true;
    for (;;) {
        while (idle && !::PeekMessageW(&waiting, nullptr, 0, 0, PM_NOREMOVE))
            idle = OnIdle(idleCount++) != FALSE;
        do {
            if (!PumpMessage())
                return ExitInstance();
            if (IsIdleMessage(&m_message)) {
                idle = true;
                idleCount = 0;
            }
        } while (::PeekMessageW(&waiting, nullptr, 0, 0, PM_NOREMOVE));
    }
}

BOOL CWinThread::PumpMessage()
{
    // An error of GetMessage must not keep the loop turning: it ends it, like WM_QUIT.
    if (::GetMessageW(&m_message, nullptr, 0, 0) <= 0)
        return FALSE;
    // Handlers may run a loop of their own, which overwrites the member.
    MSG message = m_message;
    if (!PreTranslateMessage(&message)) {
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
    m_message = message;
    return TRUE;
}

BOOL CWinThread::PreTranslateMessage(MSG* pMsg)
{
    const CWnd* const main = GetMainWnd();
    return vafx::detail::WalkPreTranslate(main != nullptr ? main->m_hWnd : nullptr, *pMsg);
}

BOOL CWinThread::OnIdle(LONG)
{
    vafx::detail::FreeTemporaries();
    return FALSE;
}

BOOL CWinThread::IsIdleMessage(MSG* pMsg)
{
    constexpr UINT caretTimer = 0x0118; // what makes the caret blink
    if (pMsg->message == WM_PAINT || pMsg->message == caretTimer)
        return FALSE;
    if (pMsg->message == WM_MOUSEMOVE || pMsg->message == WM_NCMOUSEMOVE) {
        if (pMsg->message == m_mouseMessage && pMsg->pt.x == m_mouse.x && pMsg->pt.y == m_mouse.y)
            return FALSE;
        m_mouse = pMsg->pt;
        m_mouseMessage = pMsg->message;
    }
    return TRUE;
}

LRESULT CWinThread::ProcessWndProcException(CException*, const MSG* pMsg)
{
    // A command is done with; a painting or creation is left to the system.
    if (pMsg->message == WM_COMMAND)
        return TRUE;
    if (pMsg->message == WM_CREATE)
        return -1;
    return 0;
}

CWnd* CWinThread::GetMainWnd()
{
    return m_pMainWnd;
}
