// plot: strip charts that a data thread feeds.
//
// There are two ways for a value to come from a thread into a window:
// - CEChart::Add() may be called by any thread, for a chart has a lock of its own. So comes the depth, sample
//   by sample.
// - Any control may be bound to a variable that a thread writes under a mutex, once the window is given that
//   mutex. So comes the speed, recorded at each CECtrl::UpdateAuCtrls(): what it was in between is not seen.
//
// The keys of the charts are those of every CEChart (docs/charts.md).
#include <VantCore.h>

#include <cmath>
#include <cstdio>
#include <memory>
#include <thread>

class CPlotWnd : public CVantWnd
{
public:
    CPlotWnd()
    {
        name = L"Plot";
        pWndMutex = &m_mutex; // every control that is bound to a variable takes it
        minW = 640;           // client area from which the charts grow with the window
        minH = 412;
    }

    void SetupCtrls() override
    {
        CEFlex upper(0, 0, 1, 0.6); // shares of what the window grows by
        CEFlex lower(0, 0.6, 1, 1);
        ctrlH = 240;
        m_sonar = static_cast<CEChart*>(NewCtrl(620, CECtrl::typeChart, &upper));
        CEStrip* const depth = m_sonar->AddStrip(L"Depth", length);
        depth->reversed = 1; // deep is down
        m_bottom = m_sonar->AddTrace(L"Bottom", depth)->Index();
        m_sonar->GetTrace(m_bottom)->fill = 1;
        m_sonar->SetSpan(8);

        SetCtrlY(curY + ctrlH + gap);
        ctrlH = 150;
        auto* const log = static_cast<CEChart*>(InsCtrl(620, CECtrl::typeChart, m_speed, &lower));
        log->text = L"Speed";
        log->units = speed;
        log->timeLabels = CEChart::timeClock;
        log->SetSpan(8);
    }

    void StartFeeding()
    {
        m_feeder = std::jthread([this](const std::stop_token& stop) {
            for (int i = 0; !stop.stop_requested(); ++i) {
                const double t = TmSync::GetTm();
                const bool isLost = i % 1000 > 950; // the echo: a gap in the line
                const double seaBed = 24 + 3 * std::sin(t) + 0.3 * std::sin(t * 37);
                m_sonar->Add(m_bottom, t, isLost ? noData : seaBed);
                m_mutex.Lock();
                m_speed = 2.2 + 0.4 * std::cos(t / 2);
                ++m_count;
                m_mutex.Unlock();
                std::this_thread::sleep_for(std::chrono::milliseconds(5));
            }
        });
    }

    void StopFeeding()
    {
        m_feeder = {}; // asks it to stop, and waits until it has
        double from = 0;
        double to = 0;
        if (m_sonar && m_sonar->GetShown(0, from, to))
            std::printf("%d samples, an axis from %.0f to %.0f m\n", m_count, from, to);
    }

private:
    static constexpr int length = 0; // unit kinds of EUnits
    static constexpr int speed = 2;
    static constexpr double noData = -32768.0;
    CMutex m_mutex;
    double m_speed = noData; // under the mutex
    int m_count = 0;         // likewise
    CEChart* m_sonar = nullptr;
    int m_bottom = 0;
    std::jthread m_feeder; // the last member: it ends before the others do
};

class CPlotApp : public CBaseApp
{
    BOOL InitInstance() override
    {
        Vant::hIcon = ::LoadIconW(::GetModuleHandleW(L"VantCore.dll"), MAKEINTRESOURCEW(100));
        Vant::Init();
        m_wnd = std::make_unique<CPlotWnd>();
        m_pMainWnd = m_wnd.get();
        const CRect place(100, 100, 756, 560);
        m_isGood = TmSync::Init() && // the clock of the samples
                   m_wnd->CreateWnd(L"Plot", WS_OVERLAPPEDWINDOW | WS_VISIBLE, place);
        if (m_isGood)
            m_wnd->StartFeeding();
        ::SetTimer(nullptr, 0, 20,
                   [](HWND, UINT, UINT_PTR, DWORD) { static_cast<CPlotApp*>(AfxGetApp())->Tick(); });
        return m_isGood;
    }

    void Tick()
    {
        CECtrl::UpdateAuCtrls(TmSync::GetTm());  // records the bound variables
        if (__argc > 2 && TmSync::GetPc() > 6) { // plot --picture FILE
            m_isGood = Vant::PrintScn(__wargv[2]);
            std::printf(m_isGood ? "%ls\n" : "%ls could not be written\n", __wargv[2]);
            m_wnd->PostMessage(WM_CLOSE);
        }
    }

    int ExitInstance() override
    {
        m_wnd->StopFeeding();
        m_wnd.reset();
        TmSync::Exit();
        Vant::Exit();
        CBaseApp::ExitInstance();
        return m_isGood ? 0 : 1;
    }

    std::unique_ptr<CPlotWnd> m_wnd;
    BOOL m_isGood = FALSE;
} theApp;
