#include "demo/script/CScript.h"

#include "demo/Commands.h"
#include "demo/Terminal.h"

namespace demo
{

CScript::CScript(Session& session, CInput& hands, std::vector<Act> acts)
    : m_session(session)
    , m_hands(hands)
    , m_acts(std::move(acts))
{
}

bool CScript::Step(double t)
{
    if (m_current >= m_acts.size())
        return true;
    const Act& act = m_acts[m_current];
    if (!m_begun) {
        m_begun = true;
        m_start = t;
        if (act.begin)
            act.begin();
    }
    const bool late = t - m_start > act.patience;
    const bool busy = m_hands.Move();
    const bool passed = !busy && act.holds();
    if (!passed && !late)
        return false;
    m_hands.Drop();
    Report(act, passed);
    ++m_current;
    m_begun = false;
    return m_current >= m_acts.size();
}

void CScript::Report(const Act& act, bool passed)
{
    const std::wstring line = L"script: " + act.name + (passed ? L" ... ok" : L" ... FAILED");
    Say(line);
    m_session.log.Line(line);
    m_session.failures += passed ? 0 : 1;
    if (*act.picture)
        SavePicture(m_session, act.picture);
}

} // namespace demo
