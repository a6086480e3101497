#include "controls/CEBtn.h"
#include "controls/CECb.h"
#include "controls/CECheck.h"
#include "controls/CELabel.h"
#include "controls/CEText.h"
#include "controls/ControlsTest.h"
#include "resources/Ids.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <memory>

namespace
{

/** Relative luminance of a colour 0xRRGGBB, from 0 for black to 1 for white, as contrasts are defined by. */
double Luminance(std::uint32_t colour)
{
    const auto linear = [colour](int shift) {
        const double c = ((colour >> shift) & 0xFF) / 255.0;
        return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(16) + 0.7152 * linear(8) + 0.0722 * linear(0);
}

double Contrast(std::uint32_t a, std::uint32_t b)
{
    const double first = Luminance(a);
    const double second = Luminance(b);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

/** How much of the text, the brightest colour that it adds to a picture, is in contrast with what is behind
 * it: 1 for all of it. */
double ReadableShare(const Canvas& blank, const Canvas& written)
{
    constexpr double readable = 4.5;
    std::uint32_t ink = 0;
    for (int y = 0; y < blank.Height(); ++y)
        for (int x = 0; x < blank.Width(); ++x)
            if (written.At(x, y) != blank.At(x, y) && Luminance(written.At(x, y)) > Luminance(ink))
                ink = written.At(x, y);
    int pixels = 0;
    int good = 0;
    for (int y = 0; y < blank.Height(); ++y) {
        for (int x = 0; x < blank.Width(); ++x) {
            if (written.At(x, y) != ink || blank.At(x, y) == ink)
                continue;
            ++pixels;
            good += Contrast(ink, blank.At(x, y)) >= readable ? 1 : 0;
        }
    }
    return pixels ? static_cast<double>(good) / pixels : 0.0;
}

/** The controls in every state. With VANT_PICTURES naming a directory the sheets are saved there as PNG
 * files, to be looked at. */
class PicturesTest : public ControlsTest
{
protected:
    enum State { Normal, Hover, Pressed, Focused, Disabled, States };

    void Bring(CECtrl& ctrl, int state)
    {
        ctrl.state = state == Disabled ? CECtrl::stShown : CECtrl::stShown | CECtrl::stEnabled;
        ctrl.look = state == Hover     ? int{CECtrl::lookHover}
                    : state == Pressed ? CECtrl::lookHover | CECtrl::lookPressed
                                       : 0;
        if (state == Focused)
            ctrl.SetFocus();
        else
            parent.SetFocus();
    }

    struct Row {
        const char* what;
        std::function<std::unique_ptr<CECtrl>()> make;
        bool looks = true;     ///< whether it differs with the mouse and the focus
        bool captioned = true; ///< whether it has a text
    };

    /** The control without its text. */
    static std::unique_ptr<Canvas> Blank(CECtrl& ctrl)
    {
        CRect client;
        ctrl.GetClientRect(&client);
        auto canvas = std::make_unique<Canvas>(client.Width(), client.Height());
        const CEVal bound = ctrl;
        ctrl.text.Empty();
        if (ctrl.type == 9)
            ctrl.Init(L"");
        DrawTo(ctrl, *canvas);
        static_cast<CEVal&>(ctrl) = bound;
        return canvas;
    }

    void DrawSheet(const std::vector<Row>& rows, int dpi)
    {
        const CDpi scale(dpi);
        const int width = scale.ToPx(150);
        const int height = scale.ToPx(28);
        Canvas sheet(width * States + scale.ToPx(10),
                     height * static_cast<int>(rows.size()) + scale.ToPx(10));
        sheet.Fill(Vant::back);
        int y = scale.ToPx(6);
        for (const Row& row : rows) {
            const auto ctrl = row.make();
            Open(*ctrl, dpi);
            CRect client;
            ctrl->GetClientRect(&client);
            std::vector<std::unique_ptr<Canvas>> drawn;
            for (int state = 0; state < States; ++state) {
                Bring(*ctrl, state);
                drawn.push_back(std::make_unique<Canvas>(client.Width(), client.Height()));
                DrawTo(*ctrl, *drawn.back());
                // The tip of a g may touch the frame.
                if (row.captioned) {
                    EXPECT_GE(ReadableShare(*Blank(*ctrl), *drawn.back()), 0.97) << row.what << " " << state;
                }
                drawn.back()->CopyTo(sheet, scale.ToPx(6) + state * width, y);
                for (int other = 0; other < state; ++other)
                    EXPECT_EQ(drawn[static_cast<std::size_t>(other)]->SameAs(*drawn.back()),
                              !row.looks && state != Disabled)
                        << row.what << " " << other << " " << state << " at " << dpi;
            }
            y += height;
        }
        if (const wchar_t* dir = ::_wgetenv(L"VANT_PICTURES"))
            sheet.Save(std::filesystem::path(dir) / (L"controls-" + std::to_wstring(dpi) + L".png"));
    }
};

int none = 0, some = 1, all = 3;
double depth = 1234.56;
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
        {"combo box", [] { return Make<CECb>(L"Backscatter, gypsy"); }},
        {"text", [] { return Make<CEText>(L"Depth below keel, gypsy, much longer"); }, false},
        {"value", [] { return ReadOut(0, 0, DT_RIGHT); }, false},
        {"read-out", [] { return ReadOut(1, 0, DT_RIGHT); }, false},
        {"alarm", [] { return ReadOut(1, 1, DT_CENTER); }, false},
    };
    for (const int dpi : {96, 144, 192})
        DrawSheet(rows, dpi);
}
