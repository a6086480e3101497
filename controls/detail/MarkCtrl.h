#pragma once

#include "controls/detail/ClickCtrl.h"

namespace vant::detail
{

/** A control of a mark, 20 units in square or less where there is no room, with its text beside it: check
 * boxes, radio buttons, lamps. */
class VANT_API MarkCtrl : public ClickCtrl
{
public:
    void Draw(CDC* dc) override;
    /** With WS_TABSTOP while it can be clicked. */
    unsigned long WndStyle() const override;

protected:
    virtual void DrawMark(CDC* dc, const CRect& box, vant::skins::Look drawn) = 0;
    /** Draws a piece of Vant::check as the mark. @return whether there was one */
    bool DrawCheckPiece(CDC* dc, const CRect& box, const vant::skins::Region& piece,
                        vant::skins::Look drawn) const;
};

} // namespace vant::detail
