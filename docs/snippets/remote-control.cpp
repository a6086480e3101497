// The code of docs/remote-control.md.
#include <VantCore.h>

class CSonarApp : public CBaseApp
{
public:
    void Wire(CCtrlCat* display);
    static void Turned(int notches);
    BOOL PreTranslateMessage(MSG* msg) override;

private:
    CRcMgr m_remote; // needs no window
    CRcKeys m_keys;
    CVantWnd m_setUp;
    CEEdit* m_range = nullptr;
    CESlider* m_gain = nullptr;
};

void CSonarApp::Wire(CCtrlCat* display)
{
    // [wire]
    CRcSet* const sonar = m_remote.GetGrp(L"Sensors")->GetSet(L"Sonar");
    sonar->Add(m_range, 10, 1); // a field: 10 metres per notch, finely 1
    sonar->Add(m_gain);         // a slider: its own steps
    sonar->AddCat(*display);    // all of a category that the keyboard can operate
    m_remote.GetGrp(L"Sensors")->GetSet(L"Set-up")->AddWnd(m_setUp); // all of a window
    // [wire]
}

void CSonarApp::Turned(int notches)
{
    // [order]
    CVantWnd::InfoMsg(CRcMgr::infoNextCtrl, &notches); // an int: how far the dial was turned
    // [order]
}

// [keys]
BOOL CSonarApp::PreTranslateMessage(MSG* msg)
{
    return m_keys.Take(msg) || CBaseApp::PreTranslateMessage(msg);
}
// [keys]
