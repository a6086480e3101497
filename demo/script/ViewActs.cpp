#include "demo/script/Acts.h"
#include "demo/script/Find.h"

#include <cmath>
#include <iterator>

namespace demo
{
namespace
{

constexpr double close = 0.5; // metres

/** A place beside the boat that lies between the lines of the route, pixels. */
CPoint NothingIn(const Stage& stage, const CSceneWnd& view)
{
    constexpr int least = 70; // pixels, off the boat and what it has to say
    constexpr int most = 160;
    constexpr int step = 5;
    constexpr double clear = 16.0; // metres; the lines are 45 apart, the corridor reaches 8 to either side
    const CPoint boat = BoatIn(stage, view);
    for (int across = least; across < most; across += step) {
        for (const CSize by : {CSize(across, across / 2), CSize(-across, across / 2)}) {
            CV3 place;
            const CPoint at = boat + by;
            if (view.Xy2Pt(at.x, at.y, place) &&
                std::abs(stage.scene.Route().CrossTrack({place.x, place.y})) > clear)
                return at;
        }
    }
    return boat; // which the act does not accept
}

/** Shows what is hidden, by its key. */
void Show(Stage& stage, const CWnd& view, std::wstring_view key)
{
    stage.bridge.SetFocus();
    if (!IsSeen(view))
        stage.hands.Type(key);
}

const Act acts[] = {
    {L"C shows the chart, O the orbit view",
     [](Stage& s) {
         Show(s, s.chart, L"c");
         Show(s, s.orbit, L"o");
     },
     [](const Stage& s) { return IsSeen(s.chart) && IsSeen(s.orbit) && s.scene.Boat().visible; }},

    {L"C hides the chart", [](Stage& s) { s.hands.Type(L"c"); },
     [](const Stage& s) { return !IsSeen(s.chart) && !s.session.settings.chart.open && HasFocus(s.bridge); }},

    {L"and shows it again, with the boat in its middle", [](Stage& s) { s.hands.Type(L"C"); },
     [](const Stage& s) { return IsSeen(s.chart) && s.chart.IsFollowing() && FromBoat(s, s.chart) < close; }},

    {L"the wheel zooms the chart",
     [](Stage& s) {
         s.before = s.chart.Cam().zoom;
         s.hands.Wheel(s.chart, 3);
     },
     [](const Stage& s) { return s.chart.Cam().zoom < s.before * 0.8 && s.chart.IsFollowing(); }},

    {L"and back", [](Stage& s) { s.hands.Wheel(s.chart, -3); },
     [](const Stage& s) { return std::abs(s.chart.Cam().zoom / s.before - 1) < 1e-6; }},

    {L"dragging the chart lets the boat go on alone",
     [](Stage& s) {
         s.chart.SetFocus();
         s.hands.Key('P');
         s.hands.Drag(s.chart, Middle(s.chart), Middle(s.chart) + CSize(90, 50));
     },
     [](const Stage& s) { return !s.chart.IsFollowing() && FromBoat(s, s.chart) > 20.0; }},

    {L"an arrow key pans it",
     [](Stage& s) {
         s.before = s.chart.Cam().org.x;
         s.hands.Key(VK_RIGHT);
     },
     [](const Stage& s) { return s.chart.Cam().org.x > s.before + 10.0; }},

    {L"F follows the boat again, course up",
     [](Stage& s) {
         s.hands.Key('F');
         s.hands.Key('C');
     },
     [](const Stage& s) {
         return s.chart.IsFollowing() && FromBoat(s, s.chart) < close && s.chart.GetUp() == CDsp::upCourse &&
                std::abs(s.chart.Cam().align - s.scene.Boat().Now().heading) < 0.1;
     },
     L"step-course-up.png", true},

    {L"N puts north up", [](Stage& s) { s.hands.Key('N'); },
     [](const Stage& s) { return s.chart.GetUp() == CDsp::upNorth && s.chart.Cam().align == 0; }},

    {L"a click beside the boat picks nothing",
     [](Stage& s) {
         s.hands.Key('S');
         s.hands.Click(s.chart, NothingIn(s, s.chart));
     },
     [](const Stage& s) { return s.chart.mouseMode == CDsp::mousePick && s.chart.Picked().IsEmpty(); }},

    {L"a click on the boat picks it in the chart",
     [](Stage& s) { s.hands.Click(s.chart, BoatIn(s, s.chart)); },
     [](const Stage& s) { return IsBoatPicked(s.chart); }},

    {L"the left button turns the orbit view",
     [](Stage& s) {
         s.chart.mouseMode = CDsp::mousePan; // as it was
         s.before = s.orbit.Cam().align;
         s.hands.Drag(s.orbit, Middle(s.orbit), Middle(s.orbit) + CSize(60, 0));
     },
     [](const Stage& s) { return std::abs(s.orbit.Cam().align - s.before) > 0.05; }},

    {L"and back", [](Stage& s) { s.hands.Drag(s.orbit, Middle(s.orbit), Middle(s.orbit) - CSize(60, 0)); },
     [](const Stage& s) { return std::abs(s.orbit.Cam().align - s.before) < 1e-3; }},

    {L"a right click picks it in the orbit view",
     [](Stage& s) {
         s.orbit.SetFocus();
         const CPoint boat = BoatIn(s, s.orbit);
         s.hands.Drag(s.orbit, boat, boat, CInput::Button::Right);
     },
     [](const Stage& s) { return IsBoatPicked(s.orbit); }},

    {L"and opens its menu, which Escape closes", [](Stage& s) { s.hands.Key(VK_ESCAPE); },
     [](const Stage& s) { return !IsMenuOpen() && HasFocus(s.orbit); }},

    {L"Escape leads from the view back to the bridge", [](Stage& s) { s.hands.Key(VK_ESCAPE); },
     [](const Stage& s) { return HasFocus(s.bridge); }, L"step-views.png", true},
};

} // namespace

std::vector<Act> ViewActs()
{
    return {std::begin(acts), std::end(acts)};
}

} // namespace demo
