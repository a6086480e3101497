// Works a set of platform windows for a long time as a busy application and an impatient user would, and
// watches what the process holds. Ends with exit code 1 when any of it grows.
//
//   VantSoak [SECONDS [FILE.csv]]
#include "VantCore.h"
#include "support/GdiCount.h"
#include "support/MessagePump.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace
{

using Clock = std::chrono::steady_clock;

constexpr double warmUp = 60.0;      // seconds until everything has been used once and caches are full
constexpr double sampleEvery = 10.0; // seconds
constexpr double pollEvery = 0.02;   // seconds
constexpr int gdiSlack = 8;          // objects that one moment holds and another does not
constexpr int handleSlack = 8;
constexpr double memorySlack = 1.5; // MB

struct Sample {
    double seconds;
    int gdi;
    int handles;
    double megabytes;
    int controls;
    int windows;
};

/** What is allocated on the process's heap, which is also the C++ library's. */
double AllocatedMegabytes()
{
    const HANDLE heap = ::GetProcessHeap();
    PROCESS_HEAP_ENTRY entry{};
    double bytes = 0;
    ::HeapLock(heap);
    while (::HeapWalk(heap, &entry)) {
        if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY)
            bytes += entry.cbData;
    }
    ::HeapUnlock(heap);
    return bytes / (1024.0 * 1024.0);
}

/** A window of fields, texts, boxes, a button, a dial and an address, bound to variables of its own. */
class CPanel : public CVantWnd
{
public:
    explicit CPanel(const CString& title)
    {
        name = title;
        s_pollRx.AddTail(this);
        s_trigRx.AddTail(this);
        s_infoRx.AddTail(this);
    }
    ~CPanel() override
    {
        s_pollRx.RemoveAt(s_pollRx.Find(this));
        s_trigRx.RemoveAt(s_trigRx.Find(this));
        s_infoRx.RemoveAt(s_infoRx.Find(this));
    }

    void SetupCtrls() override
    {
        CCtrlCat* const values = GetCat(L"Values", kindStacked, 1, 0);
        for (double& value : m_values) {
            CECtrl* const edit = values->InsCtrl(90, CECtrl::typeEdit, value);
            edit->decimals = 2;
            edit->tip = L"A value to type over";
            m_edits.push_back(edit);
            values->InsCtrl(90, CECtrl::typeText, value);
            values->NewLn();
        }
        CCtrlCat* const flags = GetCat(L"Flags", kindStacked, 1, 0);
        for (int& flag : m_flags) {
            CECtrl* const check = flags->InsCtrl(120, CECtrl::typeCheck, flag);
            check->text = L"Switch";
            m_checks.push_back(check);
            flags->NewLn();
        }
        flags->InsBtn(90, L"Press", 900, this, static_cast<CEVal::CbNone>(&CPanel::OnPress));
        flags->NewLn();
        flags->InsCtrl(100, CECtrl::typeRadius, m_bearing);
        flags->InsCtrl(160, new CEAddr, 950)->Init(m_address);
    }

    void OnPoll(double t) override
    {
        for (double& value : m_values)
            value = t;
        if (++m_polls % 10 == 0)
            UpdCtrls();
    }
    void OnPress() {} // for the button to call

    const std::vector<CECtrl*>& Edits() const { return m_edits; }
    const std::vector<CECtrl*>& Checks() const { return m_checks; }

private:
    std::array<double, 12> m_values{};
    std::array<int, 10> m_flags{};
    double m_bearing = 0;
    unsigned long m_address = 0;
    int m_polls = 0;
    std::vector<CECtrl*> m_edits;
    std::vector<CECtrl*> m_checks;
};

void Open(CPanel& panel, int left)
{
    panel.CreateEx(0, Vant::wndClass, panel.name, WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN | WS_VSCROLL, left,
                   20, 420, 560, nullptr, nullptr);
    panel.ShowWindow(SW_SHOWNOACTIVATE);
}

CBaseApp theApp;

class CSoak
{
public:
    int Run(double seconds, FILE* csv)
    {
        Start();
        const Clock::time_point begin = Clock::now();
        double nextPoll = 0;
        double nextSample = 0;
        std::fputs("seconds,gdi,handles,MB,controls,windows\n", csv);
        for (double now = 0; now < seconds;
             now = std::chrono::duration<double>(Clock::now() - begin).count()) {
            vant::test::PumpPending();
            if (now < nextPoll) {
                ::Sleep(1);
                continue;
            }
            nextPoll = now + pollEvery;
            Step(now);
            if (now >= nextSample) {
                nextSample = now + sampleEvery;
                Take(now, csv);
            }
        }
        Stop();
        return Judge();
    }

private:
    void Start()
    {
        m_main = std::make_unique<CPanel>(L"Soak");
        Open(*m_main, 20);
        int top = 600;
        for (CConsole* console : Consoles()) {
            console->CreateEx(0, Vant::wndClass, console->name, WS_OVERLAPPEDWINDOW, 20, top, 500, 180,
                              nullptr, nullptr);
            console->ShowWindow(SW_SHOWNOACTIVATE);
            top += 40;
        }
    }

    void Stop()
    {
        m_other.reset();
        m_main.reset();
        for (CConsole* console : Consoles())
            console->DestroyWindow();
    }

    static std::array<CConsole*, 4> Consoles()
    {
        return {&Vant::csl, &Vant::comms, &Vant::status, &Vant::alarm};
    }

