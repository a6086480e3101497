#include "demo/setup/CSetupWnd.h"

#include "controls/CERadius.h"
#include "controls/CEText.h"
#include "demo/detail/Text.h"
#include "demo/session/Commands.h"

#include <algorithm>

namespace demo
{

IMPLEMENT_DYNAMIC(CSetupWnd, CVantWnd)

BEGIN_MESSAGE_MAP(CSetupWnd, CVantWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

CSetupWnd::CSetupWnd(Session& session)
    : m_session(session)
{
    CVantWnd::name = L"Setup";
    hdrH = 4; // room above the first section
}

void CSetupWnd::SetupCtrls()
{
    AddAlarmLimits();
    AddDisplay();
    AddPlayback();
    AddSensor();
    AddMounting();
    UpdateLabels();
}

int CSetupWnd::OnCreate(LPCREATESTRUCT create)
{
    if (CVantWnd::OnCreate(create) == -1)
        return -1;
    s_pollRx.AddTail(this);
    s_infoRx.AddTail(this);
    return 0;
}

void CSetupWnd::OnDestroy()
{
    s_pollRx.RemoveAt(s_pollRx.Find(this));
    s_infoRx.RemoveAt(s_infoRx.Find(this));
    CVantWnd::OnDestroy();
}

void CSetupWnd::OnPoll(double)
{
    const double duration = m_session.tape.Duration();
    const CString text =
        (DurationText(std::min(m_session.playback.Time(), duration)) + L" of " + DurationText(duration))
            .c_str();
    if (text == m_progressText)
        return;
    m_progressText = text;
    m_progress->Update(1);
}

void CSetupWnd::OnInfoMsg(int msg, void*)
{
    if (msg == sessionInfo)
        UpdCtrls();
}

void CSetupWnd::UpdCtrls()
{
    UpdateLabels();
    CVantWnd::UpdCtrls();
}

void CSetupWnd::UpdateLabels()
{
    const Mounting& mounting = m_session.settings.mounting;
    m_limitUnit->SetText(UnitText(lengthUnit).c_str());
    m_mountingText = (L"depth \u00D7 " + FixedText(mounting.DepthPart(), 3)).c_str();
    m_dial->brg = mounting.bearing;
    m_dial->slope = mounting.slope;
}

void CSetupWnd::OnChange()
{
    m_session.settings.sensor = PlainName(m_session.settings.sensor);
    m_session.Apply();
    InfoMsg(sessionInfo, &m_session);
}

void CSetupWnd::OnDial()
{
    m_session.settings.mounting = {m_dial->brg, m_dial->slope};
    OnChange();
}

void CSetupWnd::OnSlower()
{
    Carry(Command::Slower, m_session);
}

void CSetupWnd::OnFaster()
{
    Carry(Command::Faster, m_session);
}

void CSetupWnd::OnRestart()
{
    Carry(Command::Restart, m_session);
}

void CSetupWnd::OnPicture()
{
    Carry(Command::Picture, m_session);
}

} // namespace demo
