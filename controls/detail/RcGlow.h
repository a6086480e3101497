#pragma once

#include "controls/CECtrl.h"
#include "controls/detail/PhaseClock.h"

#include <vector>

class CRcMgr;

namespace vant::detail
{

/** Makes the current control of a manager glow, and the ones that were current fade. A control without a
 * window, which is called regularly among the others. */
class RcGlow : public CECtrl
{
public:
    /** @param mgr  owns this */
    explicit RcGlow(CRcMgr& mgr);
    ~RcGlow() override;

    /** The control that is to glow; null: none. */
    void Show(CECtrl* ctrl);

    void AutoUpdate(double t) override;
    void Draw(CDC*) override {}

private:
    struct Fading {
        std::weak_ptr<CECtrl*> ctrl;
        int from; // strength
        PhaseClock clock;
    };

    void Pulse(double t);
    void Fade(double t);
    bool IsTicking() const;

    CRcMgr& m_mgr;
    std::weak_ptr<CECtrl*> m_ctrl;
    PhaseClock m_clock;
    std::vector<Fading> m_fading;
    ULONGLONG m_lastTick = 0; // tick count
};

/** The strength of a pulsing glow some seconds after it was brightest. @param period  seconds; 0 or less:
 * steady */
int PulseStrength(double passed, double period) noexcept;

/** The strength of a fading glow. @param period  until it is gone, seconds */
int FadeStrength(int from, double passed, double period) noexcept;

} // namespace vant::detail
