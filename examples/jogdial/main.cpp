// jogdial: a dial that steps through the controls of a sonar and adjusts them.
//
// CRcMgr takes orders, which are information messages; the control that it is at glows. The dial gives some,
// the keypad with Ctrl others (CRcKeys). The wheel turns the dial, a click presses it. docs/remote-control.md
#include <VantCore.h>

#include <cmath>
#include <cstdio>
#include <memory>

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
        const auto disc = [dc](CRect place, int smaller, CBrush& brush) {
            place.DeflateRect(smaller, smaller);
            dc->SelectObject(&brush);
            dc->Ellipse(place);
        };
        CRect mark = ClientRc();
        mark.OffsetRect(static_cast<int>(36 * std::sin(angle)), static_cast<int>(-36 * std::cos(angle)));
        DrawBack(dc);
        dc->SelectObject(&Vant::medL);
        disc(ClientRc(), 0, Vant::greyB);
        disc(ClientRc(), 8, Vant::tealB);
        disc(mark, 50, Vant::cyanB);
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
    BOOL InitInstance() override
    {
        Vant::hIcon = ::LoadIconW(::GetModuleHandleW(L"VantCore.dll"), MAKEINTRESOURCEW(100));
        Vant::Init();
        m_wnd = std::make_unique<CSonarWnd>();
        m_isGood = m_wnd->CreateWnd(L"Jog dial", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(100, 100, 560, 360));
        m_pMainWnd = m_wnd.get();
        m_wnd->UpdCtrls();
        ::SetTimer(nullptr, 0, 40, [](HWND, UINT, UINT_PTR, DWORD milliseconds) {
            CECtrl::UpdateAuCtrls(milliseconds / 1000.0); // the glow
        });
        if (!m_isGood || __argc < 3) // jogdial --picture FILE
            return m_isGood;
        m_wnd->dial->Turn(1, CRcMgr::infoNextCtrl); // the range glows
        m_wnd->dial->Turn(1, CRcMgr::infoInc);
        m_wnd->dial->Turn(1, CRcMgr::infoNextCtrl);
        m_wnd->RedrawWnd();
        m_isGood = Vant::PrintScn(__wargv[2]);
        std::printf(m_isGood ? "range %.0f m, %ls\n" : "no picture\n", m_wnd->range, __wargv[2]);
        return FALSE;
    }

    BOOL PreTranslateMessage(MSG* m) override { return m_keys.Take(m) || CBaseApp::PreTranslateMessage(m); }

    int ExitInstance() override
    {
        m_wnd.reset();
        Vant::Exit();
        CBaseApp::ExitInstance();
        return m_isGood ? 0 : 1;
    }

    CRcKeys m_keys;
    std::unique_ptr<CSonarWnd> m_wnd;
    BOOL m_isGood = FALSE;
} theApp;
