#pragma once

#include "demo/script/CActor.h"
#include "demo/script/CInput.h"
#include "demo/setup/CSetupWnd.h"
#include "demo/survey/CSurveyWnd.h"
#include "demo/views/CChartWnd.h"
#include "demo/views/CColoursWnd.h"
#include "demo/views/COrbitWnd.h"
#include "demo/views/CViewVideo.h"

#include <vector>

namespace demo
{

/** What the acts of a script are played with. */
struct Stage {
    Session& session;
    CVantWnd& bridge;
    CSetupWnd& setup;
    CChartWnd& chart;
    COrbitWnd& orbit;
    CColoursWnd& colours;
    CSurveyWnd& survey;
    CViewVideo& video;
    Scene& scene;
    CInput& hands;
    double before = 0.0; ///< what an act found when it began
};

/** Something to do and what must come of it. */
struct Act {
    const wchar_t* name;              ///< what must come of it, for the report
    void (*begin)(Stage&);            ///< tells the hands what to do
    bool (*holds)(const Stage&);      ///< becomes true, soon after the hands have done it
    const wchar_t* picture = nullptr; ///< file name of a picture of the result
    bool isWide = false;              ///< the picture shows the other windows too, not the bridge alone
};

/** The program tries its own controls: does things as a user, one after the other, and checks what happened.
 * Every act is reported in a line on the standard output. The first one that fails is the last. */
class CScript : public CActor
{
public:
    /** Seconds after which an act has failed, and how many seconds of the tape it may wait for besides. */
    static constexpr double patience = 20.0;
    static constexpr double tapePatience = 30.0;

    CScript(const Stage& stage, std::vector<Act> acts);

    bool Step(double t) override;
    bool IsDone() const override { return m_current >= m_acts.size(); }

private:
    void Report(const Act& act, bool passed);
    void SavePicture(const Act& act);

    Stage m_stage;
    std::vector<Act> m_acts;
    std::size_t m_current = 0;
    bool m_begun = false;
    double m_start = 0.0;
};

} // namespace demo
