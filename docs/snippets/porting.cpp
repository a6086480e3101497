// A frame of the old application that gets its first panel of the library, and what changes in the code
// around it.
#include <VantCore.h>

#include <cmath>
#include <memory>

namespace
{

bool isGood = true;

void Check(bool isSo, const wchar_t* what)
{
    if (!isSo)
        Vant::Console(0, L"%s", what);
    isGood = isGood && isSo;
}

// [strings]
CString Title(const CString& boat, double depth, const char* port)
{
    CString text;
    text.Format(L"%s at %.1lf m on %S", boat.GetString(), depth, port); // %S: narrow text
    return text;
}
// [strings]

// [exceptions]
bool CanRead(const CString& path)
{
    try {
        CFile file(path, CFile::modeRead | CFile::shareDenyWrite); // throws in VantAfx.dll
        return true;
    } catch (CFileException* e) { // is caught in the program
        Vant::Console(0, L"%s: %s", path.GetString(), Vant::FileExceptionStr(e->m_cause).GetString());
        e->Delete();
        return false;
    }
}
// [exceptions]

// [panel]
class CDepthPanel : public CVantWnd
{
public:
    CDepthPanel()
    {
        name = L"Depth panel";
        s_pollRx.AddTail(this);
    }
    ~CDepthPanel() override { s_pollRx.RemoveAt(s_pollRx.Find(this)); }

    void SetupCtrls() override
    {
        InsText(60, L"Depth");
        auto* const depth = static_cast<CEText*>(InsCtrl(100, CECtrl::typeText, m_depth));
        depth->framed = 1;
        depth->units = 0; // a length
        depth->decimals = 1;
        NewLn();
        InsText(60, L"Draught");
        CECtrl* const draught = InsCtrl(100, CECtrl::typeEdit, m_draught);
        draught->SetRange(0, 20);
        draught->units = 0;
        NewLn();
        minW = 280, minH = 180; // what exceeds this client size is the chart's
        CEFlex all(0, 0, 1, 1);
        ctrlH = 110;
        InsCtrl(260, CECtrl::typeChart, m_depth, &all)->units = 0;
    }
    void OnPoll(double t) override
    {
        m_depth = 12 + std::sin(t) - m_draught;
        UpdateLabels();
        CECtrl::UpdateAuCtrls(t); // the chart records
    }

private:
    double m_depth = 0;
    double m_draught = 1.5;
};
// [panel]

// [frame]
class CMainFrame : public CFrameWnd // as it was
{
    DECLARE_DYNCREATE(CMainFrame)

public:
    int reloads = 0;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT create)
    {
        if (CFrameWnd::OnCreate(create) == -1)
            return -1;
        SetTimer(1, 100, nullptr);
        return m_panel.CreateWnd(L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 200), this) ? 0 : -1;
    }
    afx_msg void OnSize(UINT type, int width, int height)
    {
        CFrameWnd::OnSize(type, width, height);
        if (m_panel.m_hWnd)
            m_panel.MoveWindow(0, 0, width, height);
    }
    afx_msg void OnTimer(UINT_PTR) { CVantWnd::Poll(TmSync::GetTm()); }
    afx_msg void OnReload() { ++reloads; }
    DECLARE_MESSAGE_MAP()

private:
    CDepthPanel m_panel;
};

IMPLEMENT_DYNCREATE(CMainFrame, CFrameWnd)

constexpr UINT reloadCommand = 40001;

BEGIN_MESSAGE_MAP(CMainFrame, CFrameWnd)
    ON_WM_CREATE()
    ON_WM_SIZE()
    ON_WM_TIMER()
    ON_COMMAND(reloadCommand, &CMainFrame::OnReload)
END_MESSAGE_MAP()
// [frame]

// [application]
class CEchoApp : public CBaseApp // was CWinApp
{
    BOOL InitInstance() override
    {
        CBaseApp::InitInstance();
        Vant::dataDir = L".\\"; // before Init(): where logs go
        Vant::Init();
        TmSync::Init();
        auto* const frame = new CMainFrame; // deletes itself with its window
        m_pMainWnd = frame;
        if (!frame->Create(nullptr, L"Echo", WS_OVERLAPPEDWINDOW, CRect(80, 80, 480, 380)))
            return FALSE;
        frame->ShowWindow(m_nCmdShow);
        frame->SendMessage(WM_COMMAND, reloadCommand);
        Check(frame->reloads == 1, L"the command has not arrived");
        Check(Title(L"Alca", 12.5, "COM3") == L"Alca at 12.5 m on COM3", L"the title is wrong");
        Check(!CanRead(L"Q:\\no such\\file"), L"a file that is not there can be read");
        return TRUE;
    }
    int ExitInstance() override
    {
        TmSync::Exit();
        Vant::Exit();
        const int code = CBaseApp::ExitInstance();
        return isGood ? code : 1;
    }
};
// [application]

CEchoApp theApp;

} // namespace
