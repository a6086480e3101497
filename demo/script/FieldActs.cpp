#include "controls/CEEdit.h"
#include "controls/CVantWnd.h"
#include "demo/script/Acts.h"
#include "demo/script/Find.h"
#include "platform/Vant.h"
#include "windows/CCslAlm.h"

#include <iterator>

namespace demo
{
namespace
{

constexpr unsigned long incorrectText = 40; // the alarm of an edit field
constexpr double newLimit = 15.5;           // metres; the survey passes it within its first seconds

CEEdit& LimitField(const Stage& stage)
{
    return static_cast<CEEdit&>(BoundTo(&stage.session.settings.shallowLimit));
}

bool LimitStays(const Stage& stage, const wchar_t* text)
{
    return stage.session.settings.shallowLimit == newLimit && WindowText(LimitField(stage)) == text;
}

const Act acts[] = {
    {L"every category is open",
     [](Stage& s) {
         for (CVantPtr* pos = s.setup.Cats().GetHeadPos(); pos;) {
             const CCtrlCat* const category = s.setup.Cats().GetNext(pos);
             if (!category->expanded)
                 s.hands.Click(BoundTo(&category->expanded));
         }
     },
     [](const Stage& s) {
         return IsSeen(LimitField(s)) && IsSeen(BoundTo(&s.session.settings.port)) &&
                IsSeen(BoundTo(&s.session.settings.mounting.slope));
     }},

    {L"the display is metric",
     [](Stage& s) {
         if (s.session.settings.units != 0)
             s.hands.Click(BoundTo(&s.session.settings.units));
     },
     [](const Stage& s) { return s.session.settings.units == 0; }},

    {L"a limit is typed and takes effect",
     [](Stage& s) {
         s.hands.Empty(LimitField(s));
         s.hands.Type(L"15.5");
         s.hands.Key(VK_RETURN);
     },
     [](const Stage& s) {
         return LimitStays(s, L"15.5") && s.session.playback.Alarms().ShallowLimit() == newLimit &&
                !HasFocus(LimitField(s));
     }},

    {L"a limit out of range is marked while it is typed",
     [](Stage& s) {
         s.hands.Empty(LimitField(s));
         s.hands.Type(L"2000");
     },
     [](const Stage& s) { return LimitStays(s, L"2000") && !LimitField(s).validNow; }, L"step-invalid.png"},

    {L"Tab leaves it: alarm 40 tells why, the old limit is shown again",
     [](Stage& s) { s.hands.Key(VK_TAB); },
     [](const Stage& s) {
         CECEntry alarm;
         return LimitStays(s, L"15.5") && Vant::alarm.GetEntry(incorrectText, alarm) != 0 &&
                alarm.text.Find(L"Incorrect Text: Not in user specified range 0 to 1000") >= 0;
     }},

    {L"Tab goes on in the order of the controls",
     [](Stage& s) {
         // The field after the limit has the keyboard already.
         s.before = HasFocus(BoundTo(&s.session.settings.lostFix));
         s.hands.Key(VK_TAB);
     },
     [](const Stage& s) { return s.before != 0.0 && HasFocus(BoundTo(&s.session.settings.sound)); }},

    {L"Escape leaves a field without storing",
     [](Stage& s) {
         s.hands.Click(LimitField(s));
         s.hands.Key(VK_END);
         s.hands.Type(L"9");
         s.hands.Key(VK_ESCAPE);
     },
     [](const Stage& s) { return LimitStays(s, L"15.59") && HasFocus(s.setup); }},

    {L"Escape leads from the set-up back to the bridge", [](Stage& s) { s.hands.Key(VK_ESCAPE); },
     [](const Stage& s) { return HasFocus(s.bridge); }},
};

} // namespace

std::vector<Act> FieldActs()
{
    return {std::begin(acts), std::end(acts)};
}

std::vector<Act> AllActs()
{
    std::vector<Act> all = FieldActs();
    for (const std::vector<Act>& more :
         {AlarmActs(), ControlActs(), ViewActs(), ColourActs(), SurveyActs(), RecordActs()})
        all.insert(all.end(), more.begin(), more.end());
    return all;
}

} // namespace demo
