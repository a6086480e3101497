// [program]
#include <VantCore.h>

#include <cmath>
#include <memory>

class CAltimeterWnd : public CVantWnd
{
public:
    // [controls]
    void SetupCtrls() override
    {
        name = L"Altimeter";    // of its settings
        minW = 440, minH = 288; // what exceeds this client size is the chart's
        InsText(130, L"Above the sea bed");
        m_reading = static_cast<CEText*>(InsCtrl(90, CECtrl::typeText, m_height));
        m_reading->framed = 1;
        CECtrl* feet = InsCtrl(90, CECtrl::typeBtn, EUnits::system); // 0: metric, 1: US
        feet->text = L"Feet";
        feet->aux1 = L"Units";
        feet->SetCallback(this, static_cast<CEVal::CbNone>(&CAltimeterWnd::UpdCtrls));
        NewLn();
        InsText(130, L"Too low below");
        CECtrl* limit = InsCtrl(90, CECtrl::typeEdit, m_limit);
        limit->SetRange(0, 100); // metres
        limit->tip = L"A smaller height turns the reading red; 0 to 100 m";
        limit->aux1 = L"Limit";
        NewLn();
        ctrlH = 220;
        CEFlex all(0, 0, 1, 1);
        CECtrl* chart = InsCtrl(420, CECtrl::typeChart, m_height, &all);
        m_reading->units = limit->units = chart->units = 0; // lengths
        m_reading->decimals = limit->decimals = chart->decimals = 1;
    }
    // [controls]

    // [live]
    void OnPoll(double t) override
    {
        m_height = 14 + 3 * std::sin(t / 4) + 0.2 * std::sin(t * 7); // yours comes from the altimeter
        m_reading->alarm = m_height < m_limit;
        UpdateLabels();
        CECtrl::UpdateAuCtrls(t);
    }
    // [live]

private:
    double m_height = 14; // metres, as all that the program keeps
    double m_limit = 12;
    CEText* m_reading = nullptr;
};

class CAltimeterApp : public CBaseApp
{
    // [start]
    BOOL InitInstance() override
    {
        Vant::setFile = L"altimeter.xml";
        Vant::Init();
        m_wnd = std::make_unique<CAltimeterWnd>();
        m_pMainWnd = m_wnd.get();
        if (!m_wnd->CreateWnd(L"Altimeter", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(80, 80, 540, 420)))
            return FALSE;
        CESet set(0); // for reading
        set.Load(Vant::setFile);
        CVantWnd::LoadSet(set);
        CVantWnd::s_pollRx.AddTail(m_wnd.get());
        ::SetTimer(nullptr, 0, 100, [](HWND, UINT, UINT_PTR, DWORD ms) { CVantWnd::Poll(ms / 1000.0); });
        return TRUE;
    }
    // [start]

    // [end]
    int ExitInstance() override
    {
        CESet set(1); // for writing
        CVantWnd::SaveSet(set);
        set.Save(Vant::setFile);
        m_wnd.reset();
        Vant::Exit();
        return CBaseApp::ExitInstance();
    }
    // [end]

    std::unique_ptr<CAltimeterWnd> m_wnd;
};

CAltimeterApp theApp;
// [program]
