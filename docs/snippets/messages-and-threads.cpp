// A sounder whose depth a thread reads: stored under a mutex, shown by polls, alarms from where they arise.
#include <VantCore.h>

#include <atomic>
#include <chrono>
#include <cmath>
#include <memory>
#include <thread>

class CSounderWnd : public CVantWnd
{
public:
    // [register]
    CSounderWnd()
    {
        name = L"Sounder";
        pWndMutex = &m_mutex; // every control that is bound to a variable takes it
        s_pollRx.AddTail(this);
        s_infoRx.AddTail(this);
    }
    ~CSounderWnd() override
    {
        s_pollRx.RemoveAt(s_pollRx.Find(this));
        s_infoRx.RemoveAt(s_infoRx.Find(this));
    }
    // [register]

    // [controls]
    void SetupCtrls() override
    {
        minW = 460, minH = 300; // what exceeds this client size is the chart's
        m_depthText = AddReading(L"Depth", m_depth, 0, 1);
        AddReading(L"Water", m_water, 1, 2);
        NewLn();
        ctrlH = 250;
        CEFlex all(0, 0, 1, 1);
        m_chart = static_cast<CEChart*>(NewCtrl(440, CECtrl::typeChart, &all));
        CEStrip* const depth = m_chart->AddStrip(L"Depth", 0);
        depth->reversed = 1; // deep is down
        m_trace = m_chart->AddTrace(L"Sounder", depth)->Index();
        m_chart->SetSpan(20);
    }
    // [controls]

    void StartReading()
    {
        // [thread]
        m_reader = std::jthread([this](const std::stop_token& stop) {
            const double began = TmSync::GetTm();
            while (!stop.stop_requested()) {
                const double t = TmSync::GetTm();
                const double depth = 21 - 4 * std::cos(t - began); // here your device is waited for
                m_mutex.Lock();
                m_depth = depth; // what belongs together is stored together
                m_water = 9 + depth / 10;
                m_mutex.Unlock();
                m_chart->Add(m_trace, t, depth); // has a lock of its own

                const bool isShallow = depth < limit;
                if (isShallow != m_wasShallow) {
                    m_wasShallow = isShallow;
                    Vant::Alarm(shallowAlarm, isShallow ? 1 : -1, L"Depth %.1lf m", depth);
                    ::PostMessageW(m_hWnd, shallowMsg, isShallow, 0);
                }
                std::this_thread::sleep_for(std::chrono::milliseconds(20));
            }
        });
        // [thread]
    }

    // [poll]
    void OnPoll(double t) override
    {
        m_mutex.Lock(); // once, so that both are of one reading
        const double depth = m_depth;
        const double water = m_water;
        m_mutex.Unlock();
        Check(std::abs(9 + depth / 10 - water) < 1e-9, L"the values are of different readings");
        UpdateLabels();           // texts, not the fields that somebody types into
        CECtrl::UpdateAuCtrls(t); // lamps, buttons, charts of variables, the glow
        ++m_polls;
    }
    // [poll]

    // [alarm]
    void OnInfoMsg(int msg, void* data) override
    {
        if (msg != Vant::alarmInfo)
            return;
        // On the thread that has raised the alarm: note it, and leave windows alone.
        m_lastAlarm = static_cast<const CECEntry*>(data)->id;
        m_alarmThread = ::GetCurrentThreadId();
    }
    // [alarm]

    bool IsGood() const
    {
        const bool wasOnReader = m_alarmThread != 0 && m_alarmThread != ::GetCurrentThreadId();
        return m_isGood && m_polls > 0 && m_isPosted && wasOnReader && m_lastAlarm == shallowAlarm;
    }

protected:
    // [posted]
    afx_msg LRESULT OnShallow(WPARAM isShallow, LPARAM)
    {
        m_depthText->alarm = isShallow != 0; // windows and controls: only here
        m_depthText->Update(0);
        m_isPosted = true;
        return 0;
    }
    // [posted]

    // [destroy]
    afx_msg void OnDestroy()
    {
        m_reader = {}; // asks it to stop and waits; it must not be waiting for this thread
        CVantWnd::OnDestroy();
    }
    // [destroy]
    DECLARE_MESSAGE_MAP()

private:
    static constexpr UINT shallowMsg = WM_APP + 1;
    static constexpr unsigned long shallowAlarm = 20001;
    static constexpr double limit = 22; // metres

    CEText* AddReading(const wchar_t* label, double& variable, int units, int decimals)
    {
        InsText(50, label);
        auto* const reading = static_cast<CEText*>(InsCtrl(110, CECtrl::typeText, variable));
        reading->units = units;
        reading->decimals = decimals;
        reading->framed = 1;
        ShiftX(20);
        return reading;
    }
    void Check(bool isSo, const wchar_t* otherwise)
    {
        if (!isSo)
            Vant::Console(0, L"%s", otherwise);
        m_isGood = m_isGood && isSo;
    }

    CMutex m_mutex;
    double m_depth = 21;           // under the mutex, metres
    double m_water = 9 + 21 / 10.; // under the mutex, degrees C
    CEText* m_depthText = nullptr;
    CEChart* m_chart = nullptr;
    int m_trace = 0;
    bool m_wasShallow = false; // the reader's
    std::atomic<unsigned> m_lastAlarm = 0;
    std::atomic<DWORD> m_alarmThread = 0;
    int m_polls = 0;
    bool m_isPosted = false;
    bool m_isGood = true;
    std::jthread m_reader; // last: it ends before the others go
};

BEGIN_MESSAGE_MAP(CSounderWnd, CVantWnd)
    ON_MESSAGE(shallowMsg, &CSounderWnd::OnShallow)
    ON_WM_DESTROY()
END_MESSAGE_MAP()

class CSounderApp : public CBaseApp
{
    // [start]
    BOOL InitInstance() override
    {
        Vant::Init();
        TmSync::Init();
        m_wnd = std::make_unique<CSounderWnd>();
        if (!m_wnd->CreateWnd(L"Sounder", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(80, 80, 560, 420)))
            return FALSE;
        m_pMainWnd = m_wnd.get();
        m_wnd->StartReading();
        ::SetTimer(nullptr, 0, 50, [](HWND, UINT, UINT_PTR, DWORD) {
            const double t = TmSync::GetTm();
            CVantWnd::Trigger(t, 0); // the consoles redraw
            CVantWnd::Poll(t);
        });
        return TRUE;
    }
    // [start]

    // [end]
    int ExitInstance() override
    {
        const bool isGood = m_wnd->IsGood();
        m_wnd.reset();                             // its thread has ended in OnDestroy()
        const bool hasEnded = TmSync::Exit() != 0; // before the sources of time go
        Vant::Exit();
        const int code = CBaseApp::ExitInstance();
        return isGood && hasEnded ? code : 1;
    }
    // [end]

    std::unique_ptr<CSounderWnd> m_wnd;
};

CSounderApp theApp;
