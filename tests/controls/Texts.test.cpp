#include "controls/CEBtn.h"
#include "controls/CELabel.h"
#include "controls/CEText.h"
#include "controls/ControlsTest.h"

namespace
{

constexpr COLORREF ink = RGB(255, 255, 255);

/** Draws texts in white on a canvas of 200 x 20. */
class TextsTest : public ControlsTest
{
protected:
    /** Where the ink is. */
    CRect Drawn(CECtrl& ctrl)
    {
        if (!ctrl.m_hWnd) {
            ctrl.rc = CRect(0, 0, 200, 20);
            Open(ctrl);
        }
        ctrl.style.txtCol = ink;
        DrawTo(ctrl, canvas);
        return canvas.Bounds(ink);
    }
    Canvas canvas{200, 20};
};

} // namespace

TEST_F(TextsTest, AreAlignedAndCentredInHeight)
{
    CEText text;
    text.Init(L"HHH");
    const CRect left = Drawn(text);
    EXPECT_LE(left.left, 3);
    EXPECT_LE(std::abs((left.top + left.bottom) / 2 - 10), 2);
    text.align = DT_RIGHT;
    const CRect right = Drawn(text);
    EXPECT_GE(right.right, 195);
    EXPECT_EQ(right.Width(), left.Width());
    text.align = DT_CENTER;
    const CRect centre = Drawn(text);
    EXPECT_NEAR((centre.left + centre.right) / 2, 100, 2);
}

TEST_F(TextsTest, ShowTheBoundValueWithItsUnit)
{
    double depth = 12.25;
    CEText text;
    text.Init(depth);
    text.units = 0;
    text.decimals = 1;
    EXPECT_EQ(Text(text.GetText(1)).back(), L'm');
    const CRect before = Drawn(text);
    depth = 1234.5;
    EXPECT_GT(Drawn(text).Width(), before.Width());

    text.SetWindowText(L"7");
    text.Retreive();
    EXPECT_EQ(depth, 1234.5) << "it is shown, not typed";
}

TEST_F(TextsTest, AnEllipsisEndsWhatDoesNotFit)
{
    CEText text;
    text.framed = 1;
    text.Init(L"HHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHH");
    const CRect cut = Drawn(text);
    EXPECT_LE(cut.right, 195);
    EXPECT_GE(cut.right, 160);
    // The dots are at the foot of the line.
    int columnsWithoutStems = 0;
    for (int x = cut.right - 8; x < cut.right; ++x)
        columnsWithoutStems += canvas.At(x, (cut.top + cut.bottom) / 2) != 0xFFFFFF ? 1 : 0;
    EXPECT_GE(columnsWithoutStems, 7);

    CEText amp;
    amp.Init(L"&&");
    const int two = Drawn(amp).Width();
    amp.Init(L"&");
    EXPECT_LT(Drawn(amp).Width(), two) << "ampersands are no marks of keys";
}

TEST_F(TextsTest, LabelsAreBoldUnlessTheStyleSaysOtherwise)
{
    CELabel label;
    label.Init(L"HHH");
    const CRect bold = Drawn(label);
    label.style.pFont = &Vant::headF;
    EXPECT_GT(Drawn(label).Height(), bold.Height());
    EXPECT_EQ(label.ctrlType, 32);
}

TEST_F(TextsTest, DrawWithoutSkins)
{
    const HDC skin = Vant::grad1.Detach();
    const HDC frame = Vant::txt.Detach();
    CEBtn btn;
    btn.Init(L"HHH");
    EXPECT_FALSE(Drawn(btn).IsRectEmpty());
    EXPECT_EQ(canvas.Bounds(Vant::blue), CRect(0, 0, 200, 20)) << "an outline instead of the face";
    CEText text;
    text.framed = 1;
    text.Init(L"HHH");
    EXPECT_FALSE(Drawn(text).IsRectEmpty());
    Vant::grad1.Attach(skin);
    Vant::txt.Attach(frame);
}

TEST_F(TextsTest, DisabledTextIsGrey)
{
    CEText text;
    text.Init(L"HHH");
    text.state = CECtrl::stShown;
    EXPECT_TRUE(Drawn(text).IsRectEmpty());
    EXPECT_FALSE(canvas.Bounds(RGB(166, 166, 166)).IsRectEmpty());
}
