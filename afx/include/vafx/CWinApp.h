#pragma once

#include "vafx/CWinThread.h"
#include "vafx/CWnd.h"
#include "vafx/types.h"

/** The application. A program defines one global object of a class derived from this; the library's entry
 *  point calls InitInstance, Run and ExitInstance of it. A program with an entry point of its own may do
 *  without. */
class VAFX_API CWinApp : public CWinThread
{
    DECLARE_DYNAMIC(CWinApp)

public:
    /** @param lpszAppName Null: the name of the program's file. */
    explicit CWinApp(LPCTSTR lpszAppName = nullptr);
    ~CWinApp() override;

    HINSTANCE m_hInstance;     ///< The program's module.
    LPTSTR m_lpCmdLine;        ///< The command line behind the program's name.
    int m_nCmdShow;            ///< For ShowWindow of the main window.
    LPCTSTR m_pszAppName;      ///< Shown in message boxes' titles; owned by the object.
    LPCTSTR m_pszExeName;      ///< The program's file name without extension; owned by the object.
    LPCTSTR m_pszHelpFilePath; ///< The program's path with the extension .HLP; owned by the object.

    /** Once per program, before InitInstance. @return FALSE ends the program. */
    virtual BOOL InitApplication();
    BOOL InitInstance() override;
    int Run() override;
    int ExitInstance() override;

    /** @name From the resources, @see AfxFindResourceHandle. Null when there is no such resource. */
    ///@{
    HCURSOR LoadCursor(LPCTSTR lpszResourceName) const;
    HCURSOR LoadCursor(UINT nIDResource) const;
    HICON LoadIcon(LPCTSTR lpszResourceName) const;
    HICON LoadIcon(UINT nIDResource) const;
    ///@}
    /** The system's own. @param lpszCursorName IDC_ARROW ... */
    HCURSOR LoadStandardCursor(LPCTSTR lpszCursorName) const;
    /** @param lpszIconName IDI_APPLICATION ... */
    HICON LoadStandardIcon(LPCTSTR lpszIconName) const;

    /** Shows the message boxes of AfxMessageBox. */
    virtual int DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt);
    /** Shows (+1), hides (-1) or restores (0) the hourglass. */
    virtual void DoWaitCursor(int nCode);

    /** Tells the user of an exception that nothing caught, and goes on. */
    LRESULT ProcessWndProcException(CException* e, const MSG* pMsg) override;

    DECLARE_MESSAGE_MAP()

private:
    CString m_appName;
    CString m_exeName;
    CString m_helpFile;
};

/** @return The program's application object; null when it has none. */
VAFX_API CWinApp* AfxGetApp();

/** @return The application's name; null without an application object. */
VAFX_API LPCTSTR AfxGetAppName();

/** @return The main window of the calling thread; null when it has none. */
VAFX_API CWnd* AfxGetMainWnd();

/** What the library's entry point runs. @return The process's exit code. */
VAFX_API int AFXAPI AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);

/** Prepares the library in a program that has its own entry point, and tells the application object what the
 *  entry point knows. @return FALSE on failure. */
VAFX_API BOOL AFXAPI AfxWinInit(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);

/** Shows a message box over the application's windows. @return IDOK ...; 0 on failure. */
VAFX_API int AFXAPI AfxMessageBox(LPCTSTR lpszText, UINT nType = MB_OK, UINT nIDHelp = 0);
/** The same with a text from the resources. */
VAFX_API int AFXAPI AfxMessageBox(UINT nIDPrompt, UINT nType = MB_OK, UINT nIDHelp = static_cast<UINT>(-1));

/** Registers, once, a window class of these properties. @return Its name, which stays valid; throws
 *  CResourceException on failure. */
VAFX_API LPCTSTR AFXAPI AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor = nullptr,
                                            HBRUSH hbrBackground = nullptr, HICON hIcon = nullptr);

/** Registers a window class unless it exists. @return FALSE on failure. */
VAFX_API BOOL AFXAPI AfxRegisterClass(WNDCLASS* lpWndClass);
