#pragma once

#include "controls/detail/MarkCtrl.h"
#include "core/VantApi.h"

/** A check box with its text beside it, bound to an integer of any width.
 *
 *  It is checked while (value & mask) is not 0. The mask is `aux0`, 1 at first; boxes that share one variable
 * have one bit each. A click toggles the bits under the value's mutex and fires the callbacks; a box of
 * several bits of which only some are set shows that, and is cleared by the next click. A box without a bound
 * integer, or with a mask of 0, stays clear and only fires. The text is `text`. */
class VANT_API CECheck : public vant::detail::MarkCtrl
{
    DECLARE_DYNAMIC(CECheck)

public:
    /** Values of #mark. */
    enum Mark {
        markBox = 0,    ///< a check box
        markBranch = 1, ///< the arrow of a branch that is open while checked, closed otherwise
    };

    CECheck();

    int mark = markBox; ///< what stands before the text, Mark

    /** Whether a bit of the mask is set. */
    bool IsChecked() const;

    /** Checks or clears it. */
    int Jog(int notches, double step, int fine) override;

protected:
    void OnClick() override;
    int ShownState() const override;
    void DrawMark(CDC* dc, const CRect& box, vant::skins::Look drawn) override;

private:
    const vant::skins::Region& Piece() const;
    void DrawPlainMark(CDC* dc, const CRect& box) const;
};
