// timesource: a source of time of one's own, and what the library makes of its readings.
// A receiver sends the time once a second, up to 40 ms late, and every fifth message is wrong. PollTm() must
// not wait for a port: a thread of its own reads that, and a poll tells the time of the last message plus
// what has passed since. TmSync fits a line to the last 60 readings, and GetTm() converts a time stamp by it.
#include <VantCore.h>

#include <cstdio>
#include <memory>
#include <mutex>
#include <random>
#include <thread>

constexpr double ahead = 0.3; // seconds that the receiver's clock is ahead of the PC's

class CReceiver : public CTmFn
{
public:
    CReceiver() { name = L"Receiver"; }

    /** Called by the thread that reads the port. @param time  seconds since 1970 */
    void OnMessage(double time)
    {
        const double now = TmSync::GetPc();
        const std::lock_guard lock(m_guard);
        m_time = time;
        m_came = now;
    }

    int PollTm(double& value) override
    {
        const double now = TmSync::GetPc();
        const std::lock_guard lock(m_guard);
        if (m_time == 0 || now - m_came > 5) // nothing was heard for a while
            return 0;
        value = m_time + (now - m_came);
        return 1;
    }

private:
    std::mutex m_guard;
    double m_time = 0;
    double m_came = 0;
};

/** Stands for the port. */
void ReadPort(const std::stop_token& stop, CReceiver& receiver)
{
    std::mt19937 random(1);
    std::uniform_real_distribution<> late(0, 0.04);
    for (int n = 1; !stop.stop_requested(); ++n) {
        const double sent = TmSync::GetClock() + ahead;
        std::this_thread::sleep_for(std::chrono::duration<double>(late(random)));
        receiver.OnMessage(n % 5 == 4 ? sent + 0.08 : sent);
        std::this_thread::sleep_for(std::chrono::seconds(1));
    }
}

class CTimeWnd : public CVantWnd
{
public:
    CTimeWnd()
    {
        name = L"Time";
        TmSync::AddTmFn(&m_receiver);
    }

    void SetupCtrls() override
    {
        ctrlH = 260;
        m_chart = static_cast<CEChart*>(NewCtrl(600, CECtrl::typeChart));
        CEStrip* const strip = m_chart->AddStrip(L"Receiver ahead of the PC, ms");
        strip->range = CEStrip::rangeFixed;
        strip->rangeMin = 200;
        strip->rangeMax = 400;
        m_chart->AddTrace(L"As it reads", strip)->colour = Vant::med;
        m_chart->AddTrace(L"By the fit", strip)->width = 2.5;
        m_chart->SetSpan(10);
        SetCtrlY(curY + ctrlH + 8);
        ctrlH = 20;
        InsCtrl(600, CECtrl::typeText, m_line);
    }

    /** What the receiver reads now, and what it should read by the fit. */
    void Show(double now)
    {
        const double pc = now + TmSync::base80; // seconds since 1970
        double reading = 0, slope = 0, offset = 0;
        if (TmSync::GetPc() < 1 || !m_receiver.PollTm(reading) || !m_receiver.GetMC(slope, offset))
            return; // no line is good for anything before its third reading
        m_chart->Add(0, now, 1000 * (reading - pc));
        m_chart->Add(1, now, 1000 * (slope * now + offset - pc));
        const double off = m_receiver.GetTm(pc + ahead) - now; // of a time stamp that it gives now
        m_line.Format(L"rate %.6f, ahead %.1f ms, a time stamp is converted %.1f ms off", slope,
                      1000 * (slope * now + offset - pc), 1000 * off);
        UpdateLabels();
        if (now >= m_printed + 1) {
            std::printf("%ls\n", m_line.GetString());
            m_printed = now;
        }
    }

private:
    CReceiver m_receiver;
    CEChart* m_chart = nullptr;
    CString m_line;
    double m_printed = 0;                                // when the line was
    std::jthread m_port{ReadPort, std::ref(m_receiver)}; // ends before the receiver goes
};

class CTimeApp : public CBaseApp
{
    BOOL InitInstance() override
    {
        Vant::hIcon = ::LoadIconW(::GetModuleHandleW(L"VantCore.dll"), MAKEINTRESOURCEW(100));
        Vant::Init();
        TmSync::interval = 100; // milliseconds; the usual second would be a long time to watch
        if (!TmSync::Init())
            return FALSE;
        m_wnd = std::make_unique<CTimeWnd>();
        m_pMainWnd = m_wnd.get();
        ::SetTimer(nullptr, 0, 20,
                   [](HWND, UINT, UINT_PTR, DWORD) { static_cast<CTimeApp*>(AfxGetApp())->Tick(); });
        const CRect place(100, 100, 736, 440);
        return m_isGood = m_wnd->CreateWnd(L"Time source", WS_OVERLAPPEDWINDOW | WS_VISIBLE, place);
    }

    void Tick()
    {
        m_wnd->Show(TmSync::GetTm());
        if (__argc > 2 && TmSync::GetPc() > 10) { // timesource --picture FILE
            m_isGood = Vant::PrintScn(__wargv[2]);
            std::printf(m_isGood ? "%ls\n" : "%ls could not be written\n", __wargv[2]);
            m_wnd->PostMessage(WM_CLOSE);
        }
    }

    int ExitInstance() override
    {
        TmSync::Exit(); // before the sources go
        m_wnd.reset();
        Vant::Exit();
        CBaseApp::ExitInstance();
        return m_isGood ? 0 : 1;
    }

    std::unique_ptr<CTimeWnd> m_wnd;
    BOOL m_isGood = FALSE;
} theApp;
