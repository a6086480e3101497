#include "demo/survey/CSurveyWnd.h"

#include "controls/CEChart.h"

namespace demo
{
namespace
{

constexpr double wayMade = 0.5 * knot; // m/s through the water: less is drift

} // namespace

const Sensor CSurveyWnd::lampSensors[] = {Sensor::Depth, Sensor::WaterSpeed, Sensor::Position};

IMPLEMENT_DYNAMIC(CSurveyWnd, CVantWnd)

BEGIN_MESSAGE_MAP(CSurveyWnd, CVantWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

CSurveyWnd::CSurveyWnd(Session& session, Scene& scene, CSceneWnd& chart)
    : CPopup(L"Survey", session, session.settings.survey)
    , m_session(session)
    , m_scene(scene)
    , m_chart(chart)
{
}

int CSurveyWnd::OnCreate(LPCREATESTRUCT create)
{
    if (CVantWnd::OnCreate(create) == -1)
        return -1;
    m_scene.SetGain(m_session.settings.gain);
    s_pollRx.AddTail(this);
    return 0;
}

void CSurveyWnd::OnDestroy()
{
    s_pollRx.RemoveAt(s_pollRx.Find(this));
    CVantWnd::OnDestroy();
}

void CSurveyWnd::OnPoll(double t)
{
    CVantWnd::OnPoll(t);
    Record();
    ShowLamps();
    ShowWaypoints(t);
}

/** Goes on with the strips, also while they are hidden: who opens the window wants to see what was. */
void CSurveyWnd::Record()
{
    const Playback& playback = m_session.playback;
    const double now = playback.Time();
    if (now < m_taken)
        m_strips->Clear(); // the log is played again
    if (now == m_taken)
        return; // it stands still
    m_taken = now;
    const auto add = [&](int trace, Quantity quantity) {
        const bool isLive = playback.State(quantity) == Freshness::Live;
        m_strips->Add(trace, now, isLive ? playback.Value(quantity) : missing);
    };
    add(m_depth, Quantity::DepthBelowSurface);
    add(m_speed, Quantity::SpeedThroughWater);
}

void CSurveyWnd::ShowLamps()
{
    const Playback& playback = m_session.playback;
    for (std::size_t i = 0; i < lampCount; ++i)
        m_lamps[i] = static_cast<int>(playback.State(lampSensors[i]));
    const Quantity speed = Quantity::SpeedThroughWater;
    m_underWay = playback.State(speed) == Freshness::Live && playback.Value(speed) > wayMade ? 1 : 0;
}

void CSurveyWnd::OnGain()
{
    m_scene.SetGain(m_session.settings.gain);
}

void CSurveyWnd::OnInfoMsg(int msg, void* data)
{
    CPopup::OnInfoMsg(msg, data);
    if (msg == sessionInfo)
        UpdCtrls(); // units may have changed
}

} // namespace demo
