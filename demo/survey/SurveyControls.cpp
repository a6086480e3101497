// The controls of the survey: what is where, and what it is bound to.
#include "demo/survey/CSurveyWnd.h"

#include "controls/CEBtn.h"
#include "controls/CEChart.h"
#include "controls/CEFlex.h"
#include "controls/CEGrid.h"
#include "controls/CELed.h"
#include "controls/CESlider.h"
#include "controls/CEText.h"

namespace demo
{
namespace
{

/** @name Places in a window of the least size, units @{ */
constexpr int edge = 8;
constexpr int lampWidth = 140;
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

constexpr double firstSpan = 120.0;   // seconds of the tape on the strips
constexpr int stripSamples = 1 << 16; // half an hour at 30 a second

constexpr int typeWhole = 4; // of the grid's columns, see CEVal
constexpr int typeNumber = 9;

constexpr int idWaypoints = 100; // without one the grid would not tell of Enter

/** What the lamps say, in the order of their sensors. */
constexpr struct {
    const wchar_t* live;
    const wchar_t* silent;
    const wchar_t* gone;
} lampTexts[] = {
    {L"Sounder live", L"Sounder silent", L"No sounder"},
    {L"Speed log live", L"Speed log silent", L"No speed log"},
    {L"Position live", L"Position lost", L"No position"},
};

} // namespace

void CSurveyWnd::SetupCtrls()
{
    minW = leastWidth;
    minH = leastHeight;
    AddLamps();
    AddGain();
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
    for (std::size_t i = 0; i < lampCount; ++i) {
        auto* const lamp = static_cast<CELed*>(InsCtrl(lampWidth, CECtrl::typeLed, m_lamps[i]));
        lamp->ClearStates();
        lamp->SetState(static_cast<int>(Freshness::Live), CELed::green, CELed::lit, lampTexts[i].live);
        lamp->SetState(static_cast<int>(Freshness::Stale), CELed::amber, CELed::blink, lampTexts[i].silent);
        lamp->SetState(static_cast<int>(Freshness::None), CELed::red, CELed::lit, lampTexts[i].gone);
    }
    auto* const way = static_cast<CELed*>(InsCtrl(lampWidth, CECtrl::typeLed, m_underWay));
    way->ClearStates();
    way->SetState(0, CELed::green, CELed::dark, L"No way on");
    way->SetState(1, CELed::green, CELed::lit, L"Making way");
    way->tip = L"Lit while the boat makes more than half a knot through the water.";
}

void CSurveyWnd::AddGain()
{
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

} // namespace demo
