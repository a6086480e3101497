// An application as programs write it: a global object, no main. Its exit code is 0 when everything happened
// in order, else the number of the step that failed.
#include <afxwin.h>

#include <cstring>
#include <string>

namespace
{

constexpr UINT_PTR closeTimer = 1;
constexpr UINT closeCommand = 100;

class Frame : public CFrameWnd
{
protected:
    afx_msg void OnTimer(UINT_PTR) { PostMessage(WM_COMMAND, closeCommand); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Frame, CFrameWnd)
    ON_WM_TIMER()
END_MESSAGE_MAP()

class Program : public CWinApp
{
public:
    Program()
        : CWinApp(L"Gui Program")
    {
    }

    BOOL InitInstance() override
    {
        Check(::AfxGetApp() == this && ::AfxGetThread() == this, 1);
        Check(std::wstring(m_lpCmdLine) == L"first \"second argument\"", 2);
        Check(std::wstring(m_pszAppName) == L"Gui Program" && ::AfxGetAppName() == m_pszAppName, 3);
        Check(m_hInstance == ::GetModuleHandleW(nullptr) && ::AfxGetInstanceHandle() == m_hInstance, 4);
        Check(m_nThreadID == ::GetCurrentThreadId(), 5);
        Check(LoadStandardCursor(IDC_ARROW) != nullptr, 6);

        m_pMainWnd = new Frame;
        if (!static_cast<Frame*>(m_pMainWnd)->Create(nullptr, L"main", WS_POPUP, CRect(0, 0, 100, 100)))
            return FALSE;
        Check(::AfxGetMainWnd() == m_pMainWnd, 7);
        m_pMainWnd->ShowWindow(m_nCmdShow);
        return TRUE;
    }

    BOOL OnIdle(LONG count) override
    {
        // Not before: while the machine is busy a timer may be due before there is nothing else to do.
        if (!m_idle)
            m_pMainWnd->SetTimer(closeTimer, 10);
        m_idle = true;
        return CWinApp::OnIdle(count);
    }

    BOOL PreTranslateMessage(MSG* msg) override
    {
        m_sawTimer = m_sawTimer || msg->message == WM_TIMER;
        return CWinApp::PreTranslateMessage(msg);
    }

    int ExitInstance() override
    {
        Check(m_closed && m_idle && m_sawTimer, 8);
        Check(m_pMainWnd == nullptr, 9);
        Check(CWinApp::ExitInstance() == 0, 10);
        return m_failed;
    }

protected:
    // The frame has no handler: the command comes on to the application.
    void OnCloseCommand()
    {
        m_closed = true;
        m_pMainWnd->SendMessage(WM_CLOSE);
    }
    DECLARE_MESSAGE_MAP()

private:
    void Check(bool good, int step)
    {
        if (!good && m_failed == 0)
            m_failed = step;
    }
    int m_failed = 0;
    bool m_closed = false;
    bool m_idle = false;
    bool m_sawTimer = false;
};

BEGIN_MESSAGE_MAP(Program, CWinApp)
    ON_COMMAND(closeCommand, &Program::OnCloseCommand)
END_MESSAGE_MAP()

Program s_program;

} // namespace
