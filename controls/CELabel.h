#pragma once

#include "controls/detail/ClickCtrl.h"
#include "core/VantApi.h"

/** A title or caption in bold. With a callback it can be clicked, by mouse and keyboard, and shows that it
 * can. The font is Vant::boldF wherever the style says Vant::normalF, and the style's otherwise. */
class VANT_API CELabel : public vant::detail::ClickCtrl
{
    DECLARE_DYNAMIC(CELabel)

public:
    /** Values of #bar. */
    enum Bar {
        barNone = 0,     ///< the text alone
        barCaption = 1,  ///< a bar for titles
        barCategory = 2, ///< a bar with a coloured left end, as of the sections of a window
    };

    CELabel();

    UINT align = DT_LEFT; ///< DT_LEFT, DT_CENTER or DT_RIGHT
    int bar = barNone;    ///< what the text stands on, Bar

    void Draw(CDC* dc) override;
    /** With WS_TABSTOP while it has a callback. */
    unsigned long WndStyle() const override;

protected:
    void OnClick() override;
    bool IsClickable() const override;
    CString Caption() const override;
    afx_msg BOOL OnSetCursor(CWnd* wnd, UINT hitTest, UINT message);
    DECLARE_MESSAGE_MAP()

private:
    bool DrawBar(CDC* dc, const CRect& r);
};
