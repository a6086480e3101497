#include "demo/CSurveyWnd.h"

#include "controls/CEBtn.h"
#include "controls/CEChart.h"
#include "controls/CEFlex.h"
#include "controls/CEGrid.h"
#include "controls/CELed.h"
#include "controls/CESlider.h"
#include "controls/CEText.h"
#include "demo/detail/Text.h"

#include <cmath>
#include <iterator>
#include <numbers>
#include <type_traits>

namespace demo
{
namespace
{

/** @name Places in a window of the least size, units @{ */
constexpr int edge = 8;
constexpr int lampWidth = 128;
constexpr int lampHeight = 22;
constexpr int gainTop = 36;
constexpr int gainHeight = 36;
constexpr int gainCaption = 60;
constexpr int gainWidth = 300;
constexpr int readoutWidth = 50;
constexpr int partsTop = 78;
constexpr int partsHeight = 310;
constexpr int stripsWidth = 370;
constexpr int gridWidth = 330;
constexpr int buttonWidth = 110;
constexpr int buttonHeight = 26;
constexpr int leastWidth = stripsWidth + gridWidth + 3 * edge;
constexpr int leastHeight = partsTop + partsHeight + edge;
/** @} */

constexpr double firstSpan = 120.0;    // seconds of the tape on the strips
constexpr double wayMade = 0.5 * knot; // m/s through the water: less is drift
constexpr double rowInterval = 0.5;    // seconds, of the distances and bearings
constexpr int stripSamples = 1 << 16;  // half an hour at 30 a second

constexpr int typeWhole = 4; // of the grid's columns, see CEVal
constexpr int typeNumber = 9;

constexpr int idWaypoints = 100; // without one the grid would not tell of Enter

enum WaypointCol { colPoint, colDistance, colBearing, colLeg };

/** What the lamps before the last one tell of, in their order. */
constexpr struct {
    Sensor sensor;
    const wchar_t* live;
    const wchar_t* silent;
    const wchar_t* gone;
} lamps[] = {
    {Sensor::Depth, L"Sounder live", L"Sounder silent", L"No sounder"},
    {Sensor::WaterSpeed, L"Log live", L"Log silent", L"No log"},
    {Sensor::Position, L"Position live", L"Position lost", L"No position"},
};

} // namespace

IMPLEMENT_DYNAMIC(CSurveyWnd, CVantWnd)

BEGIN_MESSAGE_MAP(CSurveyWnd, CVantWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_CLOSE()
    ON_WM_MOVE()
    ON_WM_SIZE()
END_MESSAGE_MAP()

CSurveyWnd::CSurveyWnd(Session& session, Scene& scene, CSceneWnd& chart)
    : m_session(session)
    , m_scene(scene)
    , m_chart(chart)
    , m_frame(*this, session, session.settings.survey)
{
    static_assert(std::size(lamps) == std::extent_v<decltype(m_lamps)>);
    CVantWnd::name = L"Survey";
    minW = leastWidth;
    minH = leastHeight;
}

bool CSurveyWnd::Open(CWnd& owner, const Box& first)
{
    return m_frame.Open(L"Survey", owner, first);
}

void CSurveyWnd::SetupCtrls()
{
    AddLamps();

    SetPos(edge, gainTop);
    ctrlH = gainHeight;
    InsText(gainCaption, L"Gain, dB");
    m_gain = static_cast<CESlider*>(InsCtrl(gainWidth, CECtrl::typeSlider, m_session.settings.gain));
    m_gain->SetRange(DemoSettings::leastGain, DemoSettings::mostGain);
    m_gain->decimals = 0;
    m_gain->step = 1.0;
    m_gain->ticks = CESlider::ticksNumbers;
    m_gain->readout = readoutWidth;
    m_gain->tip = L"How strongly the sea bed shows its colours in the chart and the orbit view.";
    m_gain->SetCallback(this, static_cast<CEVal::CbNone>(&CSurveyWnd::OnGain));

    AddStrips();
    AddWaypoints();

    CRcSet& set = *m_remote.GetGrp(L"Survey")->GetSet(L"Survey");
    set.Add(m_gain);
    set.Add(m_waypoints, 1.0); // a row per notch
    set.Add(m_wholeRoute);
}

void CSurveyWnd::AddLamps()
{
    SetPos(edge, edge);
    ctrlH = lampHeight;
    for (std::size_t i = 0; i < std::size(lamps); ++i) {
        auto* const lamp = static_cast<CELed*>(InsCtrl(lampWidth, CECtrl::typeLed, m_lamps[i]));
        lamp->ClearStates();
        lamp->SetState(static_cast<int>(Freshness::Live), CELed::green, CELed::lit, lamps[i].live);
        lamp->SetState(static_cast<int>(Freshness::Stale), CELed::amber, CELed::blink, lamps[i].silent);
        lamp->SetState(static_cast<int>(Freshness::None), CELed::red, CELed::lit, lamps[i].gone);
    }
    auto* const way = static_cast<CELed*>(InsCtrl(lampWidth, CECtrl::typeLed, m_underWay));
    way->ClearStates();
    way->SetState(0, CELed::green, CELed::dark, L"No way on");
    way->SetState(1, CELed::green, CELed::lit, L"Making way");
    way->tip = L"Lit while the boat makes more than half a knot through the water.";
}

void CSurveyWnd::AddStrips()
{
    CEFlex grows(0, 0, 1, 1);
    SetPos(edge, partsTop);
    ctrlH = partsHeight;
    m_strips = static_cast<CEChart*>(NewCtrl(stripsWidth, CECtrl::typeChart, &grows));
    m_strips->SetSpan(firstSpan);
    CEStrip* const depth = m_strips->AddStrip(L"Depth", lengthUnit);
    depth->reversed = 1;
    depth->decimals = 1;
    CETrace* const soundings = m_strips->AddTrace(L"Below the surface", depth, stripSamples);
    soundings->fill = 1;
    m_depth = soundings->Index();
    CEStrip* const speed = m_strips->AddStrip(L"Speed", speedUnit);
    speed->decimals = 1;
    m_speed = m_strips->AddTrace(L"Through the water", speed, stripSamples)->Index();
}

void CSurveyWnd::AddWaypoints()
{
    CEFlex atRight(1, 0, 1, 1);
    SetPos(stripsWidth + 2 * edge, partsTop);
    m_waypoints = InsGrid(gridWidth, L"Waypoints", idWaypoints, partsHeight, &atRight);
    m_waypoints->AddCol(L"Point", 60, typeWhole);
    CEGridCol* const distance = m_waypoints->AddCol(L"Distance", 90, typeNumber);
    distance->units = lengthUnit;
    distance->decimals = 0;
    distance->tip = L"From the boat.";
    CEGridCol* const bearing = m_waypoints->AddCol(L"Bearing", 70);
    bearing->align = CEGridCol::alignRight;
    bearing->tip = L"From the boat, true.";
    CEGridCol* const leg = m_waypoints->AddCol(L"Leg", 80, typeNumber);
    leg->units = lengthUnit;
    leg->decimals = 0;
    leg->tip = L"From the point before; 0 where the route begins.";
    m_waypoints->wholeRows = 1;
    m_waypoints->emptyText = L"No route is planned here";
    m_waypoints->Init(m_row);
    m_waypoints->SetSource(this, static_cast<CEGrid::GetFn>(&CSurveyWnd::OnCell));
    m_waypoints->SetCallback(this, static_cast<CEVal::CbNone>(&CSurveyWnd::OnWaypoint));

    CEFlex sticks(1, 0, 1, 0);
    SetPos(leastWidth - edge - buttonWidth, gainTop + (gainHeight - buttonHeight) / 2);
    ctrlH = buttonHeight;
    m_wholeRoute = InsBtn(buttonWidth, L"Whole route", 0, this,
                          static_cast<CEVal::CbNone>(&CSurveyWnd::OnWholeRoute), &sticks);
    m_wholeRoute->tip = L"Shows all waypoints in the chart.";
}

int CSurveyWnd::OnCreate(LPCREATESTRUCT create)
{
    if (CVantWnd::OnCreate(create) == -1)
        return -1;
    m_scene.SetGain(m_session.settings.gain);
    s_pollRx.AddTail(this);
    s_infoRx.AddTail(this);
    return 0;
}

void CSurveyWnd::OnDestroy()
{
    m_frame.NotePlace();
    s_pollRx.RemoveAt(s_pollRx.Find(this));
    s_infoRx.RemoveAt(s_infoRx.Find(this));
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
    for (std::size_t i = 0; i < std::size(lamps); ++i)
        m_lamps[i] = static_cast<int>(playback.State(lamps[i].sensor));
    const Quantity speed = Quantity::SpeedThroughWater;
    m_underWay = playback.State(speed) == Freshness::Live && playback.Value(speed) > wayMade ? 1 : 0;
}

void CSurveyWnd::ShowWaypoints(double t)
{
    const int count = static_cast<int>(m_scene.Route().Points().size());
    if (count != m_waypoints->Rows()) {
        m_waypoints->SetRange(0, count > 0 ? count - 1 : 0);
        m_waypoints->SetRows(count);
    }
    if (t < m_nextRows && m_nextRows - t <= rowInterval) // else the clock was put back
        return;
    m_nextRows = t + rowInterval;
    if (IsWindowVisible())
        m_waypoints->Update(0);
}

void CSurveyWnd::OnCell(CEGridCell& cell)
{
    const std::vector<PlanPoint>& points = m_scene.Route().Points();
    const auto index = static_cast<std::size_t>(cell.row);
    if (index >= points.size())
        return; // the route is about to change
    const GroundPoint& place = points[index].place;
    const CV3& boat = m_scene.Boat().Now().place;
    const bool knowsBoat = m_scene.Boat().visible != 0;
    const double east = place.east - boat.x;
    const double north = place.north - boat.y;
    switch (cell.col) {
    case colPoint:
        cell.num = cell.row + 1;
        break;
    case colDistance:
        if (knowsBoat)
            cell.num = std::hypot(east, north);
        break;
    case colBearing: {
        const double bearing = std::atan2(east, north);
        cell.text =
            knowsBoat
                ? (BearingText(bearing < 0 ? bearing + 2 * std::numbers::pi : bearing) + L"\u00B0").c_str()
                : L"---";
        break;
    }
    case colLeg:
        cell.num = 0;
        if (index > 0)
            cell.num = std::hypot(place.east - points[index - 1].place.east,
                                  place.north - points[index - 1].place.north);
        break;
    default:
        break;
    }
}

void CSurveyWnd::OnGain()
{
    m_scene.SetGain(m_session.settings.gain);
}

void CSurveyWnd::OnWaypoint()
{
    const std::vector<PlanPoint>& points = m_scene.Route().Points();
    if (m_row < 0 || static_cast<std::size_t>(m_row) >= points.size())
        return;
    const GroundPoint& place = points[static_cast<std::size_t>(m_row)].place;
    m_chart.FollowBoat(false);
    m_chart.SetViewOrg({place.east, place.north, 0});
}

/** Enter or a double click in the grid, whose row need not change then. */
BOOL CSurveyWnd::OnCommand(WPARAM wParam, LPARAM lParam)
{
    if (m_waypoints && HIWORD(wParam) == LBN_DBLCLK && reinterpret_cast<HWND>(lParam) == m_waypoints->m_hWnd)
        OnWaypoint();
    return CVantWnd::OnCommand(wParam, lParam);
}

void CSurveyWnd::OnWholeRoute()
{
    m_chart.ShowRoute();
}

void CSurveyWnd::OnInfoMsg(int msg, void*)
{
    if (msg != sessionInfo)
        return;
    m_frame.ShowAsSet();
    UpdCtrls(); // units may have changed
}

void CSurveyWnd::OnClose()
{
    m_frame.Close();
}

void CSurveyWnd::OnMove(int toX, int toY)
{
    CVantWnd::OnMove(toX, toY);
    m_frame.NotePlace();
}

void CSurveyWnd::OnSize(UINT type, int cx, int cy)
{
    CVantWnd::OnSize(type, cx, cy);
    m_frame.NotePlace();
}

} // namespace demo
