#include "demo/script/BridgeActs.h"

#include "controls/CEAddr.h"
#include "controls/CERadius.h"
#include "demo/script/Find.h"
#include "platform/Vant.h"
#include "values/EUnits.h"
#include "windows/CCslAlm.h"
#include "windows/CEMsgBox.h"

#include <algorithm>
#include <cmath>

namespace demo
{
namespace
{

constexpr unsigned long incorrectText = 40; // the alarm of an edit field
constexpr auto shallow = static_cast<unsigned long>(AlarmId::ShallowWater);
constexpr double depthLimit = 15.5; // the survey passes it within its first seconds

/** Where the rows of the alarm console are, as a user sees it. */
struct AlarmRows : CCslAlm {
    /** The check box of an alarm, in pixels of the console; outside it if there is no such row. */
    static CPoint BoxOf(unsigned long id)
    {
        constexpr int toMiddle = 10; // of the box at the left end of a row, units
        const auto lines = &AlarmRows::Lines;
        const auto rowOf = &AlarmRows::RowRc;
        const std::vector<CECEntry>& shown = (Vant::alarm.*lines)();
        const auto at = std::ranges::find_if(shown, [id](const CECEntry& e) { return e.id == id; });
        if (at == shown.end())
            return {-1, -1};
        const CRect row = (Vant::alarm.*rowOf)(static_cast<int>(at - shown.begin()));
        return Vant::alarm.Dpi().ToPx(CPoint(row.left + toMiddle, row.CenterPoint().y));
    }
};

std::wstring AlarmOf(unsigned long id, unsigned int kind = 0)
{
    CECEntry entry;
    const bool found = Vant::alarm.GetEntry(id, entry) != 0 && (entry.kind & kind) == kind;
    return found ? static_cast<LPCWSTR>(entry.text) : L"";
}

bool Tells(const std::wstring& text, const wchar_t* what)
{
    return text.find(what) != std::wstring::npos;
}

bool IsNear(double a, double b)
{
    return std::abs(a - b) < 1e-6;
}

/** Makes the acts; the references outlive the script. */
struct Author {
    Session& session;
    CVantWnd& bridge;
    CSetupWnd& setup;
    CInput& hands;
    std::vector<CScript::Act> acts{};

    /** Clicks a field and takes out what is in it. */
    void Empty(CWnd& field) const
    {
        constexpr int longestText = 12;
        hands.Click(field);
        hands.Key(VK_END);
        hands.Key(VK_BACK, longestText);
    }

    void Limits();
    void Alarms();
    void Categories();
    void Checks();
    void Dial();
    void Address();
    void Keys();
};

void Author::Limits()
{
    DemoSettings& settings = session.settings;
    CECtrl& limit = BoundTo(&settings.shallowLimit);
    CECtrl& search = BoundTo(&settings.lostFix);
    CECtrl& sound = BoundTo(&settings.sound);
    acts.push_back({L"a limit is typed and takes effect",
                    [&, this] {
                        Empty(limit);
                        hands.Type(L"15.5");
                        hands.Key(VK_RETURN);
                    },
                    [&, this] {
                        return settings.shallowLimit == depthLimit &&
                               session.playback.Alarms().ShallowLimit() == depthLimit &&
                               WindowText(limit) == L"15.5" && !demo::HasFocus(limit);
                    }});
    acts.push_back({L"a limit out of range is shown as such while it is typed",
                    [&, this] {
                        Empty(limit);
                        hands.Type(L"2000");
                    },
                    [&] { return WindowText(limit) == L"2000" && !static_cast<CEEdit&>(limit).validNow; },
                    L"step-invalid.png"});
    acts.push_back({L"it raises alarm 40 and the limit stays",
                    [this] { hands.Key(VK_TAB); },
                    [&] {
                        return Tells(AlarmOf(incorrectText), L"Not in user specified range 0 to 1000") &&
                               settings.shallowLimit == depthLimit && WindowText(limit) == L"15.5";
                    }});
    acts.push_back({L"Tab went on to the next control, and goes on to the one after it",
                    [&, this] {
                        acts.front(); // what Tab left is the limit
                        hands.Key(VK_TAB);
                    },
                    [&] { return demo::HasFocus(sound) && WindowText(search) == L"5"; }});
    acts.push_back({L"Escape leaves a field without storing",
                    [&, this] {
                        hands.Click(limit);
                        hands.Key(VK_END);
                        hands.Type(L"9");
                        hands.Key(VK_ESCAPE);
                    },
                    [&] {
                        return settings.shallowLimit == depthLimit && WindowText(limit) == L"15.59" &&
                               !demo::HasFocus(limit);
                    }});
}

} // namespace

} // namespace demo
