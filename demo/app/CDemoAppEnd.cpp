// What the application does when it ends.
#include "demo/app/CDemoApp.h"

#include "demo/detail/Text.h"
#include "demo/run/Terminal.h"
#include "platform/Vant.h"
#include "time/TmSync.h"
#include "windows/CCslAlm.h"

#include <algorithm>

namespace demo
{
namespace
{

constexpr unsigned long appendAlarm = 6010; // of a log file that takes no line

std::size_t CountOn(const Playback& playback)
{
    return static_cast<std::size_t>(
        std::ranges::count_if(alarmIds, [&](AlarmId id) { return playback.Alarms().IsOn(id); }));
}

} // namespace

int CDemoApp::ExitInstance()
{
    if (m_session) {
        Keep();
        Summarise();
    }
    ShowComplaints();
    m_bridge.reset();
    if (m_started) {
        TmSync::Exit();
        Vant::Exit();
    }
    CBaseApp::ExitInstance();
    return m_exitCode;
}

/** Writes what outlasts the run. Whatever cannot be written is told in one line. */
void CDemoApp::Keep()
{
    const LineCounts& counts = m_playback->Counts();
    const std::size_t alarms = m_session->alarms;
    m_log.Line(L"end: " + Counted(counts.read, L"sentences read, ") +
               Counted(counts.rejected, L"rejected, ") +
               Counted(alarms, alarms == 1 ? L"alarm, " : L"alarms, ") +
               Counted(m_session->frames, L"frames drawn"));
    if (!m_keeps) {
        m_exitCode = exitFailed; // told at the start
    } else {
        m_settingsSaved = m_settings.Save(Vant::setFile);
        const struct {
            const wchar_t* name;
            bool isKept;
        } parts[] = {
            {L"the settings", m_settingsSaved},
            {L"every picture", m_session->picturesSaved},
            {L"the run log", m_log.IsGood()},
            {L"every line of the other logs", Vant::alarm.FindEntry(appendAlarm) == nullptr},
        };
        std::wstring lost;
        for (const auto& part : parts)
            if (!part.isKept)
                lost += (lost.empty() ? L"" : L", ") + std::wstring(part.name);
        if (!lost.empty()) {
            Complain(L"cannot write to " + Quoted(m_outDir) + L", whose disk may be full; not kept: " + lost);
            m_exitCode = exitFailed;
        }
    }
    if (m_session->failed) {
        Complain(L"the script or the tour failed");
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
        Say((picture == videoName || picture == filmName ? L"video:     " : L"picture:   ") + m_outDir +
            picture);
    if (m_settingsSaved)
        Say(L"settings:  " + std::wstring(static_cast<LPCWSTR>(Vant::setFile)));
    if (m_keeps) {
        Say(L"run log:   " + m_outDir + L"demo.log");
        Say(L"other logs: " + m_outDir + L"Logs");
    }
}

} // namespace demo
