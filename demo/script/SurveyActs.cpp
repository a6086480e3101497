#include "controls/CEChart.h"
#include "controls/CEGrid.h"
#include "controls/CESlider.h"
#include "demo/script/Acts.h"
#include "demo/script/Find.h"

#include <cmath>
#include <iterator>

namespace demo
{
namespace
{

constexpr double close = 0.5;  // metres
constexpr int notches = 3;     // of the controller
constexpr int fadeFrames = 30; // in which the glow of a control goes out
constexpr std::size_t nextRow = 1;

/** An order of the controller, as its driver would give it. */
void Order(int order, int count = 1)
{
    CVantWnd::InfoMsg(order, &count);
}

/** Steps on until a control is current: where a run begins depends on where the last one ended. */
void StepTo(const Stage& stage, const CECtrl* wanted)
{
    constexpr int most = 4; // the set has three; the first step may only wake the controller
    for (int i = 0; i < most && stage.survey.Remote().CurCtrl() != wanted; ++i)
        Order(CRcMgr::infoNextCtrl);
}

bool IsAt(const Stage& stage, const CECtrl* wanted)
{
    return stage.survey.Remote().CurCtrl() == wanted;
}

/** Whether the chart has a waypoint in its middle. */
bool ShowsWaypoint(const Stage& stage, std::size_t index)
{
    const std::vector<PlanPoint>& points = stage.scene.Route().Points();
    if (index >= points.size())
        return false;
    const CV3& org = stage.chart.Cam().org;
    return !stage.chart.IsFollowing() &&
           std::hypot(org.x - points[index].place.east, org.y - points[index].place.north) < close;
}

/** A right click on the boat in the chart. */
void ClickBoat(Stage& stage)
{
    const CPoint at = BoatIn(stage, stage.chart);
    stage.chart.SetFocus();
    stage.hands.Drag(stage.chart, at, at, CInput::Button::Right);
}

bool IsFull(const CEChart& chart)
{
    double least = 0;
    double most = 0;
    return chart.GetStripCount() == 2 && chart.GetShown(0, least, most) && chart.GetShown(1, least, most);
}

const Act acts[] = {
    {L"M shows the survey, with its strips and the waypoints",
     [](Stage& s) {
         s.bridge.SetFocus();
         if (!IsSeen(s.survey))
             s.hands.Type(L"m");
     },
     [](const Stage& s) {
         return IsSeen(s.survey) && IsFull(*s.survey.Strips()) &&
                s.survey.Waypoints()->Rows() == static_cast<int>(s.scene.Route().Points().size());
     }},

    {L"a controller steps to the gain", [](Stage& s) { StepTo(s, s.survey.Gain()); },
     [](const Stage& s) { return IsAt(s, s.survey.Gain()); }},

    {L"three notches less are three decibels",
     [](Stage& s) {
         s.before = s.session.settings.gain;
         Order(CRcMgr::infoDec, notches);
     },
     [](const Stage& s) { return std::abs(s.before - notches - s.session.settings.gain) < 1e-6; },
     L"step-remote.png", true},

    {L"and three more bring them back", [](Stage&) { Order(CRcMgr::infoInc, notches); },
     [](const Stage& s) { return std::abs(s.before - s.session.settings.gain) < 1e-6; }},

    {L"the controller presses a button: the chart shows the whole route",
     [](Stage& s) {
         s.before = s.chart.Cam().zoom;
         StepTo(s, s.survey.WholeRoute());
         Order(CRcMgr::infoPress);
     },
     [](const Stage& s) {
         return IsAt(s, s.survey.WholeRoute()) && !s.chart.IsFollowing() &&
                std::abs(s.chart.Cam().zoom - s.before) > 1.0;
     }},

    {L"it lets go, and the glow fades",
     [](Stage& s) {
         s.chart.SetZoom(s.before);
         Order(CRcMgr::infoRelease);
         s.before = static_cast<double>(s.session.frames);
     },
     [](const Stage& s) {
         return IsAt(s, nullptr) && static_cast<double>(s.session.frames) > s.before + fadeFrames;
     }},

    {L"a key selects the next waypoint, which comes into the chart",
     [](Stage& s) {
         s.survey.Waypoints()->Sel(nextRow - 1, 0);
         s.survey.Waypoints()->SetFocus();
         s.hands.Key(VK_DOWN);
     },
     [](const Stage& s) { return s.survey.Waypoints()->CurRow() == nextRow && ShowsWaypoint(s, nextRow); },
     L"step-survey.png", true},

    {L"Enter brings it there again",
     [](Stage& s) {
         s.chart.FollowBoat(true);
         s.hands.Key(VK_RETURN);
     },
     [](const Stage& s) { return ShowsWaypoint(s, nextRow); }},

    {L"a right click on the boat opens its menu",
     [](Stage& s) {
         s.session.paused = 1;                           // the boat waits for the mouse
         s.chart.SetViewOrg(s.scene.Boat().Now().place); // the waypoint may be far off
         ClickBoat(s);
     },
     [](const Stage&) { return IsMenuOpen(); }, L"step-menu.png", true},

    {L"whose first entry follows the boat",
     [](Stage& s) {
         s.hands.Key(VK_HOME);
         s.hands.Key(VK_RETURN);
     },
     [](const Stage& s) { return !IsMenuOpen() && s.chart.IsFollowing(); }},

    {L"a letter of the menu puts the course up",
     [](Stage& s) {
         s.session.paused = 0;
         ClickBoat(s);
         s.hands.Key('C');
     },
     [](const Stage& s) { return !IsMenuOpen() && s.chart.GetUp() == CDsp::upCourse; }},

    {L"N puts north up again, and M hides the survey",
     [](Stage& s) {
         s.hands.Key('N');
         s.hands.Key(VK_ESCAPE);
         s.hands.Type(L"m");
     },
     [](const Stage& s) {
         return s.chart.GetUp() == CDsp::upNorth && s.chart.IsFollowing() && !IsSeen(s.survey) &&
                HasFocus(s.bridge);
     }},
};

} // namespace

std::vector<Act> SurveyActs()
{
    return {std::begin(acts), std::end(acts)};
}

} // namespace demo
