#pragma once

#include "controls/detail/MarkCtrl.h"
#include "core/VantApi.h"

#include <vector>

/** One of several buttons of which one is chosen, with its text beside it.
 *
 *  The buttons of a group are bound to the same integer, of any width, and stand in the same window; they are
 * joined by that alone. Each has a value of its own, `aux0`, and is the chosen one while the variable has
 * that value. While the variable has a value that no button has, none is chosen.
 *
 *  @code
 *  const wchar_t* const names[] = {L"North up", L"Heading up", L"Course up"};
 *  for (int i = 0; i < 3; ++i) {
 *      CECtrl* const button = cat->InsCtrl(100, CECtrl::typeRadio, m_orientation);
 *      button->text = names[i];
 *      button->aux0 = i;
 *  }
 *  @endcode
 *
 *  A click stores the value and calls the callbacks of the button that was clicked; a click on the chosen one
 * does nothing. Tab stops at one button of the group, the chosen one if it can be used, and leaves the group
 * from there; the arrow keys go to the next or previous one that can be used, around, in the order of
 * construction, and choose it. The text is `text`. */
class VANT_API CERadio : public vant::detail::MarkCtrl
{
    DECLARE_DYNAMIC(CERadio)

public:
    CERadio();
    ~CERadio() override;

    /** Whether the variable has this button's value. */
    bool IsChosen() const;

    /** Of a group, at one button only. */
    bool IsTabStop() const override;

protected:
    void OnClick() override;
    int ShownState() const override;
    void DrawMark(CDC* dc, const CRect& box, vant::skins::Look drawn) override;
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg UINT OnGetDlgCode();
    DECLARE_MESSAGE_MAP()

private:
    std::vector<CERadio*> Group() const;
    int StopRank() const;
    void Move(int by);
};
