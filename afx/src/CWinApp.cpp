#include "vafx/CWinApp.h"

#include "detail/CurrentThread.h"
#include "detail/MessageBox.h"
#include "detail/WaitCursor.h"
#include "detail/WndThread.h"
#include "vafx/CException.h"
#include "vafx/resources.h"

IMPLEMENT_DYNAMIC(CWinApp, CWinThread)

BEGIN_MESSAGE_MAP(CWinApp, CWinThread)
END_MESSAGE_MAP()

namespace
{

CWinApp* s_app = nullptr;

CString ProgramPath()
{
    CString path;
    for (DWORD size = MAX_PATH;; size *= 2) {
        const DWORD length = ::GetModuleFileNameW(nullptr, path.GetBuffer(static_cast<int>(size)), size);
        path.ReleaseBuffer(static_cast<int>(length < size ? length : 0));
        if (length < size)
            return path;
    }
}

CString NameOf(const CString& path)
{
    const int start = path.ReverseFind(L'\\') + 1;
    const int dot = path.ReverseFind(L'.');
    return dot > start ? path.Mid(start, dot - start) : path.Mid(start);
}

} // namespace

CWinApp::CWinApp(LPCTSTR lpszAppName)
    : m_hInstance(::AfxGetInstanceHandle())
    , m_lpCmdLine(nullptr)
    , m_nCmdShow(SW_SHOWNORMAL)
    , m_pszAppName(nullptr)
    , m_pszExeName(nullptr)
    , m_pszHelpFilePath(nullptr)
{
    const CString path = ProgramPath();
    m_exeName = NameOf(path);
    m_appName = lpszAppName != nullptr ? CString(lpszAppName) : m_exeName;
    const int dot = path.ReverseFind(L'.');
    m_helpFile = (dot > path.ReverseFind(L'\\') ? path.Left(dot) : path) + L".HLP";
    m_pszAppName = m_appName;
    m_pszExeName = m_exeName;
    m_pszHelpFilePath = m_helpFile;

    // The object is the program's: it describes the thread that makes it, and nobody deletes it.
    m_bAutoDelete = FALSE;
    m_nThreadID = ::GetCurrentThreadId();
    ::DuplicateHandle(::GetCurrentProcess(), ::GetCurrentThread(), ::GetCurrentProcess(), &m_hThread, 0,
                      FALSE, DUPLICATE_SAME_ACCESS);
    vafx::detail::SetCurrentThread(this);
    s_app = this;
}

CWinApp::~CWinApp()
{
    if (s_app == this)
        s_app = nullptr;
}

BOOL CWinApp::InitApplication()
{
    return TRUE;
}

BOOL CWinApp::InitInstance()
{
    return TRUE;
}

int CWinApp::Run()
{
    return CWinThread::Run();
}

int CWinApp::ExitInstance()
{
    return CWinThread::ExitInstance();
}

HCURSOR CWinApp::LoadCursor(LPCTSTR lpszResourceName) const
{
    return ::LoadCursorW(::AfxFindResourceHandle(lpszResourceName, RT_GROUP_CURSOR), lpszResourceName);
}

HCURSOR CWinApp::LoadCursor(UINT nIDResource) const
{
    return LoadCursor(MAKEINTRESOURCE(nIDResource));
}

HICON CWinApp::LoadIcon(LPCTSTR lpszResourceName) const
{
    return ::LoadIconW(::AfxFindResourceHandle(lpszResourceName, RT_GROUP_ICON), lpszResourceName);
}

HICON CWinApp::LoadIcon(UINT nIDResource) const
{
    return LoadIcon(MAKEINTRESOURCE(nIDResource));
}

HCURSOR CWinApp::LoadStandardCursor(LPCTSTR lpszCursorName) const
{
    return ::LoadCursorW(nullptr, lpszCursorName);
}

HICON CWinApp::LoadStandardIcon(LPCTSTR lpszIconName) const
{
    return ::LoadIconW(nullptr, lpszIconName);
}

int CWinApp::DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT)
{
    return vafx::detail::ShowMessageBox(lpszPrompt, nType, m_pszAppName);
}

void CWinApp::DoWaitCursor(int nCode)
{
    vafx::detail::DoWaitCursor(nCode);
}

LRESULT CWinApp::ProcessWndProcException(CException* e, const MSG* pMsg)
{
    const LRESULT result = CWinThread::ProcessWndProcException(e, pMsg);
    e->ReportError(MB_ICONSTOP | MB_SYSTEMMODAL);
    return result;
}

CWinApp* AfxGetApp()
{
    return s_app;
}

LPCTSTR AfxGetAppName()
{
    return s_app != nullptr ? s_app->m_pszAppName : nullptr;
}

CWnd* AfxGetMainWnd()
{
    CWinThread* thread = ::AfxGetThread();
    return thread != nullptr ? thread->GetMainWnd() : nullptr;
}

BOOL AFXAPI AfxWinInit(HINSTANCE hInstance, HINSTANCE, LPTSTR lpCmdLine, int nCmdShow)
{
    if (hInstance == nullptr)
        return FALSE;
    if (s_app != nullptr) {
        s_app->m_hInstance = hInstance;
        s_app->m_lpCmdLine = lpCmdLine;
        s_app->m_nCmdShow = nCmdShow;
    }
    return TRUE;
}

int AFXAPI AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow)
{
    CWinApp* app = ::AfxGetApp();
    if (app == nullptr || !::AfxWinInit(hInstance, hPrevInstance, lpCmdLine, nCmdShow)) {
        ::OutputDebugStringW(L"The program has no application object.\n");
        return -1;
    }
    int code = -1;
    if (app->InitApplication()) {
        if (app->InitInstance()) {
            code = app->Run();
        } else {
            if (app->m_pMainWnd != nullptr)
                app->m_pMainWnd->DestroyWindow();
            code = app->ExitInstance();
        }
    }
    vafx::detail::ThisThread().temporaryFloor = 0;
    vafx::detail::FreeTemporaries();
    return code;
}
