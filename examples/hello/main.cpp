// hello: a window, and one value in it.
//
// A control shows and changes a variable of the program; it never owns it. Here three of them are bound to
// the same depth: a slider, a field to type into, and a large read-out. Whichever is used, the variable has
// the new value before the callback runs, which lets the window's controls show it.
#include <VantCore.h>

#include <cstdio>
#include <memory>

class CHelloWnd : public CVantWnd
{
public:
    CHelloWnd() { name = L"Hello"; }

    void SetupCtrls() override
    {
        CCtrlCat& sonar = *GetCat(L"Sonar head", kindStacked, 1, 0);
        CEStyle large;
        large.pFont = &Vant::headF;
        large.txtCol = Vant::cyan;
        sonar.ctrlH = 40;
        sonar.ShiftX(80);
        Bound(sonar, CECtrl::typeText, 200).style = large;
        sonar.ShiftY(46, sonar.leftM);
        sonar.InsText(80, L"Slide it");
        static_cast<CESlider&>(Bound(sonar, CECtrl::typeSlider, 300)).ticks = CESlider::ticksNumbers;
        sonar.ShiftY(46, sonar.leftM);
        sonar.ctrlH = 20;
        sonar.InsText(80, L"Type it");
        Bound(sonar, CECtrl::typeEdit, 80);
        sonar.NewLn();
    }

private:
    CECtrl& Bound(CCtrlCat& cat, int type, int width)
    {
        CECtrl& ctrl = *cat.InsCtrl(width, type, m_depth);
        ctrl.units = 0; // a length: EUnits knows its unit
        ctrl.decimals = 1;
        ctrl.SetRange(0, 50);
        ctrl.SetCallback(this, static_cast<CEVal::CbNone>(&CHelloWnd::OnDepth));
        return ctrl;
    }

    void OnDepth() { UpdCtrls(); }

    double m_depth = 12.5; // metres
};

class CHelloApp : public CBaseApp
{
    BOOL InitInstance() override
    {
        // The library's icon. An application brings its own, and says LoadIcon(1).
        Vant::hIcon = ::LoadIconW(::GetModuleHandleW(L"VantCore.dll"), MAKEINTRESOURCEW(100));
        Vant::Init(); // before the first window
        std::printf("VantCore %ls\n", Vant::swVer.GetString());
        m_wnd = std::make_unique<CHelloWnd>();
        m_pMainWnd = m_wnd.get(); // the program ends with it
        if (!m_wnd->CreateWnd(L"Hello", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(100, 100, 550, 320)))
            return FALSE;
        m_isGood = TRUE;
        if (__argc < 3) // hello --picture FILE
            return TRUE;
        m_wnd->RedrawWnd();
        m_isGood = Vant::PrintScn(__wargv[2]);
        std::printf(m_isGood ? "%ls\n" : "%ls could not be written\n", __wargv[2]);
        return FALSE;
    }

    int ExitInstance() override
    {
        m_wnd.reset();
        Vant::Exit(); // after the last one
        CBaseApp::ExitInstance();
        return m_isGood ? 0 : 1;
    }

    std::unique_ptr<CHelloWnd> m_wnd;
    BOOL m_isGood = FALSE;
} theApp;
