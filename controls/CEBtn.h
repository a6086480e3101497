#pragma once

#include "controls/detail/ClickCtrl.h"
#include "core/VantApi.h"

/** A push button. A click fires the callbacks (CEVal::Execute()), and then, if the button has an id, tells
 * the parent as every push button does: WM_COMMAND with BN_CLICKED; so a button with IDOK or IDCANCEL works
 * in a dialog.
 *
 *  With a skin of its own (LoadBitmapW()) it draws that, stretched over its rectangle, instead of the common
 * face. A skin of one picture lights up under the mouse, gets an outline with the focus and is grey while
 * disabled; #skinLooks says that it has a picture for each look.
 *
 *  Its caption is `text`, or the display text of a bound variable that is no integer. A button that is bound
 * to an integer latches: a click toggles the bits of the mask `aux0` (1 at first) under the value's mutex,
 * and it shows whether one of them is set. */
class VANT_API CEBtn : public vant::detail::ClickCtrl
{
    DECLARE_DYNAMIC(CEBtn)

public:
    CEBtn();

    int skinLooks = 1; ///< pictures side by side in its own skin: 1, or 5 (normal, hover, pressed, focused,
                       ///< disabled)

    /** Whether it is bound to an integer with a bit of the mask set. */
    bool IsLatched() const;

    /** Latches or unlatches one that is bound to an integer. */
    int Jog(int notches, double step, int fine) override;

    void Draw(CDC* dc) override;
    /** With WS_TABSTOP. */
    unsigned long WndStyle() const override;

protected:
    void OnClick() override;
    int ShownState() const override;
    CString Caption() const override;

private:
    void DrawOwnSkin(CDC* dc, CRect r, vant::skins::Look drawn);
};
