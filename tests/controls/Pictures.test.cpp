#include "controls/CEBtn.h"
#include "controls/CECb.h"
#include "controls/CECheck.h"
#include "controls/CEEdit.h"
#include "controls/CELabel.h"
#include "controls/CEList.h"
#include "controls/CEText.h"
#include "controls/PictureSheet.h"
#include "resources/Ids.h"

namespace
{

int none = 0, some = 1, all = 3;
double depth = 1234.56;
CString siteName = L"Gypsy 7", noName;
Listener listener;

template <class T>
std::unique_ptr<T> Make(const wchar_t* text)
{
    auto ctrl = std::make_unique<T>();
    ctrl->rc = CRect(0, 0, 140, 20);
    ctrl->Init(text);
    return ctrl;
}

std::unique_ptr<CECheck> Box(const wchar_t* text, int& bits, int mark)
{
    auto box = Make<CECheck>(text);
    box->Init(bits);
    box->aux0 = 3;
    box->mark = mark;
    return box;
}

std::unique_ptr<CELabel> Label(const wchar_t* text, int bar, bool clickable)
{
    auto label = Make<CELabel>(text);
    label->bar = bar;
    if (clickable)
        label->SetCallback(&listener, Listener::Member());
    return label;
}

/** A list with more entries than it shows; blank: with the bar, the selection and no texts. */
std::unique_ptr<CEList> List(bool blank)
{
    auto list = std::make_unique<CEList>();
    list->rc = CRect(0, 0, 140, 64);
    for (const wchar_t* text : {L"Range gate", L"Gypsy survey", L"Backscatter", L"Quality", L"Water column"})
        list->Add(blank ? L"" : text);
    list->Sel(1);
    return list;
}

std::unique_ptr<CEEdit> Field(CString& bound)
{
    auto field = Make<CEEdit>(L"");
    field->Init(bound);
    return field;
}

std::unique_ptr<CEText> ReadOut(int framed, int alarm, UINT align)
{
    auto text = Make<CEText>(L"");
    text->Init(depth);
    text->units = 0;
    text->decimals = 2;
    text->framed = framed;
    text->alarm = alarm;
    text->align = align;
    return text;
}

} // namespace

TEST_F(PicturesTest, EveryStateIsSeenAtEveryScale)
{
    const std::vector<Row> rows = {
        {"button", [] { return Make<CEBtn>(L"Start jig gypsy"); }},
        {"long button", [] { return Make<CEBtn>(L"Start all of the recordings"); }},
        {"latched button",
         [] {
             auto btn = Make<CEBtn>(L"Recording");
             btn->Init(some);
             return btn;
         }},
        {"button with a picture",
         [] {
             auto btn = Make<CEBtn>(L"");
             btn->LoadBitmapW(VANT_IDB_MSGWARN);
             btn->rc = CRect(0, 0, 24, 24);
             return btn;
         },
         true, false},
        {"button with a skin",
         [] {
             auto btn = Make<CEBtn>(L"Route");
             btn->LoadBitmapW(VANT_IDB_MSGBLANKBTN);
             btn->rc.bottom = 24;
             btn->skinLooks = 5;
             return btn;
         }},
        {"clear box", [] { return Box(L"Show gypsy track", none, CECheck::markBox); }},
        {"set box", [] { return Box(L"Show waypoints", all, CECheck::markBox); }},
        {"partly set box", [] { return Box(L"Show layers of all the areas", some, CECheck::markBox); }},
        {"closed branch", [] { return Box(L"Closed", none, CECheck::markBranch); }},
        {"open branch", [] { return Box(L"Open", all, CECheck::markBranch); }},
        {"label", [] { return Label(L"Sonar settings", CELabel::barNone, false); }, false},
        {"clickable label", [] { return Label(L"Sonar settings", CELabel::barNone, true); }},
        {"caption", [] { return Label(L"Sonar settings", CELabel::barCaption, false); }, false},
        {"category", [] { return Label(L"Sonar settings", CELabel::barCategory, true); }},
        {"list", [] { return List(false); }, std::nullopt, true, [] { return List(true); }},
        {"edit field", [] { return Field(siteName); }, std::nullopt, true, [] { return Field(noName); }},
        {"combo box", [] { return Make<CECb>(L"Backscatter, gypsy"); }},
        {"text", [] { return Make<CEText>(L"Depth below keel, gypsy, much longer"); }, false},
        {"value", [] { return ReadOut(0, 0, DT_RIGHT); }, false},
        {"read-out", [] { return ReadOut(1, 0, DT_RIGHT); }, false},
        {"alarm", [] { return ReadOut(1, 1, DT_CENTER); }, false},
    };
    for (const int dpi : {96, 144, 192})
        DrawSheet(rows, dpi, L"controls");
}
