#pragma once

#include "controls/detail/LedStates.h"
#include "controls/detail/MarkCtrl.h"
#include "core/VantApi.h"

/** An indicator lamp with its text beside it, bound to a number that says what it shows.
 *
 *  A table gives every value a colour, says whether the lamp is dark, lit or blinking, and may give it a text
 * of its own. At first it holds, after the custom of instruments: 0 dark green (off), 1 green, 2 amber, 3
 * red, 4 blinking red. A value that is not in the table shows a grey lamp with a question mark, so that
 * nobody takes it for one that is off; so do missing data and a lamp to which nothing is bound. Of a floating
 * number the nearest integer counts.
 *
 *  @code
 *  auto* const gps = static_cast<CELed*>(cat->InsCtrl(90, CECtrl::typeLed, m_fix));
 *  gps->ClearStates();
 *  gps->SetState(0, CELed::red, CELed::blink, L"No fix");
 *  gps->SetState(1, CELed::amber, CELed::lit, L"GPS");
 *  gps->SetState(4, CELed::green, CELed::lit, L"RTK fixed");
 *  @endcode
 *
 *  Lamps that share a status word have a #mask each. Blinking lamps follow the time that AutoUpdate() is
 * called with, and so blink together, once a second; an application that never calls it has them lit.
 *
 *  With a callback a lamp can be clicked, by mouse and keyboard, as to acknowledge what it shows; it does not
 *  change its value. */
class VANT_API CELed : public vant::detail::MarkCtrl
{
    DECLARE_DYNAMIC(CELed)

public:
    /** What a lamp shines in. */
    enum Colour {
        green, ///< as it should be
        amber, ///< something to look at
        red,   ///< something is wrong
        blue,  ///< on, without a judgement
        white, ///< likewise, brighter
    };
    /** How it shines. */
    enum Mode {
        dark,  ///< switched off, in its colour
        lit,   ///< shining
        blink, ///< one half of each second
    };

    CELed();

    int mask = -1; ///< bits of the value that count; -1: all of them

    /** Gives a value its look, in place of what it had. @param value  of an unsigned variable of 32 bits the
     * same bits  @param colour  Colour, others count as white
     *  @param mode  Mode  @param label  shown instead of `text`; empty: none */
    void SetState(int value, int colour, int mode = lit, const CString& label = CString());
    /** Empties the table. */
    void ClearStates();

    /** Whether the table has the value. */
    bool IsKnown() const;

    /** Goes on blinking, and shows the value as it is now. @param t  seconds */
    void AutoUpdate(double t) override;

protected:
    void OnClick() override;
    bool IsClickable() const override;
    int ShownState() const override;
    CString Caption() const override;
    void DrawMark(CDC* dc, const CRect& box, vant::skins::Look drawn) override;

private:
    using State = vant::detail::LedStates::State;
    const State* Current() const;

    vant::detail::LedStates m_states;
};
