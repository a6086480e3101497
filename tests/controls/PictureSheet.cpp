#include "controls/PictureSheet.h"

#include "controls/CEText.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <iterator>

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

// In the order of the sheets' columns. The rest is the business of the bound variable.
constexpr State states[] = {stNormal, stHot, stFocused, stPressed, stDisabled};

} // namespace

std::vector<std::unique_ptr<Canvas>> PicturesTest::DrawStates(CECtrl& ctrl, bool blank)
{
    CRect whole; // an edit field's frame is outside its client area
    ctrl.GetWindowRect(&whole);
    const CEVal bound = ctrl;
    if (blank) {
        ctrl.text.Empty();
        if (dynamic_cast<CEText*>(&ctrl))
            ctrl.Init(L"");
    }
    std::vector<std::unique_ptr<Canvas>> drawn;
    for (const State state : states) {
        Pose(ctrl, state, parent);
        drawn.push_back(std::make_unique<Canvas>(whole.Width(), whole.Height()));
        DrawTo(ctrl, *drawn.back());
    }
    static_cast<CEVal&>(ctrl) = bound;
    return drawn;
}

void PicturesTest::Check(const Row& row, int dpi, CECtrl& ctrl,
                         const std::vector<std::unique_ptr<Canvas>>& drawn)
{
    std::vector<std::unique_ptr<Canvas>> blanks;
    if (row.captioned && row.makeBlank) {
        const auto blank = row.makeBlank();
        Open(*blank, dpi);
        blanks = DrawStates(*blank, false);
    } else if (row.captioned) {
        blanks = DrawStates(ctrl, true);
    }
    for (std::size_t state = 0; state < drawn.size(); ++state) {
        // The tip of a g may touch the frame.
        if (row.captioned) {
            EXPECT_GE(ReadableShare(*blanks[state], *drawn[state]), 0.97) << row.what << " " << state;
        }
        for (std::size_t other = 0; row.looks && other < state; ++other)
            EXPECT_EQ(drawn[other]->SameAs(*drawn[state]), !*row.looks && states[state] != stDisabled)
                << row.what << " " << other << " " << state << " at " << dpi;
    }
}

void PicturesTest::DrawSheet(const std::vector<Row>& rows, int dpi, const std::wstring& name)
{
    constexpr int column = 150; // units
    constexpr int edge = 6;
    constexpr int between = 8;
    const CDpi scale(dpi);
    std::vector<std::unique_ptr<CECtrl>> ctrls;
    int height = edge;
    for (const Row& row : rows) {
        ctrls.push_back(row.make());
        height += ctrls.back()->rc.Height() + between;
    }
    Canvas sheet(scale.ToPx(column * static_cast<int>(std::size(states)) + 10), scale.ToPx(height));
    sheet.Fill(Vant::back);
    int y = edge;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        CECtrl& ctrl = *ctrls[i];
        Open(ctrl, dpi);
        const auto drawn = DrawStates(ctrl, false);
        for (std::size_t state = 0; state < drawn.size(); ++state)
            drawn[state]->CopyTo(sheet, scale.ToPx(edge + static_cast<int>(state) * column), scale.ToPx(y));
        Check(rows[i], dpi, ctrl, drawn);
        y += ctrl.rc.Height() + between;
    }
    if (const wchar_t* dir = ::_wgetenv(L"VANT_PICTURES"))
        sheet.Save(std::filesystem::path(dir) / (name + L"-" + std::to_wstring(dpi) + L".png"));
}
