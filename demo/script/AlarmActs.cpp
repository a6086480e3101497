#include "demo/script/Acts.h"
#include "demo/script/Find.h"
#include "platform/Vant.h"
#include "windows/CCslAlm.h"
#include "windows/CEMsgBox.h"

#include <iterator>

namespace demo
{
namespace
{

constexpr unsigned long incorrectText = 40; // from an edit field, some acts before
constexpr auto shallow = static_cast<unsigned long>(AlarmId::ShallowWater);

const Act acts[] = {
    {L"shallow water raises its alarm, and a message tells of it", [](Stage&) {},
     [](const Stage&) { return IsRaised(shallow, 0) && Vant::msgBox.m_hWnd && IsSeen(Vant::msgBox); },
     L"step-message.png"},

    {L"the space bar pauses while no control has the keyboard",
     [](Stage& s) {
         s.before = s.session.paused;
         s.hands.Type(L" ");
     },
     [](const Stage& s) { return s.session.paused == (s.before == 0.0); }},

    {L"a click acknowledges the alarm", [](Stage& s) { s.hands.Click(Vant::alarm, AlarmBox(shallow)); },
     [](const Stage&) { return IsRaised(shallow, CConsole::kindChecked); }, L"step-alarm.png"},

    {L"Up and the space bar acknowledge the one above it",
     [](Stage& s) {
         s.hands.Key(VK_UP);
         s.hands.Key(VK_SPACE);
     },
     [](const Stage& s) { return IsRaised(incorrectText, CConsole::kindChecked) && s.session.paused; }},
};

} // namespace

std::vector<Act> AlarmActs()
{
    return {std::begin(acts), std::end(acts)};
}

} // namespace demo
