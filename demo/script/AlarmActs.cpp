#include "demo/script/Acts.h"
#include "demo/script/Find.h"
#include "platform/Vant.h"
#include "windows/CCslAlm.h"
#include "windows/CEMsgBox.h"

#include <algorithm>

namespace demo
{
namespace
{

constexpr unsigned long incorrectText = 40; // from an edit field, some acts before
constexpr auto shallow = static_cast<unsigned long>(AlarmId::ShallowWater);

/** Where the rows of the alarm console are, as a user sees them. */
struct AlarmRows : CCslAlm {
    /** The check box of an alarm, in pixels of the console; outside it while there is no such row. */
    static CPoint BoxOf(unsigned long id)
    {
        constexpr int toMiddle = 10; // of the box, from the left end of its row, units
        constexpr auto lines = &AlarmRows::Lines;
        constexpr auto rowRc = &AlarmRows::RowRc;
        const std::vector<CECEntry>& shown = (Vant::alarm.*lines)();
        const auto at = std::ranges::find_if(shown, [id](const CECEntry& entry) { return entry.id == id; });
        if (at == shown.end())
            return {-1, -1};
        const CRect row = (Vant::alarm.*rowRc)(static_cast<int>(at - shown.begin()));
        return Vant::alarm.Dpi().ToPx(CPoint(row.left + toMiddle, row.CenterPoint().y));
    }
};

bool IsRaised(unsigned long id, unsigned int kind)
{
    CECEntry alarm;
    return Vant::alarm.GetEntry(id, alarm) != 0 && (alarm.kind & kind) == kind;
}

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

    {L"a click acknowledges the alarm",
     [](Stage& s) { s.hands.Click(Vant::alarm, AlarmRows::BoxOf(shallow)); },
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
