#include "demo/tour/TourCues.h"

#include "colour/CColTblCb.h"
#include "controls/CEGrid.h"
#include "controls/CESlider.h"
#include "demo/detail/Shot.h"
#include "demo/screen/ScreenPlace.h"
#include "demo/script/Find.h"
#include "platform/Vant.h"
#include "resources/Skins.h"
#include "windows/CCslAlm.h"

#include <cmath>
#include <initializer_list>

namespace demo
{
namespace
{

constexpr double firstTime = 100.0;  // seconds of the tape: the first turn is behind the boat, a bank ahead
constexpr double tourRate = 3.0;     // the tape lasts as long as the tour
constexpr double patientFix = 60.0;  // seconds: the position fails for some, and the tour does not tell of it
constexpr double quietLimit = 10.0;  // metres; the survey is deeper
constexpr double raisedLimit = 18.2; // more than the depth when it is typed
constexpr auto shallow = static_cast<unsigned long>(AlarmId::ShallowWater);
constexpr int shownRow = 4; // of the waypoints

Box PlaceOf(const CWnd& wnd)
{
    CRect place;
    wnd.GetWindowRect(&place);
    return BoxOf(place);
}

Box PlaceOf(const wchar_t* part)
{
    return PlaceOf(*CVantWnd::GetWnd(part));
}

CECtrl& LimitField(const Stage& stage)
{
    return BoundTo(&stage.session.settings.shallowLimit);
}

/** The thumb of the slider, as its value places it. */
CPoint GainThumb(const Stage& stage)
{
    const CESlider& slider = *stage.survey.Gain();
    constexpr int end = 7; // from the end of the control to that of the scale, units
    const int scale = slider.ClientRc().Width() - slider.readout - 3 * end;
    const double part = (stage.session.settings.gain - DemoSettings::leastGain) /
                        (DemoSettings::mostGain - DemoSettings::leastGain);
    const int thumbHeight = vant::skins::slider::thumb.h;
    return slider.Dpi().ToPx(CPoint(end + static_cast<int>(std::lround(scale * part)), thumbHeight / 2));
}

CPoint WaypointCell(const Stage& stage)
{
    CEGrid& grid = *stage.survey.Waypoints();
    return grid.Dpi().ToPx(grid.CellRc(shownRow, 1).CenterPoint());
}

const TourCue cues[] = {
    // The bridge
    {0.0, WholeStage},
    {1.0, nullptr, [](Stage&, CTourHand& hand) { hand.Reach(*CVantWnd::GetWnd(L"Depth")); }},
    {5.5, nullptr, nullptr, L"the boat is under way, and nothing is wrong",
     [](const Stage& s) {
         return s.scene.Boat().visible && s.session.playback.State(Sensor::Depth) == Freshness::Live &&
                s.session.alarms == 0;
     },
     L"tour-1-bridge.png"},

    // Heading and wind
    {7.0, [](const Stage&) { return Around(PlaceOf(L"Heading"), PlaceOf(L"Motion")); },
     [](Stage&, CTourHand& hand) { hand.Reach(*CVantWnd::GetWnd(L"Heading")); }},
    {10.0, nullptr, [](Stage&, CTourHand& hand) { hand.Reach(*CVantWnd::GetWnd(L"Wind")); }},

    // The set-up
    {13.5, [](const Stage&) { return Around(PlaceOf(L"Wind"), PlaceOf(L"Dock SET-UP")); },
     [](Stage& s, CTourHand& hand) {
         constexpr int longest = 6; // of the limit's text, characters
         hand.Click(LimitField(s));
         hand.Key(VK_END);
         hand.Key(VK_BACK, longest);
         hand.Type(L"18.2");
         hand.Key(VK_RETURN);
     },
     L"a limit that is typed raises the alarm",
     [](const Stage& s) { return s.session.settings.shallowLimit == raisedLimit && IsRaised(shallow, 0); }},
    {18.0, WholeStage},

    // The alarm
    {20.5, [](const Stage&) { return Around(PlaceOf(L"Track"), PlaceOf(L"Dock CONSOLE")); },
     [](Stage&, CTourHand& hand) { hand.Reach(Vant::alarm, [] { return AlarmBox(shallow); }); }, nullptr,
     nullptr, L"tour-6-alarm.png"},
    {23.0, nullptr,
     [](Stage&, CTourHand& hand) { hand.Click(Vant::alarm, [] { return AlarmBox(shallow); }); },
     L"a click acknowledges the alarm",
     [](const Stage&) { return IsRaised(shallow, CConsole::kindChecked); }},

    // The chart
    {26.5, [](const Stage& s) { return PlaceOf(s.chart); }},
    {27.0, nullptr,
     [](Stage& s, CTourHand& hand) {
         s.before = s.chart.Cam().zoom;
         hand.Reach(s.chart);
         hand.Turn(4);
     },
     L"the wheel zooms the chart", [](const Stage& s) { return s.chart.Cam().zoom < s.before * 0.8; }},
    {30.0, nullptr,
     [](Stage& s, CTourHand& hand) {
         hand.Reach(s.chart, [&s] { return Middle(s.chart) + CSize(40, -40); });
         hand.Press();
         hand.Pull({-110, 70}, 1.3);
         hand.Release();
     },
     L"the chart is dragged off the boat",
     [](const Stage& s) { return !s.chart.IsFollowing() && FromBoat(s, s.chart) > 10.0; }},
    {32.3, nullptr,
     [](Stage& s, CTourHand& hand) {
         hand.Key('S');
         hand.Click(s.chart, [&s] { return BoatIn(s, s.chart); });
     },
     L"a click on the boat tells its name, course and speed",
     [](const Stage& s) { return IsBoatPicked(s.chart); }},
    {34.4, nullptr,
     [](Stage&, CTourHand& hand) {
         hand.Key('P');
         hand.Key('F');
         hand.Turn(-3);
     },
     nullptr, nullptr, L"tour-2-chart.png"},

    // The orbit view
    {35.8, [](const Stage& s) { return PlaceOf(s.orbit); },
     [](Stage& s, CTourHand& hand) {
         s.before = s.orbit.Cam().align;
         hand.Reach(s.orbit, [&s] { return Middle(s.orbit) + CSize(-130, 20); });
         hand.Press();
         hand.Pull({280, 0}, 3.0);
         hand.Pull({-40, 60}, 1.2);
         hand.Release();
     },
     L"the mouse turns the orbit view",
     [](const Stage& s) { return std::abs(s.orbit.Cam().align - s.before) > 0.5; }},
    {42.5, nullptr, nullptr, nullptr, nullptr, L"tour-3-orbit.png"},

    // The colours
    {42.8,
     [](const Stage& s) { return Around(Around(PlaceOf(s.chart), PlaceOf(s.orbit)), PlaceOf(s.colours)); },
     [](Stage& s, CTourHand& hand) {
         hand.Click(TablesOf(s));
         hand.Reach(TablesOf(s), [&s] { return Middle(TablesOf(s)) + CSize(0, 30); });
     },
     L"another colour table is chosen",
     [](const Stage& s) { return s.colours.Pal().master.name != L"Depths"; }},
    {45.0, nullptr,
     [](Stage&, CTourHand& hand) {
         hand.Key(VK_DOWN);
         hand.Key(VK_RETURN);
     }},
    {48.6, nullptr, nullptr, nullptr, nullptr, L"tour-4-colours.png"},

    // The survey
    {49.2, WholeStage,
     [](Stage& s, CTourHand& hand) { hand.Click(BoundTo(&s.session.settings.survey.open)); },
     L"a check of the set-up opens the survey", [](const Stage& s) { return IsSeen(s.survey); }},
    {51.3, [](const Stage& s) { return Around(PlaceOf(s.survey), PlaceOf(s.chart)); },
     [](Stage& s, CTourHand& hand) {
         hand.Reach(*s.survey.Gain(), [&s] { return GainThumb(s); });
         hand.Press();
         hand.Pull({-60, 0}, 0.7);
         hand.Pull({100, 0}, 0.7);
         hand.Release();
         hand.Click(*s.survey.Waypoints(), [&s] { return WaypointCell(s); });
     },
     L"the slider sets the gain of the colours",
     [](const Stage& s) { return std::abs(s.session.settings.gain) > 0.5; }},
    {54.0, nullptr, nullptr, L"a waypoint that is selected comes into the chart",
     [](const Stage& s) { return s.survey.Waypoints()->CurRow() == shownRow && !s.chart.IsFollowing(); }},
    {56.5, nullptr, nullptr, nullptr, nullptr, L"tour-5-survey.png"},

    // The bridge again
    {57.0, WholeStage,
     [](Stage& s, CTourHand& hand) {
         s.chart.FollowBoat(true);
         hand.Click(BoundTo(&s.session.settings.survey.open));
     },
     L"and closes it again",
     [](const Stage& s) { return !s.session.settings.survey.open && !IsSeen(s.survey); }},
};

} // namespace

std::span<const TourCue> TourCues() noexcept
{
    return cues;
}

Box WholeStage(const Stage& stage)
{
    Box whole = PlaceOf(stage.bridge);
    for (const CWnd* const view :
         std::initializer_list<const CWnd*>{&stage.chart, &stage.orbit, &stage.colours})
        whole = Around(whole, PlaceOf(*view));
    return whole;
}

void SetStage(Stage& stage)
{
    Session& session = stage.session;
    session.settings.shallowLimit = quietLimit;
    session.settings.lostFix = patientFix;
    session.rate = tourRate;
    session.Apply();
    session.playback.Advance(firstTime);
    CVantWnd::InfoMsg(sessionInfo, &session);
}

} // namespace demo
