// A window as the page on windows and controls takes it apart: sections, an anchored block, levels, styles, a
// child that grows, free drawing, options, help and messages.
#include <VantCore.h>

#include <cmath>
#include <memory>

namespace
{

class CSonarWnd : public CVantWnd
{
public:
    // [setup]
    void SetDefaults() override
    {
        name = L"Sonar";         // the key of CVantWnd::GetWnd() and of the settings
        topic = L"Sonar set-up"; // the page of the help file
        minW = 330;              // from this client width on flexible children grow
    }

    void SetupCtrls() override
    {
        SetupHead();
        SetupView();
        SetupButtons();
    }
    // [setup]

    // [section]
    void SetupHead()
    {
        CCtrlCat* const head = GetCat(L"Sonar head", kindStacked, 1, 0);
        head->InsText(90, L"Range");
        CECtrl* const range = head->InsCtrl(90, CECtrl::typeEdit, m_range);
        range->units = 0;        // a length: m, or ft
        range->SetRange(1, 150); // metres
        range->tip = L"How far the sonar looks, 1 to 150 m";
        range->SetCallback(this, static_cast<CEVal::CbDouble>(&CSonarWnd::OnRange));
        head->NewLn();
        head->InsText(90, L"Gate");
        head->InsCtrl(90, CECtrl::typeCheck, m_isGated)->text = L"On";
        CECtrl* const gate = head->InsCtrl(70, CECtrl::typeEdit, m_gate);
        gate->pEnVar = &m_isGated; // enabled while m_isGated
        gate->enVal = 1;           // is 1
        gate->enIf = 1;
        head->NewLn(); // behind the last line too
        // [level]
        head->lvlMask = expert; // what follows is shown to experts
        head->InsText(90, L"Pulse");
        head->InsCtrl(90, CECtrl::typeEdit, m_pulse);
        head->lvlMask = 1;
        head->NewLn();
        // [level]
    }
    // [section]

    void SetupView()
    {
        // [style]
        CCtrlCat* const view = GetCat(L"Depth", kindStacked, 1, 0);
        CEStyle figures; // Vant::normalF, light grey
        figures.pFont = &Vant::headF;
        figures.txtCol = Vant::cyan;
        view->catStyle = figures; // of every control inserted from now on
        view->ctrlH = 34;
        CECtrl* const depth = view->InsCtrl(120, CECtrl::typeText, m_depth);
        depth->units = 0;
        depth->decimals = 1;
        view->catStyle = CEStyle::s_default;
        view->ShiftY(view->ctrlH + view->gap, view->leftM);
        // [style]

        // [flex]
        view->ctrlH = 70;
        CEFlex width(0, 0, 1, 0); // only the right edge takes part in the growth
        auto* const profile = static_cast<CEWnd*>(view->NewCtrl(295, CECtrl::typeWnd, &width));
        profile->SetTarget(this); // DrawEWnd()
        view->ShiftY(view->ctrlH + view->gap, view->leftM);
        // [flex]
    }

    // [anchor]
    void SetupButtons()
    {
        CCtrlCat* const block = GetCat(L"Buttons", anchorBottomRight, 0, 0);
        block->InsBtn(90, L"Expert", 1, this, static_cast<CEVal::CbNone>(&CSonarWnd::OnExpert));
        block->InsBtn(90, L"Defaults", 2, this, static_cast<CEVal::CbNone>(&CSonarWnd::OnDefaults));
        block->NewLn();
    }
    // [anchor]

    // [free]
    void DrawEWnd(CEWnd*, CDC* dc, CRect& r) override
    {
        dc->FillRect(r, &Vant::blackB);
        dc->SelectObject(&Vant::cyanL);
        for (int at = r.left; at < r.right; ++at) { // units, at every scale
            const auto wave = static_cast<int>(std::lround(18 * std::sin(at / 25.0)));
            const CPoint to(at, r.CenterPoint().y + wave);
            if (at == r.left)
                dc->MoveTo(to);
            dc->LineTo(to);
        }
    }
    // [free]

    // [option]
    void SetOption(const CString& option, const CString& value) override
    {
        if (option == L"Range")
            m_range = _wtof(value);
        else
            CVantWnd::SetOption(option, value); // Name, Topic, Level, Fixed
    }
    // [option]

    // [message]
    void OnDefaults()
    {
        const int question = Vant::msgModal | Vant::msgYesNo;
        if (Vant::MsgBox(question, L"Set range and gate to\ntheir defaults?") != IDYES)
            return;
        m_range = 75;
        m_gate = 2;
        UpdCtrls(); // the variables have changed behind the controls
    }
    // [message]

    // [show]
    void OnExpert()
    {
        m_isExpert = !m_isExpert;
        ShowLevel(expert, m_isExpert);
    }
    // [show]

    void OnRange(double metres) { m_depth = metres / 4; }

private:
    static constexpr int expert = 2; // user level, one bit
    double m_range = 75;
    double m_gate = 2;
    double m_pulse = 0.04;
    double m_depth = 18.6;
    int m_isGated = 0;
    int m_isExpert = 1;
};

class CSonarApp : public CBaseApp
{
    BOOL InitInstance() override
    {
        Vant::Init();
        m_wnd = std::make_unique<CSonarWnd>();
        m_pMainWnd = m_wnd.get();
        if (!m_wnd->CreateWnd(L"Sonar", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(80, 80, 440, 460)))
            return FALSE;
        // [parse]
        m_wnd->ParseOptions(L"Range = 60, Topic = Side-scan sonar", 0);
        // [parse]
        m_wnd->UpdCtrls();
        return TRUE;
    }

    // [help]
    BOOL PreTranslateMessage(MSG* message) override
    {
        if (message->message == WM_KEYDOWN && message->wParam == VK_F1) {
            Vant::SpawnHelp(); // of the control under the mouse (its aux3), or of its window (its topic)
            return TRUE;
        }
        return CBaseApp::PreTranslateMessage(message);
    }
    // [help]

    int ExitInstance() override
    {
        m_wnd.reset();
        Vant::Exit();
        return CBaseApp::ExitInstance();
    }
    std::unique_ptr<CSonarWnd> m_wnd;
};

CSonarApp theApp;

} // namespace