    /** One poll, and the user's next move. */
    void Step(double now)
    {
        ++m_step;
        CVantWnd::Poll(now);
        CVantWnd::Trigger(now, pollEvery);
        CECtrl::UpdateAuCtrls(now);
        Vant::Console(m_step % 10000, L"step %d", m_step);
        Vant::Comms(0, L"$SOAK,%d*00", m_step);
        Vant::Status(static_cast<unsigned long>(m_step % 50), m_step % 3000, L"line of step %d", m_step);
        if (m_step % 7 == 0)
            Vant::Alarm(static_cast<unsigned long>(100 + m_step % 20), m_step % 4, L"alarm of step %d",
                        m_step);
        Type();
        if (m_step % 5 == 0)
            Click(*Pick(m_main->Checks()), CPoint(8, 8));
        if (m_step % 11 == 0)
            Press(*Pick(m_main->Edits()), VK_TAB);
        if (m_step % 50 == 0)
            SwapOther();
        if (m_step % 250 == 0)
            Vant::MsgBox(m_step % 3, L"Step %d\nof a long run", m_step);
        if (m_step % 500 == 0)
            ChangeDpi();
        if (m_step % 300 == 0)
            MoveMouseOver(*Pick(m_main->Edits()));
    }

    void Type()
    {
        CECtrl& edit = *Pick(m_main->Edits());
        edit.SetFocus();
        static constexpr std::wstring_view texts[] = {L"1", L"7.5", L"-", L"e", L"12.25", L"x"};
        for (const wchar_t c : texts[m_random() % std::size(texts)])
            edit.PostMessage(WM_CHAR, c);
    }

    void SwapOther()
    {
        if (m_other) {
            m_other.reset();
            return;
        }
        m_other = std::make_unique<CPanel>(L"Other");
        Open(*m_other, 460);
        m_other->SetFocus();
    }

    void ChangeDpi()
    {
        m_dpi = m_dpi == 96 ? 144 : 96;
        CRect place;
        m_main->GetWindowRect(&place);
        m_main->SendMessage(WM_DPICHANGED, MAKEWPARAM(m_dpi, m_dpi), reinterpret_cast<LPARAM>(&place));
    }

    static void Click(CECtrl& ctrl, CPoint point)
    {
        const LPARAM at = MAKELPARAM(point.x, point.y);
        ctrl.PostMessage(WM_MOUSEMOVE, 0, at);
        ctrl.PostMessage(WM_LBUTTONDOWN, MK_LBUTTON, at);
        ctrl.PostMessage(WM_LBUTTONUP, 0, at);
    }

    static void Press(CECtrl& ctrl, UINT key)
    {
        ctrl.PostMessage(WM_KEYDOWN, key, 1);
        ctrl.PostMessage(WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
    }

    static void MoveMouseOver(CECtrl& ctrl)
    {
        CRect place;
        ctrl.GetWindowRect(&place);
        ::SetCursorPos(place.CenterPoint().x, place.CenterPoint().y);
    }

    CECtrl* Pick(const std::vector<CECtrl*>& list) { return list[m_random() % list.size()]; }

    void Take(double now, FILE* csv)
    {
        const Sample sample{now,
                            vant::test::GdiObjectCount(),
                            vant::test::KernelHandleCount(),
                            AllocatedMegabytes(),
                            CECtrl::s_eCtrls.GetCount(),
                            CVantWnd::s_wnds.GetCount()};
        std::fprintf(csv, "%.0f,%d,%d,%.3f,%d,%d\n", sample.seconds, sample.gdi, sample.handles,
                     sample.megabytes, sample.controls, sample.windows);
        std::fflush(csv);
        m_samples.push_back(sample);
    }

    /** Compares the best moment of the first half after the warm-up with the best of the second: a leak lifts
     *  the floor, while peaks come and go. */
    int Judge() const
    {
        std::vector<Sample> steady;
        std::ranges::copy_if(m_samples, std::back_inserter(steady),
                             [](const Sample& s) { return s.seconds >= warmUp; });
        if (steady.size() < 4) {
            std::puts("soak: too short to judge; let it run for two minutes at least");
            return 0;
        }
        const auto middle = steady.begin() + static_cast<std::ptrdiff_t>(steady.size() / 2);
        bool flat = true;
        const auto check = [&](const char* what, auto member, double slack) {
            const auto less = [member](const Sample& a, const Sample& b) { return a.*member < b.*member; };
            const double first = (*std::min_element(steady.begin(), middle, less)).*member;
            const double second = (*std::min_element(middle, steady.end(), less)).*member;
            const bool ok = second <= first + slack;
            std::printf("soak: %s %.1f at first, %.1f later: %s\n", what, first, second,
                        ok ? "flat" : "GROWS");
            flat = flat && ok;
        };
        check("GDI objects", &Sample::gdi, gdiSlack);
        check("kernel handles", &Sample::handles, handleSlack);
        check("heap (MB)", &Sample::megabytes, memorySlack);
        check("controls", &Sample::controls, 0);
        check("windows", &Sample::windows, 0);
        std::printf("soak: %d steps\n", m_step);
        return flat ? 0 : 1;
    }

    std::unique_ptr<CPanel> m_main;
    std::unique_ptr<CPanel> m_other;
    std::vector<Sample> m_samples;
    std::mt19937 m_random; // the same moves every time
    int m_step = 0;
    int m_dpi = 96;
};

} // namespace

int main(int argc, char* argv[])
{
    const double seconds = argc > 1 ? std::atof(argv[1]) : 600.0;
    FILE* const csv = argc > 2 ? std::fopen(argv[2], "w") : stdout;
    if (!csv) {
        std::fprintf(stderr, "soak: cannot write %s\n", argv[2]);
        return 2;
    }
    Vant::appTitle = L"Soak";
    Vant::dataDir = L"soak\\";
    Vant::Init();
    const int result = CSoak().Run(seconds, csv);
    Vant::Exit();
    return result;
}
