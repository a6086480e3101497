// The controls by what they are for: a small window for each purpose, of which the guide shows the pictures.
#include <VantCore.h>

#include <array>
#include <cmath>
#include <memory>
#include <vector>

namespace
{

constexpr int length = 0; // unit kinds
constexpr int angle = 6;
constexpr int narrow = 100; // widths of controls, units; in numbers where the pages show the code
constexpr int wide = 202;

/** A window without a frame, in the middle of which stand the controls of one purpose. */
class CPurposeWnd : public CVantWnd
{
public:
    explicit CPurposeWnd(const wchar_t* purpose) { name = purpose; }
};

class CReadWnd : public CPurposeWnd
{
public:
    using CPurposeWnd::CPurposeWnd;
    void SetupCtrls() override
    {
        auto* const depth = static_cast<CEText*>(InsCtrl(narrow, CECtrl::typeText, m_depth));
        depth->framed = 1;
        depth->units = length;
        depth->decimals = 1;
        auto* const fix = static_cast<CELed*>(InsCtrl(narrow, CECtrl::typeLed, m_fix)); // 1: green
        fix->text = L"RTK fixed";
        NewLn();
        auto* const sending = new CEProcess;
        InsCtrl(wide, sending, 0);
        sending->Init(m_sent);
        sending->text = L"Sending";
    }

private:
    double m_depth = 12.4;
    double m_sent = 0.62;
    int m_fix = 1;
};

class CTypeWnd : public CPurposeWnd
{
public:
    using CPurposeWnd::CPurposeWnd;
    void SetupCtrls() override
    {
        // [type]
        CECtrl* const limit = InsCtrl(100, CECtrl::typeEdit, m_limit);
        limit->SetRange(0, 100);
        limit->units = 0;
        InsCtrl(100, CECtrl::typeEdit, m_sensor); // a CString
        NewLn();
        InsCtrl(202, new CEAddr, 0)->Init(m_address); // without a code: inserted as an object
        // [type]
    }

private:
    double m_limit = 14.5;
    CString m_sensor = L"Port sonar";
    unsigned long m_address = 192 | 168 << 8 | 0 << 16 | 40 << 24;
};

class CChooseWnd : public CPurposeWnd
{
public:
    using CPurposeWnd::CPurposeWnd;
    void SetupCtrls() override
    {
        // [choose]
        InsCtrl(100, CECtrl::typeCheck, m_tracks)->text = L"Tracks";
        auto* const frequency = static_cast<CECb*>(InsCtrl(100, CECtrl::typeCb, m_frequency));
        for (const int kHz : {200, 400, 700})
            frequency->Add(KiloHertz(kHz), kHz);
        NewLn();
        const wchar_t* const ups[] = {L"North up", L"Heading up"};
        for (int i = 0; i < 2; ++i) {
            CECtrl* const up = InsCtrl(i == 0 ? 90 : 110, CECtrl::typeRadio, m_up);
            up->text = ups[i];
            up->aux0 = i; // the value that it stands for
        }
        NewLn();
        static_cast<CEBtnList*>(InsCtrl(202, CECtrl::typeBtnList, m_mode))->AddBtns(L"Off|Survey|Search");
        // [choose]
    }

private:
    static CString KiloHertz(int kHz)
    {
        CString text;
        text.Format(L"%d kHz", kHz);
        return text;
    }
    int m_tracks = 1;
    int m_frequency = 400;
    int m_up = 0;
    int m_mode = 1;
};

class CSetWnd : public CPurposeWnd
{
public:
    using CPurposeWnd::CPurposeWnd;
    void SetupCtrls() override
    {
        constexpr int dial = 60;
        // [set]
        ctrlH = 34;
        auto* const gain = static_cast<CESlider*>(InsCtrl(202, CECtrl::typeSlider, m_gain));
        gain->SetRange(0, 60);
        gain->ticks = CESlider::ticksNumbers;
        gain->readout = 50;
        // [set]
        ShiftY(ctrlH + gap, leftM);
        ctrlH = dial;
        InsCtrl(dial, CECtrl::typeRadius, m_bearing);
        ctrlH = CCtrlCat().ctrlH;
        ShiftX(gap);
        CECtrl* const bearing = InsCtrl(narrow, CECtrl::typeText, m_bearing);
        bearing->units = angle;
        bearing->scale = ML::r2d;
        bearing->decimals = 0;
        NewLn();
    }

private:
    double m_gain = 24;
    double m_bearing = std::atan(1.0);
};

class CDoWnd : public CPurposeWnd
{
public:
    using CPurposeWnd::CPurposeWnd;
    void SetupCtrls() override
    {
        // [do]
        InsBtn(100, L"Mark", 1, this, static_cast<CEVal::CbNone>(&CDoWnd::OnMark));
        InsCtrl(100, CECtrl::typeBtn, m_recording)->text = L"Record"; // latches
        NewLn();
        InsCtrl(202, CECtrl::typeAttempt, m_connection)->text = L"Connect";
        // [do]
        NewLn();
        auto* const link = static_cast<CELabel*>(InsCtrl(wide, CECtrl::typeLabel, L"Clear the track"));
        link->SetCallback(this, static_cast<CEVal::CbNone>(&CDoWnd::OnMark));
    }
    void OnMark() { ++m_marks; }

private:
    int m_recording = 1;
    int m_connection = 0;
    int m_marks = 0;
};

class CLookWnd : public CPurposeWnd
{
public:
    using CPurposeWnd::CPurposeWnd;
    void SetupCtrls() override
    {
        constexpr int height = 88; // the headings, three rows and the frame
        CEGrid* const grid = InsGrid(wide, L"", 1, height);
        grid->AddCol(L"Line", 60)->InitRows(&m_log[0].line, sizeof m_log[0]);
        CEGridCol* const depth = grid->AddCol(L"Depth", 120);
        depth->InitRows(&m_log[0].depth, sizeof m_log[0]);
        depth->units = length;
        depth->decimals = 1;
        grid->SetRows(static_cast<int>(m_log.size()));
        ShiftY(height + gap, leftM);
        ctrlH = height;
        auto* const list = static_cast<CEList*>(InsCtrl(wide, CECtrl::typeList, m_line));
        for (int i = 1; i <= 9; ++i) {
            CString text;
            text.Format(L"Line %02d   %.2f km", i, 3.1 + i % 4 * 0.21);
            list->Add(text, i);
        }
    }

private:
    struct Sounding {
        int line;
        double depth;
    };
    std::array<Sounding, 5> m_log = {{{1, 12.4}, {2, 13.1}, {3, 12.8}, {4, 15.9}, {5, 15.2}}};
    int m_line = 2;
};

class CDrawWnd : public CPurposeWnd
{
public:
    using CPurposeWnd::CPurposeWnd;
    void SetupCtrls() override
    {
        ctrlH = 100;
        auto* const chart = static_cast<CEChart*>(NewCtrl(wide, CECtrl::typeChart));
        CEStrip* const strip = chart->AddStrip(CString(), length);
        strip->decimals = 1;
        strip->reversed = 1;
        const int sonar = chart->AddTrace(L"Depth", strip)->Index();
        for (double t = 0; t < 60; t += 0.5)
            chart->Add(sonar, t, 14 + 3 * std::sin(t / 9) + std::sin(t / 2.2));
        ShiftY(ctrlH + gap, leftM);
        ctrlH = 64;
        auto* const attitude = static_cast<CEWnd*>(InsCtrl(wide, CECtrl::typeWnd, m_roll));
        attitude->SetTarget(this); // DrawEWnd() draws it
    }

