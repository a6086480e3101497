#pragma once

#include "controls/detail/ClickCtrl.h"
#include "core/VantApi.h"

#include <vector>

/** A row of buttons of which one is chosen, all of them one control, bound to an integer of any width.
 *
 *  Every button has a value; the one whose value the variable has is shown as switched on. While the variable
 * has a value that no button has, none is.
 *
 *  @code
 *  auto* const mode = static_cast<CEBtnList*>(cat->InsCtrl(240, CECtrl::typeBtnList, m_mode));
 *  mode->AddBtns(L"Off|Survey|Search"); // values 0, 1, 2
 *  mode->AddBtn(L"Test", 99);
 *  @endcode
 *
 *  A click on a button stores its value and calls the callbacks; a click on the chosen one does nothing. The
 * arrow keys go to the next or previous button that can be used, Home and End to the first or last one, and
 * choose it; Tab goes on to the next control. The buttons share the control's width evenly. */
class VANT_API CEBtnList : public vant::detail::ClickCtrl
{
    DECLARE_DYNAMIC(CEBtnList)

public:
    CEBtnList();

    /** @name Buttons, numbered from 0 at the left */
    ///@{
    /** Appends a button. @return its number */
    int AddBtn(const CString& caption, int value);
    /** Appends one for every piece of a text in which they stand apart by "|", with the button's number as
     * its value. */
    void AddBtns(const CString& captions);
    /** Removes all buttons. */
    void RemoveAll();
    /** How many buttons there are. */
    int Count() const noexcept;
    /** A button that is not enabled cannot be chosen by the user; nothing for a number without a button. */
    void EnableBtn(int btn, bool enable);
    /** The button that is chosen; -1 if none is. */
    int Chosen() const;
    /** The button at a point of the client area, units; -1 outside them. */
    int BtnAt(CPoint at) const;
    /** @} */

    /** Chooses the next button that can be used, after the last one the first. */
    int Press() override;
    /** Chooses a button farther on: right for more. */
    int Jog(int notches, double step, int fine) override;
    void Draw(CDC* dc) override;
    /** With WS_TABSTOP. */
    unsigned long WndStyle() const override;

protected:
    void OnClick() override;
    int ShownState() const override;
    bool IsInside(CPoint px) const override;
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg UINT OnGetDlgCode();
    DECLARE_MESSAGE_MAP()

private:
    struct Btn {
        CString caption;
        int value;
        bool enabled;
    };

    CRect BtnRc(int btn) const;
    bool IsBtnEnabled(int btn) const;
    int Current() const;
    void Choose(int btn);
    void Move(int from, int by);
    vant::skins::Look BtnLook(int btn) const;

    std::vector<Btn> m_btns;
    int m_hot = -1;  // under the mouse
    int m_held = -1; // what a click would choose
};
