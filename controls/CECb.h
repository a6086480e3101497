#pragma once

#include "controls/CECtrl.h"
#include "controls/CEList.h"
#include "controls/detail/WheelTurn.h"
#include "core/VantApi.h"

#include <memory>

namespace vant::detail
{
class DropList;
}

/** A combo box: shows one entry of a list, which drops down for the user to choose another.
 *
 *  It is bound like a list (see CEList for what the entry gives to a variable of each type) and shows the
 * entry that the variable names: drawn by the callback of SetDraw() if there is one. Without such an entry it
 * shows the display text of a text or number, and nothing for a pointer. The entries stay in the list while
 * it is closed.
 *
 *  The fill callback is called when the window is created, each time before the list opens, and by Fill(). A
 * class of combo boxes sets its callbacks in its constructor:
 *
 *  @code
 *  CPortCb::CPortCb()
 *  {
 *      SetFill(this, static_cast<FillFn>(&CPortCb::FillCombo));
 *      SetDraw(this, static_cast<DrawFn>(&CPortCb::DrawEntry));
 *  }
 *  @endcode
 *
 *  The list opens at a click, a blank, F4, or Alt with the up or down arrow, on the side that #layout says
 * or, if it has more room there, on the opposite one; always inside the work area of the screen. While it is
 * open the keys go to it: arrows, Home, End, Page Up, Page Down and typing move its current entry; Enter,
 * Tab, F4 and a click choose; Escape, Alt, a click elsewhere and the loss of the focus close it as it was.
 * While it is closed the same keys choose at once; the wheel does so only while the combo box has the focus.
 * A choice is stored in the bound variable and the callbacks are called (CEVal::Execute()), also if the entry
 * is the same as before; then, if the combo box has an #id, the parent is told as by a combo box of the
 * system: WM_COMMAND with CBN_SELCHANGE. */
class VANT_API CECb : public CECtrl
{
    DECLARE_DYNAMIC(CECb)

public:
    using FillFn = CEList::FillFn; ///< see CEList
    using DrawFn = CEList::DrawFn; ///< see CEList; also draws the entry in the closed box, `selected` being
                                   ///< not 0 there while it has the focus or the mouse is over it

    /** Values of #layout: on which side the list opens. In the last two, the vertical ones, the box is an
     * upright strip with its button at the bottom, and the entries stand side by side in the list, each as
     * wide and as high as in the box; texts run upwards. */
    enum Layout {
        layoutBelow = 0, ///< below the control
        layoutAbove = 1, ///< above it
        layoutRight = 2, ///< to the right of it, with upright texts
        layoutLeft = 3,  ///< to the left of it, likewise
    };

    CECb();
    ~CECb() override;

    int layout = layoutBelow; ///< Layout
    int drawOpt = 0;          ///< for the draw callback, such as a direction; not looked at here
    int maxRows = 12;         ///< entries that the open list shows at most; more are scrolled
    int dropW = 0;            ///< width of the open list; 0, or less than the box's: as wide as that. Not for
                              ///< the vertical layouts

    /** The list that drops down, with the entries; its window exists while it is open. Its own value is not
     * used. */
    CEList& List() noexcept;
    const CEList& List() const noexcept;

    /** @name Entries, as of CEList */
    ///@{
    /** Appends an entry; see CEList::Add(). */
    CELEnt* Add(const CString& entryText) { return List().Add(entryText); }
    CELEnt* Add(const CString& entryText, void* item) { return List().Add(entryText, item); }
    CELEnt* Add(const CString& entryText, double num) { return List().Add(entryText, num); }
    CELEnt* Add(const CString& entryText, int num) { return List().Add(entryText, num); }
    /** Lets a member of `target` fill the list whenever it opens; see CEList::SetFill(). */
    void SetFill(CObject* target, FillFn fn, void* data = nullptr) { List().SetFill(target, fn, data); }
    /** Lets a member of `target` draw the entries; see CEList::SetDraw(). */
    void SetDraw(CObject* target, DrawFn fn) { List().SetDraw(target, fn); }
    /** Has the list filled, and shows the entry that the callback returned, or else the one of the bound
     * variable. */
    void Fill();
    /** The entry that is shown; null for none. */
    CELEnt* GetSel() const noexcept { return List().GetSel(); }
    /** Shows an entry; the bound variable stays and no callback is called. */
    void Sel(CELEnt* ent);
    /** @} */

    /** Whether the entries are drawn upright: layoutRight and layoutLeft. */
    bool IsVertical() const noexcept { return layout == layoutRight || layout == layoutLeft; }

    /** Opens the list. @return 1; 0 if it cannot: without a window, disabled, hidden */
    int Open();
    /** Closes the list without a choice. */
    void Close();
    /** Whether the list is to be seen. */
    bool IsOpen() const noexcept;

    /** Opens the list or, while it is open, chooses its current entry. */
    int Press() override;
    /** Moves the current entry of the open list; chooses a later or earlier entry of a closed one at once. */
    int Jog(int notches, double step, int fine) override;
    void Update(int arg) override;
    /** Stores the entry shown in the bound variable, without a callback. */
    void Retreive() override;
    void Draw(CDC* dc) override;
    /** With WS_TABSTOP. */
    unsigned long WndStyle() const override;
    /** Takes Enter, Escape and Tab for the open list before the window around it does. */
    BOOL PreTranslateMessage(MSG* msg) override;
    /** Has the list filled, or else shows the entry of the bound variable. */
    int Create(unsigned long wndStyle, const RECT& r, CWnd* parent, unsigned int childId) override;

protected:
    afx_msg void OnDestroy();
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* to);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnSysKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnSysKeyUp(UINT key, UINT repeat, UINT flags);
    afx_msg void OnChar(UINT character, UINT repeat, UINT flags);
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnKillFocus(CWnd* to);
    DECLARE_MESSAGE_MAP()

private:
    friend class vant::detail::DropList;

    CRect DropRc() const;
    CRect ButtonRc() const;
    void DrawButton(CDC* dc) const;
    void OpenOrChoose();
    void ChooseCurrent();
    void Choose(CELEnt* ent);

    std::unique_ptr<vant::detail::DropList> m_list;
    vant::detail::WheelTurn m_wheel;
    bool m_held = false;     // the button that opened the list is still down
    bool m_altAlone = false; // Alt is down, and no other key was pressed since
};