    void DrawEWnd(CEWnd* ctrl, CDC* dc, CRect& r) override
    {
        dc->FillRect(r, &Vant::backB);
        const CPoint middle = r.CenterPoint();
        const double slope = std::tan(ctrl->GetVal()); // of the horizon, from the roll in radians
        const int half = r.Width() / 2;
        const int rise = static_cast<int>(half * slope);
        dc->SelectObject(&Vant::cyanL);
        dc->MoveTo(middle.x - half, middle.y + rise);
        dc->LineTo(middle.x + half, middle.y - rise);
        dc->SelectObject(&Vant::lightL);
        dc->MoveTo(middle.x - 20, middle.y);
        dc->LineTo(middle.x + 20, middle.y);
        ctrl->style.Set(dc);
        dc->DrawText(L"Roll 12\u00b0", -1, r, DT_CENTER | DT_BOTTOM | DT_SINGLELINE);
    }

private:
    double m_roll = 12 * ML::d2r;
};

class CControlsApp : public CBaseApp
{
    BOOL InitInstance() override
    {
        Vant::Init();
        constexpr int width = 224;
        int x = 20;
        const auto open = [&](CVantWnd* wnd, int height) {
            m_wnds.emplace_back(wnd);
            const bool isOpen = wnd->CreateWnd(wnd->name, WS_POPUP, CRect(x, 20, x + width, 20 + height));
            wnd->ShowWindow(SW_SHOWNA);
            x += width + 4;
            return isOpen;
        };
        if (!open(new CReadWnd(L"read"), 64) || !open(new CTypeWnd(L"type"), 64) ||
            !open(new CChooseWnd(L"choose"), 88) || !open(new CSetWnd(L"set"), 116) ||
            !open(new CDoWnd(L"do"), 88) || !open(new CLookWnd(L"look"), 190) ||
            !open(new CDrawWnd(L"draw"), 190))
            return FALSE;
        m_pMainWnd = m_wnds.front().get();
        return TRUE;
    }

    int ExitInstance() override
    {
        m_wnds.clear();
        Vant::Exit();
        return CBaseApp::ExitInstance();
    }

    std::vector<std::unique_ptr<CVantWnd>> m_wnds;
};

CControlsApp theApp;

} // namespace
