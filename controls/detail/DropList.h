#pragma once

#include "controls/CEList.h"

class CECb;

namespace vant::detail
{

/** The list of a combo box, which always has the entries, and a window of its own while it is open. That
 * window never has the focus: the combo box keeps it, and passes on the keys. */
class DropList : public CEList
{
public:
    /** @param box  owns this */
    explicit DropList(CECb& box);
    ~DropList() override;

    /** Takes over the looks of the combo box, and how its entries stand. */
    void Follow();
    /** Shows the window. @param place  pixels of the screen  @return whether there is one */
    bool Open(const CRect& place);
    /** Destroys the window; the entries stay. */
    void Close();

    /** The entry that is marked in the open list, or else the one that the combo box shows. */
    CELEnt* Current() const override { return m_hWnd ? m_current : GetSel(); }
    /** The mouse, held by the combo box, is at a point of the screen. */
    void HoverAt(CPoint screenPt);
    /** The entry at a point of the screen; null if it is not over one. */
    CELEnt* EntAtScreen(CPoint screenPt) const;

    /** @name What the combo box passes on @{ */
    using CEList::DrawLabel;
    using CEList::TakeChar;
    using CEList::TakeKey;
    using CEList::TakeWheel;
    /** @} */

protected:
    void OnPick(CELEnt* ent, Pick how) override;
    void OnRemove(const CELEnt* ent) override;
    void OnHot(CELEnt* ent) override;
    void DrawFrame(CDC* dc, const CRect& r) override;

    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg int OnMouseActivate(CWnd* desktop, UINT hitTest, UINT message);
    afx_msg void OnTimer(UINT_PTR event);
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    void SetCurrent(CELEnt* ent);

    CECb& m_box;
    CELEnt* m_current = nullptr; // while it is open
    CRect m_boxPlace;            // where the combo box was when it opened, pixels of the screen
    CPoint m_mouse;              // where the mouse was, pixels of the screen
};

} // namespace vant::detail
