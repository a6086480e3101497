#include "demo/script/CScript.h"

#include "demo/run/Terminal.h"
#include "demo/screen/ScreenPicture.h"

#include <span>

namespace demo
{

CScript::CScript(const Stage& stage, std::vector<Act> acts)
    : m_stage(stage)
    , m_acts(std::move(acts))
{
    // The keyboard goes where the acts take it, not where the real mouse happens to be.
    CVantWnd::s_inhibitFocus = 1;
}

bool CScript::Step(double t)
{
    if (IsDone())
        return true;
    const Act& act = m_acts[m_current];
    if (!m_begun) {
        m_begun = true;
        m_start = t;
        act.begin(m_stage);
    }
    const bool busy = m_stage.hands.Move();
    const bool passed = !busy && act.holds(m_stage);
    const double allowed = patience + tapePatience / m_stage.session.rate;
    if (!passed && t - m_start < allowed)
        return false;
    m_stage.hands.Drop();
    Report(act, passed);
    m_current = passed ? m_current + 1 : m_acts.size(); // what follows counts on what was before
    m_begun = false;
    if (IsDone())
        CVantWnd::s_inhibitFocus = 0;
    return IsDone();
}

void CScript::Report(const Act& act, bool passed)
{
    const std::wstring line = std::wstring(L"script: ") + act.name + (passed ? L" ... ok" : L" ... FAILED");
    Say(line);
    m_stage.session.log.Line(line);
    m_stage.session.failed |= !passed;
    if (act.picture)
        SavePicture(act);
}

void CScript::SavePicture(const Act& act)
{
    CWnd* const windows[] = {&m_stage.bridge, &m_stage.chart, &m_stage.orbit, &m_stage.colours,
                             &m_stage.survey};
    const std::span<CWnd* const> all = windows;
    SaveSeen(act.isWide ? all : all.first(1), m_stage.session.outDir + act.picture);
}

} // namespace demo
