#pragma once

namespace vant::detail
{

/** How far a wheel has been turned, in whole steps: fine wheels tell of parts of a notch, which are kept
 * until they make a step. */
class WheelTurn
{
public:
    /** @param delta  of the message: 120 for a notch  @param perNotch  steps to a notch
     *  @return the steps that are to be done now, with the sign of what was turned */
    int Take(int delta, int perNotch = 1) noexcept
    {
        constexpr int notch = 120;
        m_rest += delta * perNotch;
        const int steps = m_rest / notch;
        m_rest %= notch;
        return steps;
    }

private:
    int m_rest = 0; // of a step, in 120ths
};

} // namespace vant::detail
