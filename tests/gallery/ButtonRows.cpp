// What is clicked: buttons, boxes, lamps.
#include "Rows.h"

namespace
{

/** A push button. */
CECtrl* Button(CCtrlCat& cat, int width, State)
{
    return cat.InsBtn(width, L"Start", 0, &counter, CCounter::Member());
}

/** A button that is bound to an integer latches. */
CECtrl* LatchedButton(CCtrlCat& cat, int width, State state)
{
    static PerState<int> recording(1, 1);
    CECtrl* const button = cat.InsCtrl(width, CECtrl::typeBtn, recording[state]);
    button->text = L"Record";
    return button;
}

/** A check box of one bit. */
CECtrl* Check(CCtrlCat& cat, int width, State state)
{
    static PerState<int> tracks(1, 1);
    CECtrl* const box = cat.InsCtrl(width, CECtrl::typeCheck, tracks[state]);
    box->text = L"Tracks";
    box->SetCallback(&counter, CCounter::Member());
    return box;
}

/** A check box of three bits, of which one is set. */
CECtrl* PartlySetCheck(CCtrlCat& cat, int width, State state)
{
    static PerState<int> layers(2, 2);
    CECtrl* const box = cat.InsCtrl(width, CECtrl::typeCheck, layers[state]);
    box->text = L"All layers";
    box->aux0 = 7;
    return box;
}

/** Radio buttons are a group because they are bound to one variable. Each has a value of its own. */
CECtrl* Radio(CCtrlCat& cat, int width, State state, const wchar_t* text, int value)
{
    constexpr int neither = 9;
    static PerState<int> orientation(0, neither);
    CECtrl* const radio = cat.InsCtrl(width, CECtrl::typeRadio, orientation[state]);
    radio->text = text;
    radio->aux0 = value;
    radio->SetCallback(&counter, CCounter::Member());
    return radio;
}

CECtrl* FirstRadio(CCtrlCat& cat, int width, State state)
{
    return Radio(cat, width, state, L"North up", 0);
}

CECtrl* SecondRadio(CCtrlCat& cat, int width, State state)
{
    return Radio(cat, width, state, L"Heading up", 1);
}

/** A button for what takes time. Nobody ends this attempt, so it times out. */
CECtrl* Attempt(CCtrlCat& cat, int width, State state)
{
    static PerState<int> phases(CEAttempt::idle, CEAttempt::failed);
    auto* const attempt = static_cast<CEAttempt*>(cat.InsCtrl(width, CECtrl::typeAttempt, phases[state]));
    attempt->text = L"Connect";
    attempt->pendingText = L"Connecting";
    attempt->timeOut = 3;
    attempt->SetCallback(&counter, CCounter::Member());
    return attempt;
}

/** A lamp with a callback, which makes it one to click. A value that it does not know has a look of its own.
 */
CECtrl* Led(CCtrlCat& cat, int width, State state)
{
    constexpr int green = 1;
    constexpr int unknown = 77;
    static PerState<int> fix(green, unknown);
    CECtrl* const led = cat.InsCtrl(width, CECtrl::typeLed, fix[state]);
    led->text = L"RTK fixed";
    led->SetCallback(&counter, CCounter::Member());
    return led;
}

} // namespace

Section ButtonRows()
{
    constexpr int lineH = 20;
    constexpr int buttonH = 24;
    return {L"Buttons, boxes, lamps",
            stateCount,
            {{L"CEBtn", CECtrl::typeBtn, buttonH, pressable, Button},
             {L"CEBtn, latched", CECtrl::typeBtn, buttonH, pressable, LatchedButton},
             {L"CECheck", CECtrl::typeCheck, lineH, pressable, Check},
             {L"CECheck, partly", CECtrl::typeCheck, lineH, pressable, PartlySetCheck},
             {L"CERadio", CECtrl::typeRadio, lineH, pressable | Has(stInvalid), FirstRadio},
             {L"CERadio", CECtrl::typeRadio, lineH, pressable | Has(stInvalid), SecondRadio},
             {L"CEAttempt", CECtrl::typeAttempt, buttonH, pressable | Has(stInvalid), Attempt},
             {L"CELed", CECtrl::typeLed, lineH, pressable | Has(stInvalid), Led}}};
}
