// form: fields that check what is typed, in the units of their user, and that remember it.
//
// - A range makes a field refuse what lies outside: it turns blue while that stands in it, and on leaving the
//   field an alarm tells why and the old value comes back. The variable never has a wrong value.
// - Variables are metric. A kind of unit lets a field show and take them in the user's unit system.
// - A name in `aux1` keeps a control's value: one call saves, and one loads, those of all windows.
//
// With --picture FILE the form is its own user: it types a good value and two bad ones.
#include <VantCore.h>

#include <cstdio>
#include <memory>

class CFormWnd : public CVantWnd
{
public:
    CFormWnd()
    {
        name = L"Form";
        s_infoRx.AddTail(this); // hears what is broadcast, here of alarms
    }
    ~CFormWnd() override { s_infoRx.RemoveAt(s_infoRx.Find(this)); }

    void SetupCtrls() override
    {
        CCtrlCat& limits = *GetCat(L"Limits", kindStacked, 1, 0);
        for (Limit& limit : m_limits) {
            limits.InsText(130, limit.what);
            limit.edit = limits.InsCtrl(80, CECtrl::typeEdit, limit.value);
            limit.edit->units = limit.unitKind;
            limit.edit->decimals = 1;
            limit.edit->SetRange(limit.least, limit.most);
            limit.edit->aux1 = limit.what;
            limit.edit->tip.Format(L"From %g to %g in metric units", limit.least, limit.most);
            limits.ShiftX(6);
            limits.InsCtrl(60, CECtrl::typeText, limit.unit);
            limits.NewLn();
        }
        CCtrlCat& display = *GetCat(L"Display", kindStacked, 1, 0);
        display.ctrlH = 24;
        auto& systems = *static_cast<CEBtnList*>(display.InsCtrl(216, CECtrl::typeBtnList, EUnits::system));
        systems.AddBtns(L"Metric|US customary");
        systems.aux1 = L"Units";
        systems.SetCallback(this, static_cast<CEVal::CbNone>(&CFormWnd::OnUnits));
        display.NewLn();
        CCtrlCat& last = *GetCat(L"Last alarm", kindStacked, 1, 0);
        last.InsCtrl(490, CECtrl::typeText, m_alarm);
        last.NewLn();
    }

    void OnUnits()
    {
        for (Limit& limit : m_limits)
            limit.unit = EUnits::Get(limit.unitKind);
        UpdCtrls();
    }

    void OnInfoMsg(int msg, void* data) override
    {
        if (msg != Vant::alarmInfo)
            return;
        m_alarm = static_cast<const CECEntry*>(data)->text;
        UpdateLabels();
    }

    void Print(const char* when) const
    {
        std::printf("%s:", when);
        for (const Limit& limit : m_limits)
            std::printf(" %ls;", limit.edit->GetText(1).GetString());
        std::printf("\n");
    }

    /** Does what a user would. The last value is left where it stands. */
    void Type()
    {
        struct {
            int field;
            const wchar_t* typed;
        } const entries[] = {{0, L"6.5"}, {1, L"80"}, {2, L"99"}};
        for (const auto& [field, typed] : entries) {
            m_limits[field].edit->SetFocus();
            m_limits[field].edit->SetWindowText(typed);
            std::printf("%ls is typed, after the alarm \"%ls\"\n", typed, m_alarm.GetString());
        }
    }

private:
    struct Limit {
        const wchar_t* what;
        double value; // metric, whatever is shown
        int unitKind; // of EUnits
        double least, most;
        CString unit = {};
        CECtrl* edit = nullptr;
    };
    Limit m_limits[3] = {{L"Shallow water", 4, 0, 0, 50},
                         {L"Fastest survey", 2.5, 2, 0, 10},
                         {L"Warm housing", 45, 1, -5, 60}};
    CString m_alarm = L"none";
};

class CFormApp : public CBaseApp
{
    BOOL InitInstance() override
    {
        Vant::setFile = L"form.xml"; // in the current directory
        Vant::hIcon = ::LoadIconW(::GetModuleHandleW(L"VantCore.dll"), MAKEINTRESOURCEW(100));
        Vant::Init();
        m_wnd = std::make_unique<CFormWnd>();
        m_pMainWnd = m_wnd.get();
        if (!m_wnd->CreateWnd(L"Form", WS_OVERLAPPEDWINDOW, CRect(100, 100, 630, 400)))
            return FALSE;
        CESet set(0); // for loading
        if (set.Load(Vant::setFile))
            CVantWnd::LoadSet(set);
        m_wnd->OnUnits();
        m_wnd->ShowWindow(SW_SHOW);
        m_wnd->Print("at the start");
        m_isGood = TRUE;
        if (__argc < 3) // form --picture FILE
            return TRUE;
        m_wnd->Type();
        m_wnd->RedrawWnd();
        m_isGood = Vant::PrintScn(__wargv[2]);
        std::printf(m_isGood ? "%ls\n" : "%ls could not be written\n", __wargv[2]);
        m_wnd->Print("at the end");
        return FALSE;
    }

    int ExitInstance() override
    {
        CESet set(1); // for saving
        CVantWnd::SaveSet(set);
        m_isGood = set.Save(Vant::setFile) && m_isGood;
        m_wnd.reset();
        Vant::Exit();
        CBaseApp::ExitInstance();
        return m_isGood ? 0 : 1;
    }

    std::unique_ptr<CFormWnd> m_wnd;
    BOOL m_isGood = FALSE;
} theApp;
