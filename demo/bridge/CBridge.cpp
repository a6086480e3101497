#include "demo/bridge/CBridge.h"

#include "demo/detail/Text.h"
#include "demo/run/CRunLock.h"
#include "demo/screen/ScreenPlace.h"
#include "demo/script/Acts.h"
#include "demo/script/CScript.h"
#include "demo/session/AlarmTexts.h"
#include "demo/tour/CTour.h"
#include "platform/Vant.h"
#include "time/TmSync.h"

#include <algorithm>

namespace demo
{
namespace
{

constexpr UINT_PTR frameTimer = 1;
constexpr UINT frameInterval = 33;  // milliseconds
constexpr double longestStep = 0.5; // seconds: a stopped program does not make the tape jump
constexpr double scriptStep = 0.1;  // the script's user is as slow as the machine, and the tape waits for him
constexpr double triggerStep = 0.1; // seconds between the triggers that let the consoles draw

/** What the log's clock shows, seconds of the day; missing while it shows nothing. */
double LogTime(const Playback& playback)
{
    const Quantity time = Quantity::UtcTime;
    return playback.State(time) == Freshness::Live ? playback.Value(time) + playback.Age(time) : missing;
}

} // namespace

IMPLEMENT_DYNAMIC(CBridge, CVantWnd)

BEGIN_MESSAGE_MAP(CBridge, CVantWnd)
    ON_WM_CLOSE()
    ON_WM_DESTROY()
    ON_WM_ENDSESSION()
    ON_WM_TIMER()
    ON_WM_ERASEBKGND()
    ON_WM_MOVE()
    ON_WM_SIZE()
    ON_WM_GETMINMAXINFO()
    ON_WM_ACTIVATE()
    ON_MESSAGE(WM_DPICHANGED, &CBridge::OnDpiChanged)
END_MESSAGE_MAP()

CBridge::CBridge(Session& session)
    : m_session(session)
    , m_setup(session)
    , m_colours(session)
    , m_scene(session.playback, m_colours.Pal(), session.boatFile)
    , m_chart(session, m_scene)
    , m_orbit(session, m_scene)
    , m_survey(session, m_scene, m_chart)
{
    CVantWnd::name = L"Bridge";
    m_looks.colours = ColourSet::FromScheme();
    AddPanels();
    AddDocks();
}

CBridge::~CBridge() = default;

bool CBridge::Open()
{
    const Box& saved = m_session.settings.window;
    const bool isSaved = saved.Width() > 0 && saved.Height() > 0;
    const Box place = isSaved ? PlaceAgain(saved) : FirstPlace();
    if (!CreateEx(0, Vant::wndClass, Vant::appTitle, mainStyle, RectOf(place), nullptr, 0))
        return false;
    DpiThatFits(m_hWnd, Dpi()).Set(m_hWnd);
    if (!OpenParts() || !OpenViews())
        return false;
    LoadWindows(Vant::setFile, m_session.keeps);
    for (const auto& dock : m_docks) {
        dock->Guest().UpdCtrls();
        dock->Guest().LayoutWnd(1);
    }
    s_infoRx.AddTail(this);
    m_open = true;
    LayoutWnd(1);
    NotePlace();
    ShowWindow(m_session.settings.maximised ? SW_SHOWMAXIMIZED : SW_SHOWNORMAL);
    UpdateWindow();
    for (CSceneWnd* const view : Views())
        view->ShowAsSet();
    m_colours.ShowAsSet();
    m_survey.ShowAsSet();
    SetFocus();
    m_actor = Actor();
    m_last = Clock::now();
    SetTimer(frameTimer, frameInterval);
    return true;
}

std::unique_ptr<CActor> CBridge::Actor()
{
    const Stage stage{m_session, *this,    m_setup, m_chart, m_orbit,
                      m_colours, m_survey, m_video, m_scene, m_hands};
    if (m_session.scripted)
        return std::make_unique<CScript>(stage, AllActs());
    if (m_session.touring)
        return std::make_unique<CTour>(stage);
    return nullptr;
}

void CBridge::OnClose()
{
    Finish();
    CVantWnd::OnClose();
}

void CBridge::OnDestroy()
{
    KillTimer(frameTimer);
    if (m_open)
        s_infoRx.RemoveAt(s_infoRx.Find(this));
    CVantWnd::OnDestroy();
}

void CBridge::OnEndSession(BOOL ending)
{
    // The process may be gone as soon as this returns.
    if (ending)
        m_session.settings.Save(Vant::setFile);
    CVantWnd::OnEndSession(ending);
}

void CBridge::OnTimer(UINT_PTR id)
{
    if (id != frameTimer) {
        CVantWnd::OnTimer(id);
        return;
    }
    const Clock::time_point now = Clock::now();
    Tick(std::chrono::duration<double>(now - m_last).count());
    m_last = now;
}

void CBridge::Tick(double step)
{
    m_elapsed += step;
    const bool isPlayed = !m_actor || m_actor->Step(m_elapsed); // before anything of this tick is drawn
    if (!m_session.paused)
        m_session.playback.Advance(std::min(step, m_session.scripted ? scriptStep : longestStep) *
                                   m_session.rate);
    m_feed.Feed(m_session.tape, m_session.playback);
    ReportEvents();
    m_session.values.Take(m_session.playback);
    m_scene.Take(m_elapsed);
    m_session.crossTrack = m_scene.CrossTrack();
    m_session.clock.Show(LogTime(m_session.playback));
    Poll(TmSync::GetTm());
    RecordVideo();
    ++m_session.frames;
    CECtrl::UpdateAuCtrls(m_elapsed);
    if (m_elapsed >= m_nextTrigger) {
        Trigger(m_elapsed, m_session.playback.Time());
        m_nextTrigger = m_elapsed + triggerStep;
    }

    const bool isOver = m_session.seconds > 0.0 && m_elapsed >= m_session.seconds;
    if (isPlayed && (isOver || m_session.touring)) {
        KillTimer(frameTimer);
        PostMessage(WM_CLOSE);
    }
}

void CBridge::OnInfoMsg(int msg, void*)
{
    if (msg == sessionInfo)
        m_atEnd = m_atEnd && m_session.playback.AtEnd();
}

void CBridge::ReportEvents()
{
    for (const SensorEvent& event : m_session.playback.TakeEvents())
        m_session.log.Event(event);
    AlarmWatch& alarms = m_session.playback.Alarms();
    for (const AlarmEvent& event : alarms.TakeEvents()) {
        const std::wstring text = RaiseAlarm(event, alarms.ShallowLimit());
        m_session.log.Alarm(event, text);
        m_session.alarms += event.begins ? 1 : 0;
        if (event.begins && event.id == AlarmId::ShallowWater && !m_warned) {
            m_warned = true;
            Vant::MsgBox(Vant::msgWarnIcon, L"Shallow water!\nThe depth is %s,\nthe limit %s.",
                         DepthText(event.value).c_str(), DepthText(alarms.ShallowLimit()).c_str());
        }
    }
    if (m_session.playback.AtEnd() && !m_atEnd) {
        m_atEnd = true;
        m_session.log.Line(L"end of the log at " + DurationText(m_session.tape.Duration()));
    }
}

void CBridge::Finish()
{
    if (m_finished)
        return;
    NotePlace();
    m_finished = true;
    CRunLock::Unmark(m_hWnd);
    m_session.recording = false;
    RecordVideo(); // ends it
    Vant::vantClosing = 1;
    KillTimer(frameTimer);
    m_session.failed |= m_actor && !m_actor->IsDone(); // closed too early
    if (IsIconic())
        ShowWindow(SW_SHOWNOACTIVATE);
    if (m_session.keeps && !m_session.touring) // the tour takes its own
        SavePictures();
}

} // namespace demo
