#include "controls/detail/RcGlow.h"

#include "controls/CRcMgr.h"
#include "controls/detail/WatchedCtrl.h"
#include "core/ML.h"

#include <cmath>

namespace vant::detail
{
namespace
{

constexpr int brightest = 255;
constexpr int dimmest = 110;
constexpr ULONGLONG silence = 1000; // milliseconds after which nobody is expected to call again

} // namespace

int PulseStrength(double passed, double period) noexcept
{
    if (!(period > 0))
        return brightest;
    const double share = 0.5 + 0.5 * std::cos(ML::pi2 * std::fmod(passed, period) / period);
    return dimmest + static_cast<int>((brightest - dimmest) * share + 0.5);
}

int FadeStrength(int from, double passed, double period) noexcept
{
    if (!(passed < period))
        return 0;
    return static_cast<int>(from * (1 - passed / period));
}

RcGlow::RcGlow(CRcMgr& mgr)
    : m_mgr(mgr)
{
    s_auCtrls.AddTail(this);
}

RcGlow::~RcGlow()
{
    if (CECtrl* const ctrl = CtrlOf(m_ctrl))
        ctrl->SetGlow(0);
    for (const Fading& fading : m_fading)
        if (CECtrl* const ctrl = CtrlOf(fading.ctrl))
            ctrl->SetGlow(0);
}

bool RcGlow::IsTicking() const
{
    return m_lastTick != 0 && ::GetTickCount64() - m_lastTick < silence;
}

void RcGlow::Show(CECtrl* ctrl)
{
    CECtrl* const before = CtrlOf(m_ctrl);
    if (ctrl == before)
        return;
    if (before && IsTicking())
        m_fading.push_back({m_ctrl, before->glow, {}});
    else if (before)
        before->SetGlow(0);
    if (!IsTicking()) {
        for (const Fading& fading : m_fading)
            if (CECtrl* const left = CtrlOf(fading.ctrl))
                left->SetGlow(0);
        m_fading.clear();
    }

    m_ctrl.reset();
    if (!ctrl)
        return;
    std::erase_if(m_fading, [ctrl](const Fading& fading) { return CtrlOf(fading.ctrl) == ctrl; });
    m_ctrl = ctrl->Watch();
    m_clock.Restart();
    ctrl->SetGlow(brightest);
}

void RcGlow::Pulse(double t)
{
    m_clock.Look(t);
    if (CECtrl* const ctrl = CtrlOf(m_ctrl))
        ctrl->SetGlow(PulseStrength(m_clock.Passed(), m_mgr.pulse));
}

void RcGlow::Fade(double t)
{
    std::erase_if(m_fading, [&](Fading& fading) {
        CECtrl* const ctrl = CtrlOf(fading.ctrl);
        if (!ctrl)
            return true;
        fading.clock.Look(t);
        ctrl->SetGlow(FadeStrength(fading.from, fading.clock.Passed(), m_mgr.fade));
        return ctrl->glow == 0;
    });
}

void RcGlow::AutoUpdate(double t)
{
    m_lastTick = ::GetTickCount64();
    Fade(t);
    Pulse(t);
    // The last thing: who is told of a change may delete the manager, and this with it.
    m_mgr.Refresh();
}

} // namespace vant::detail
