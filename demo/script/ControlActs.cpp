#include "controls/CEAddr.h"
#include "controls/CERadius.h"
#include "demo/script/Acts.h"
#include "demo/script/Find.h"
#include "platform/Vant.h"
#include "values/EUnits.h"
#include "windows/CCslAlm.h"
#include "windows/CCslComms.h"
#include "windows/CEMsgBox.h"
#include "windows/CEToolTip.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>
#include <iterator>

namespace demo
{
namespace
{

constexpr const wchar_t* sensorCategory = L"Sensor";
constexpr unsigned long newAddress = 10 | 20UL << 8 | 0UL << 16 | 42UL << 24;

CERadius& TheDial()
{
    return static_cast<CERadius&>(OfType(CECtrl::typeRadius));
}

/** A button that changes the speed that is on. */
CWnd& SpeedButton(const Stage& stage)
{
    constexpr double fast = 15.0;
    return *stage.setup.GetDlgItem(stage.session.rate > fast ? CSetupWnd::idSlower : CSetupWnd::idFaster);
}

/** Where the dial's handle is, pixels. */
CPoint Handle()
{
    const CERadius& dial = TheDial();
    const double radius = dial.ClientRc().Height() / 2.0;
    const double part = std::cos(dial.slope) * radius;
    return dial.Dpi().ToPx(CPoint(static_cast<int>(std::lround(radius + std::sin(dial.brg) * part)),
                                  static_cast<int>(std::lround(radius - std::cos(dial.brg) * part))));
}

CWnd& Panel(const wchar_t* name)
{
    return *CVantWnd::GetWnd(name);
}

bool IsBeamAt(const Stage& stage, double bearing, double slope)
{
    const auto isAt = [](double radians, double degrees) {
        return std::abs(radians / degree - degrees) < 1e-3;
    };
    const Mounting& mounting = stage.session.playback.Mounted();
    return isAt(mounting.bearing, bearing) && isAt(mounting.slope, slope) && isAt(TheDial().brg, bearing) &&
           isAt(TheDial().slope, slope);
}

void TypeAngle(Stage& stage, double& angle, std::wstring_view degrees)
{
    stage.hands.Empty(BoundTo(&angle));
    stage.hands.Type(degrees);
    stage.hands.Key(VK_RETURN);
}

/** The windows beside the bridge, and the keys that show and hide them. */
struct Popup {
    const CWnd* wnd;
    const wchar_t* key;
};
std::array<Popup, 4> Popups(const Stage& stage)
{
    return {{{&stage.chart, L"c"}, {&stage.orbit, L"o"}, {&stage.colours, L"p"}, {&stage.survey, L"m"}}};
}

/** Whether a window is seen where the set-up is, as on a screen without room beside the bridge. */
bool CoversSetup(const Stage& stage, const CWnd& wnd)
{
    CRect setup;
    CRect place;
    stage.setup.GetWindowRect(&setup);
    wnd.GetWindowRect(&place);
    return IsSeen(wnd) && setup.IntersectRect(&setup, &place);
}

const Act acts[] = {
    {L"keys hide what lies over the set-up",
     [](Stage& s) {
         s.bridge.SetFocus();
         for (const Popup& popup : Popups(s))
             if (CoversSetup(s, *popup.wnd))
                 s.hands.Type(popup.key);
     },
     [](const Stage& s) {
         return std::ranges::none_of(Popups(s), [&](const Popup& p) { return CoversSetup(s, *p.wnd); });
     }},

    {L"a tip tells what the field under the mouse is for",
     [](Stage& s) { s.hands.Hover(BoundTo(&s.session.settings.port)); },
     [](const Stage&) {
         return Vant::toolTip.m_hWnd && IsSeen(Vant::toolTip) &&
                Vant::toolTip.text.Find(L"port at which the instrument sends") >= 0;
     },
     L"step-tip.png"},

    {L"a click on its header closes a category",
     [](Stage& s) { s.hands.Click(BoundTo(&CategoryOf(s.setup, sensorCategory).expanded)); },
     [](const Stage& s) {
         return !CategoryOf(s.setup, sensorCategory).expanded && !IsSeen(BoundTo(&s.session.settings.port));
     },
     L"step-category.png"},

    {L"the space bar opens it again", [](Stage& s) { s.hands.Key(VK_SPACE); },
     [](const Stage& s) {
         return CategoryOf(s.setup, sensorCategory).expanded && IsSeen(BoundTo(&s.session.settings.port));
     }},

    {L"a check changes all units to feet",
     [](Stage& s) { s.hands.Click(BoundTo(&s.session.settings.units)); },
     [](const Stage& s) {
         return EUnits::system == 1 && WindowText(BoundTo(&s.session.settings.shallowLimit)) == L"50.9";
     },
     L"step-units.png"},

    {L"a click on an instrument takes the keyboard, and U changes back to metres",
     [](Stage& s) {
         s.hands.Click(Panel(L"Track"));
         s.hands.Type(L"u");
     },
     [](const Stage& s) {
         return EUnits::system == 0 && WindowText(BoundTo(&s.session.settings.shallowLimit)) == L"15.5";
     }},

    {L"the dial follows its fields",
     [](Stage& s) {
         TypeAngle(s, s.session.settings.mounting.bearing, L"30");
         TypeAngle(s, s.session.settings.mounting.slope, L"80");
     },
     [](const Stage& s) { return IsBeamAt(s, 30.0, 80.0); }},

    {L"the handle of the dial is dragged to its rim",
     [](Stage& s) {
         CRect client;
         TheDial().GetClientRect(&client);
         s.hands.Drag(TheDial(), Handle(), {client.right, client.bottom / 2});
     },
     [](const Stage& s) { return IsBeamAt(s, 90.0, 0.0); }},

    {L"the arrow keys turn the dial, and the fields follow it",
     [](Stage& s) {
         s.hands.Key(VK_LEFT, 9);
         s.hands.Key(VK_UP, 14);
     },
     [](const Stage& s) {
         const Mounting& mounting = s.session.settings.mounting;
         return IsBeamAt(s, 45.0, 70.0) && WindowText(BoundTo(&mounting.bearing)) == L"45" &&
                WindowText(BoundTo(&mounting.slope)) == L"70";
     },
     L"step-dial.png"},

    {L"an address is typed with its points",
     [](Stage& s) {
         CEAddr& address = static_cast<CEAddr&>(BoundTo(&s.session.settings.address));
         s.hands.Empty(address.edits[0]);
         s.hands.Type(L"10.20.0.42");
         s.hands.Key(VK_RETURN);
     },
     [](const Stage& s) { return s.session.settings.address == newAddress; }},

    {L"a button changes the speed",
     [](Stage& s) {
         s.before = s.session.rate;
         s.hands.Click(SpeedButton(s));
     },
     [](const Stage& s) { return s.session.rate != s.before; }},

    {L"the other one changes it back",
     [](Stage& s) {
         s.before = s.session.rate;
         s.hands.Click(SpeedButton(s));
     },
     [](const Stage& s) { return s.session.rate != s.before; }},

    {L"the check lets the log go on",
     [](Stage& s) {
         s.before = s.session.paused;
         s.hands.Click(BoundTo(&s.session.paused));
     },
     [](const Stage& s) { return s.before != 0.0 && !s.session.paused; }},

    {L"the message has closed itself", [](Stage&) {},
     [](const Stage&) { return Vant::msgBox.m_hWnd && !IsSeen(Vant::msgBox); }},

    {L"F6 leads through the windows and back",
     [](Stage& s) {
         s.hands.Click(Panel(L"Heading"));
         int windows = 2; // the bridge and the set-up
         for (const CWnd* console :
              std::initializer_list<const CWnd*>{&Vant::alarm, &Vant::csl, &Vant::status, &Vant::comms})
             windows += IsSeen(*console);
         for (const Popup& popup : Popups(s))
             windows += IsSeen(*popup.wnd);
         s.hands.Key(VK_F6, windows);
     },
     [](const Stage& s) { return HasFocus(s.bridge); }},
};

} // namespace

std::vector<Act> ControlActs()
{
    return {std::begin(acts), std::end(acts)};
}

} // namespace demo
