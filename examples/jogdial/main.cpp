// A jog dial that steps through the controls of a sonar and adjusts them.
#include <VantCore.h>

#include <cmath>
#include <memory>

namespace
{

/** The dial, drawn. The driver of a real one gives the same orders, on the thread of the windows. */
class CDial : public CECtrl
{
public:
    int adjusts = 0;  ///< what turning does
    double angle = 0; ///< radians

    void Turn(int notches, int order)
    {
        angle += notches * ML::D2R(15);
        Invalidate(FALSE);
        CVantWnd::InfoMsg(order, &notches);
    }

    void Draw(CDC* dc) override
    {
        CRect mark = ClientRc();
        mark.DeflateRect(52, 52);
        mark.OffsetRect(static_cast<int>(40 * std::sin(angle)), static_cast<int>(-40 * std::cos(angle)));
        DrawBack(dc);
        dc->SelectObject(&Vant::lightL);
        dc->SelectObject(&Vant::blackB);
        dc->Ellipse(ClientRc());
        dc->SelectObject(&Vant::cyanB);
        dc->Ellipse(mark);
    }

protected:
    afx_msg void OnLButtonDown(UINT, CPoint)
    {
        SetFocus(); // for the wheel
        CVantWnd::InfoMsg(CRcMgr::infoPress, nullptr);
    }
    afx_msg BOOL OnMouseWheel(UINT, short delta, CPoint)
    {
        Turn(delta / WHEEL_DELTA, adjusts ? CRcMgr::infoInc : CRcMgr::infoNextCtrl);
        return TRUE;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CDial, CECtrl)
    ON_WM_LBUTTONDOWN()
    ON_WM_MOUSEWHEEL()
END_MESSAGE_MAP()

class CSonarWnd : public CVantWnd
{
public:
    double range = 50, gain = 20;
    CDial* dial = nullptr;

    void SetupCtrls() override
    {
        Line(L"Range, m", CECtrl::typeEdit, range, 500, 10); // metres per notch
        Line(L"Gain, dB", CECtrl::typeSlider, gain, 60, 0);  // its own steps

        CCtrlCat& side = *GetCat(L"Dial", anchorTopRight, 0, 0);
        dial = new CDial;
        m_where = side.InsText(120, L"", nullptr, DT_CENTER);
        side.NewLn();
        side.InsCtrl(120, CECtrl::typeBtn, dial->adjusts)->text = L"Turn adjusts";
        side.NewLn();
        side.ctrlH = 120;
        side.InsCtrl(120, dial, 0);
        m_remote.AttachWnd(this);
    }

    void OnNfyWnd(CVantWnd*, int, void* ctrl) override
    {
        m_where->SetText(ctrl ? static_cast<CECtrl*>(ctrl)->tip : CString());
        m_where->Update(0);
    }

private:
    void Line(const wchar_t* label, int type, double& variable, double most, double step)
    {
        CCtrlCat& sonar = *GetCat(L"Sonar", kindStacked, 1, 0);
        sonar.InsText(70, label);
        CECtrl* const ctrl = sonar.InsCtrl(180, type, variable);
        ctrl->SetRange(0, most);
        ctrl->tip = label;
        sonar.NewLn();
        m_remote.GetGrp(L"All")->GetSet(L"Sonar")->Add(ctrl, step);
    }

    CEText* m_where = nullptr;
    CRcMgr m_remote;
};

class CJogApp : public CBaseApp
{
public:
    BOOL InitInstance() override
    {
        Vant::Init();
        m_wnd = std::make_unique<CSonarWnd>();
        const DWORD frame = __argc < 2 ? WS_OVERLAPPEDWINDOW : WS_POPUP;
        if (!m_wnd->CreateWnd(L"Jog dial", frame | WS_VISIBLE, CRect(100, 100, 560, 320)))
            return FALSE;
        m_pMainWnd = m_wnd.get();
        m_wnd->UpdCtrls();
        if (__argc < 2)
            return TRUE;
        m_wnd->dial->Turn(1, CRcMgr::infoNextCtrl); // the range glows
        m_wnd->dial->Turn(1, CRcMgr::infoInc);
        m_wnd->dial->Turn(1, CRcMgr::infoNextCtrl);
        m_wnd->RedrawWnd();
        m_isGood = m_wnd->range == 60 && Vant::PrintScn(__wargv[1]);
        return FALSE;
    }

    BOOL PreTranslateMessage(MSG* m) override { return m_keys.Take(m) || CBaseApp::PreTranslateMessage(m); }

    BOOL OnIdle(LONG count) override
    {
        CBaseApp::OnIdle(count);
        CECtrl::UpdateAuCtrls(static_cast<double>(::GetTickCount64()) / 1000);
        ::Sleep(40);
        return TRUE;
    }

    int ExitInstance() override
    {
        m_wnd.reset();
        Vant::Exit();
        CBaseApp::ExitInstance();
        return m_isGood ? 0 : 1;
    }

private:
    CRcKeys m_keys;
    std::unique_ptr<CSonarWnd> m_wnd;
    bool m_isGood = true;
};

CJogApp theApp;

} // namespace
