#pragma once

#include "controls/CECtrl.h"
#include "core/VantApi.h"

/** A text that is not edited: a fixed one (`Init(L"Depth")`), or the display text of the bound variable with
 * its unit, drawn anew at every Update(). One line; an ellipsis ends what does not fit. */
class VANT_API CEText : public CECtrl
{
    DECLARE_DYNAMIC(CEText)

public:
    CEText();

    UINT align = DT_LEFT; ///< DT_LEFT, DT_CENTER or DT_RIGHT
    int framed = 0;       ///< non-zero: a read-out in a frame
    int alarm = 0;        ///< non-zero: a framed read-out has the look of an alarm

    /** The window's text is no value of such a control: does nothing. */
    void Retreive() override;
    void Draw(CDC* dc) override;
};
