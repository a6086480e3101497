// What is read and typed: texts, labels, fields, combo boxes.
#include "Rows.h"

namespace
{

constexpr double noData = -32768.0;

/** A read-out. The unit follows EUnits::system; without data it says so. */
CECtrl* Text(CCtrlCat& cat, int width, State state)
{
    static PerState<double> depths(12.4, noData);
    auto* const text = static_cast<CEText*>(cat.InsCtrl(width, CECtrl::typeText, depths[state]));
    text->units = 0;
    text->decimals = 1;
    text->framed = 1;
    text->align = DT_RIGHT;
    text->tip = L"Depth below the transducer";
    return text;
}

/** A label with a callback, which makes it one to click. */
CECtrl* Label(CCtrlCat& cat, int width, State)
{
    CECtrl* const label = cat.NewCtrl(width, CECtrl::typeLabel);
    label->Init(L"Sonar head");
    label->SetCallback(&counter, CCounter::Member());
    return label;
}

/** A field that takes numbers of a range, and turns blue while it holds another text. */
CECtrl* Edit(CCtrlCat& cat, int width, State state)
{
    static PerState<double> limits(14.5, 14.5);
    CECtrl* const edit = cat.InsCtrl(width, CECtrl::typeEdit, limits[state]);
    edit->SetRange(0, 200);
    edit->decimals = 1;
    edit->tip = L"Shallow water below; 0 to 200";
    edit->SetCallback(&counter, CCounter::Member());
    return edit;
}

void SpoilEdit(CECtrl& edit)
{
    edit.SetWindowText(L"300");
}

/** A combo box. One whose variable names none of its entries shows the number. */
CECtrl* Combo(CCtrlCat& cat, int width, State state)
{
    static PerState<int> frequencies(400, 455);
    auto* const box = static_cast<CECb*>(cat.InsCtrl(width, CECtrl::typeCb, frequencies[state]));
    for (const int frequency : {200, 300, 400, 700}) {
        CString text;
        text.Format(L"%d kHz", frequency);
        box->Add(text, frequency);
    }
    box->SetCallback(&counter, CCounter::Member());
    return box;
}

} // namespace

Section FieldRows()
{
    constexpr int lineH = 20;
    return {L"Texts and fields",
            stateCount,
            {{L"CEText", CECtrl::typeText, lineH, shownOnly | Has(stInvalid), Text},
             {L"CELabel", CECtrl::typeLabel, lineH, pressable, Label},
             {L"CEEdit", CECtrl::typeEdit, lineH, operated | Has(stInvalid), Edit, SpoilEdit},
             {L"CECb", CECtrl::typeCb, lineH, pressable | Has(stInvalid), Combo}}};
}
