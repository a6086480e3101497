#pragma once

#include "controls/CEBtn.h"

namespace vant::detail
{

/** A button of the modal message box: a push button with a skin of its own for each answer. */
class MsgBtn : public CEBtn
{
public:
    /** @param answer  IDYES, IDNO, IDOK or IDCANCEL; becomes the button's identifier */
    explicit MsgBtn(int answer);

    /** The answer that a click on it gives. */
    int Answer() const noexcept { return m_answer; }

    void Draw(CDC* dc) override;

private:
    const int m_answer;
};

} // namespace vant::detail
