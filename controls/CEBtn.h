#pragma once

#include "controls/detail/ClickCtrl.h"
#include "core/VantApi.h"

/** A push button. A click fires the callbacks (CEVal::Execute()), and then, if the button has an #id, tells
 * the parent as every push button does: WM_COMMAND with BN_CLICKED; so a button with IDOK or IDCANCEL works
 * in a dialog.
 *
 *  Its caption is `text`, or the display text of a bound variable that is no integer. A button that is bound
 * to an integer latches: a click toggles the bits of the mask `aux0` (1 at first) under the value's mutex,
 * and it shows whether one of them is set. */
class VANT_API CEBtn : public vant::detail::ClickCtrl
{
    DECLARE_DYNAMIC(CEBtn)

public:
    CEBtn();

    /** Whether it is bound to an integer with a bit of the mask set. */
    bool IsLatched() const;

    void Draw(CDC* dc) override;
    /** With WS_TABSTOP. */
    unsigned long WndStyle() const override;

protected:
    void OnClick() override;
    int ShownState() const override;
    CString Caption() const override;
};
