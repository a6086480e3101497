// Two strip charts that a data thread feeds: one sample by sample, the other through a variable under a
// mutex.
#include <VantCore.h>

#include <atlimage.h>

#include <chrono>
#include <cmath>
#include <cstdio>
#include <memory>
#include <thread>

namespace
{

/** Seconds since 1 January 1980, as the platform counts. */
double Now()
{
    using namespace std::chrono;
    const auto since = system_clock::now() - sys_days(year(1980) / January / 1);
    return duration<double>(since).count();
}

class CPlotWnd : public CVantWnd
{
public:
    CPlotWnd()
    {
        name = L"Plot";
        pWndMutex = &m_mutex; // every control that is bound to a variable takes it
    }

    void SetupCtrls() override
    {
        CEFlex upper(0, 0, 1, 0.6);
        CEFlex lower(0, 0.6, 1, 1);
        ctrlH = 240;
        m_sonar = static_cast<CEChart*>(NewCtrl(620, CECtrl::typeChart, &upper));
        CEStrip* const depth = m_sonar->AddStrip(L"Depth", length);
        depth->reversed = 1;
        m_bottom = m_sonar->AddTrace(L"Bottom", depth)->Index();
        m_sonar->GetTrace(m_bottom)->fill = 1;
        m_sonar->SetSpan(20);

        SetCtrlY(curY + ctrlH + gap);
        ctrlH = 150;
        auto* const chart = static_cast<CEChart*>(InsCtrl(620, CECtrl::typeChart, m_speed, &lower));
        chart->text = L"Speed";
        chart->units = speed;
        chart->timeLabels = CEChart::timeClock;
        chart->SetSpan(20);
    }

    void StartFeeding()
    {
        m_feeder = std::jthread([this](const std::stop_token& stop) {
            for (int i = 0; !stop.stop_requested(); ++i) {
                const double t = Now();
                // Any thread may add to a chart, which has a lock of its own.
                const bool isLost = i % 1000 > 950;
                m_sonar->Add(m_bottom, t, isLost ? noData : 24 + 3 * std::sin(t) + 0.3 * std::sin(t * 37));
                m_mutex.Lock();
                m_speed = 2.2 + 0.4 * std::cos(t / 2);
                m_mutex.Unlock();
                std::this_thread::sleep_for(std::chrono::milliseconds(5));
            }
        });
    }

protected:
    afx_msg void OnDestroy()
    {
        m_feeder = {}; // ends before the charts do
        CVantWnd::OnDestroy();
        ::PostQuitMessage(0);
    }
    DECLARE_MESSAGE_MAP()

private:
    static constexpr int length = 0; // unit kinds
    static constexpr int speed = 2;
    static constexpr double noData = -32768.0;
    CMutex m_mutex;
    double m_speed = noData; // under the mutex
    CEChart* m_sonar = nullptr;
    int m_bottom = 0;
    std::jthread m_feeder;
};

BEGIN_MESSAGE_MAP(CPlotWnd, CVantWnd)
    ON_WM_DESTROY()
END_MESSAGE_MAP()

class CPlotApp : public CBaseApp
{
public:
    BOOL InitInstance() override
    {
        Vant::Init();
        m_wnd = std::make_unique<CPlotWnd>();
        if (!m_wnd->CreateWnd(L"Plot", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(100, 100, 750, 550)))
            return FALSE;
        m_pMainWnd = m_wnd.get();
        m_wnd->StartFeeding();
        m_end = __argc > 1 ? Now() + 3 : 0;
        return TRUE;
    }

    BOOL OnIdle(LONG) override
    {
        CECtrl::UpdateAuCtrls(Now()); // records the bound variables
        ::Sleep(20);
        if (m_end > 0 && Now() > m_end) {
            m_isGood = Save(__wargv[1]);
            m_end = 0;
            m_wnd->PostMessage(WM_CLOSE);
        }
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
    bool Save(const CString& file) const
    {
        CRect client;
        m_wnd->GetClientRect(&client);
        CImage image;
        image.Create(client.Width(), client.Height(), 24);
        CClientDC dc(m_wnd.get());
        ::BitBlt(image.GetDC(), 0, 0, client.Width(), client.Height(), dc, 0, 0, SRCCOPY);
        image.ReleaseDC();
        return SUCCEEDED(image.Save(file));
    }

    std::unique_ptr<CPlotWnd> m_wnd;
    double m_end = 0; // when a picture is taken; 0: never
    bool m_isGood = true;
};

CPlotApp theApp;

} // namespace
