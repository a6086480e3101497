// A source of time of one's own: a receiver that sends the time once a second, a little late and not always
// right. The program prints what the library makes of it.
//
//   timesource [SECONDS]     8 at first
#include <VantCore.h>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <random>
#include <thread>

namespace
{

constexpr double ahead = 0.3; // seconds that the receiver's clock is ahead of the PC's

/** The receiver as TmSync sees it. Its messages are read elsewhere, since PollTm() must not wait for a port;
 * a poll tells the time of the last one, and adds what has passed since it came. */
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
        m_isHeard = true;
    }

    int PollTm(double& value) override
    {
        constexpr double stale = 5.0; // seconds without a message
        const double now = TmSync::GetPc();
        const std::lock_guard lock(m_guard);
        if (!m_isHeard || now - m_came > stale)
            return 0;
        value = m_time + (now - m_came);
        return 1;
    }

private:
    std::mutex m_guard;
    double m_time = 0.0;
    double m_came = 0.0;
    bool m_isHeard = false;
};

/** Stands for the port: a message per second, up to 20 ms late, and every seventh one garbled. */
void ReadPort(CReceiver& receiver, const std::atomic<bool>& stop)
{
    std::mt19937 random(1);
    std::uniform_real_distribution<> late(0.0, 0.02);
    for (int n = 1; !stop; ++n) {
        const double sent = TmSync::GetClock() + ahead;
        std::this_thread::sleep_for(std::chrono::duration<double>(late(random)));
        receiver.OnMessage(n % 7 == 0 ? sent + 100.0 : sent);
        std::this_thread::sleep_for(std::chrono::seconds(1));
    }
}

} // namespace

class CTimeApp : public CBaseApp
{
public:
    BOOL InitInstance() override
    {
        Vant::Init();
        m_good = Run(__argc > 1 ? std::atoi(__argv[1]) : 8);
        Vant::Exit();
        return FALSE; // there is no window to wait for
    }

    int ExitInstance() override
    {
        CBaseApp::ExitInstance();
        return m_good ? 0 : 1;
    }

private:
    static bool Run(int seconds)
    {
        TmSync::interval = 100; // ms; the usual second would be a long time to watch
        if (!TmSync::Init())
            return false;
        CReceiver receiver;
        CTmFnSteady steady(receiver); // reads as the receiver does on the average
        TmSync::AddTmFn(&receiver);
        TmSync::AddTmFn(&steady);

        std::atomic<bool> stop = false;
        std::thread port([&] { ReadPort(receiver, stop); });
        for (int i = 0; i < seconds; ++i) {
            std::this_thread::sleep_for(std::chrono::seconds(1));
            PrintStatus();
        }
        stop = true;
        port.join();
        const bool hasEnded = TmSync::Exit() != 0; // before the sources go

        // A time stamp of the receiver, in the time base and as a date.
        const double stamp = TmSync::GetClock() + ahead;
        const CTm80 time = steady.GetTm(stamp);
        std::printf("\nThe receiver's %.3f is %.3f here: %ls\n", stamp, static_cast<double>(time),
                    time.Format(L"%d.%m.%Y %H:%M:%S").GetString());
        return hasEnded;
    }

    /** The status lines, as the status console keeps them for its window. */
    static void PrintStatus()
    {
        for (const unsigned long id : {4002UL, 4100UL, 4101UL, 4102UL}) {
            CECEntry entry;
            if (Vant::status.GetEntry(id, entry))
                std::printf("%ls\n", entry.text.GetString());
        }
        std::printf("\n");
    }

    bool m_good = false;
};

CTimeApp theApp;
