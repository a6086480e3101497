// What the application does when it ends.
#include "demo/CDemoApp.h"

#include "demo/Terminal.h"
#include "demo/detail/Text.h"
#include "platform/Vant.h"
#include "time/TmSync.h"

#include <algorithm>

namespace demo
{
namespace
{

std::size_t CountOn(const Playback& playback)
{
    return static_cast<std::size_t>(
        std::ranges::count_if(alarmIds, [&](AlarmId id) { return playback.Alarms().IsOn(id); }));
}

} // namespace

int CDemoApp::ExitInstance()
{
    if (m_session) {
        SaveSettings();
        Summarise();
    }
    m_bridge.reset();
    if (m_started) {
        TmSync::Exit();
        Vant::Exit();
    }
    CBaseApp::ExitInstance();
    return m_exitCode;
}

void CDemoApp::SaveSettings()
{
    if (!m_settings.Save(Vant::setFile)) {
        Complain(L"cannot save the settings to " + Quoted(std::wstring(static_cast<LPCWSTR>(Vant::setFile))));
        m_exitCode = exitFailed;
    }
    if (!m_session->picturesSaved) {
        Complain(L"cannot save every picture to " + Quoted(m_outDir));
        m_exitCode = exitFailed;
    }
    const LineCounts& counts = m_playback->Counts();
    const std::size_t alarms = m_session->alarms;
    m_log.Line(L"end: " + Counted(counts.read, L"sentences read, ") +
               Counted(counts.rejected, L"rejected, ") +
               Counted(alarms, alarms == 1 ? L"alarm, " : L"alarms, ") +
               Counted(m_session->frames, L"frames drawn"));
    if (!m_log.IsGood()) {
        Complain(L"cannot write to " + Quoted(m_outDir + L"demo.log"));
        m_exitCode = exitFailed;
    }
    if (m_session->failed) {
        Complain(L"the script failed");
        m_exitCode = exitScript;
    }
}

void CDemoApp::Summarise() const
{
    const LineCounts& counts = m_playback->Counts();
    Say(L"log:       " + m_logPath + L", " + DurationText(std::min(m_playback->Time(), m_tape->Duration())) +
        L" of " + DurationText(m_tape->Duration()) + L" played");
    Say(L"sentences: " + Counted(counts.read, L"read, ") + Counted(counts.accepted, L"used, ") +
        Counted(counts.ignored, L"of other types, ") + Counted(counts.rejected, L"rejected"));
    Say(L"alarms:    " + Counted(m_session->alarms, L"raised, ") +
        Counted(CountOn(*m_playback), L"still on"));
    Say(L"frames:    " + Counted(m_session->frames, L"drawn"));
    for (const std::wstring& picture : m_session->pictures)
        Say((picture == videoName ? L"video:     " : L"picture:   ") + m_outDir + picture);
    Say(L"settings:  " + std::wstring(static_cast<LPCWSTR>(Vant::setFile)));
    Say(L"run log:   " + m_outDir + L"demo.log");
    Say(L"other logs: " + m_outDir + L"Logs");
}

} // namespace demo
