#pragma once

#include "core/CV3.h"
#include "display/CMdl.h"

namespace demo
{

/** The water around the boat, up to the horizon: clear below the boat, so that the sea bed is seen, and dense
 * far away. For scenes, not for charts. */
class CSeaMdl : public CMdl
{
public:
    CSeaMdl();

    void Move(const CV3& middle) noexcept { m_middle = middle; }

    /** What is seen of the depth where there is no ground. */
    static COLORREF DeepColour() noexcept;
    /** What the sea is at the horizon, and the sky there. */
    static COLORREF HorizonColour() noexcept;

    void Draw(CDsp& dsp) override;
    void GetInf(CMdlInf& inf) override;

private:
    CV3 m_middle;
};

} // namespace demo
