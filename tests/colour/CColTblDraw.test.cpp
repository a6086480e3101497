#include "colour/ColourTest.h"
#include "controls/ControlsTest.h"

namespace
{

constexpr std::uint32_t untouched = 0x123456;

class StripTest : public ControlsTest
{
protected:
    StripTest()
    {
        canvas.Fill(RGB(0x12, 0x34, 0x56));
        SetEntries(four, {red, green, blue, white});
    }

    std::uint32_t Across(int x) const { return canvas.At(x, 15); }
    std::uint32_t Down(int y) const { return canvas.At(15, y); }

    Canvas canvas{200, 200};
    CColTbl four;
};

TEST_F(StripTest, BandsStartAtThirdsOfFourEntriesAndOverlapByOne)
{
    four.DrawH(CRect(10, 10, 110, 20), &canvas.Dc(), 0);
    // Starts 10, 43, 76, 110; widths 26. The last band is beyond the rectangle, deliberately.
    EXPECT_EQ(Across(9), untouched);
    EXPECT_EQ(Across(10), Pixel(red));
    EXPECT_EQ(Across(35), Pixel(red));
    EXPECT_EQ(Across(36), untouched);
    EXPECT_EQ(Across(43), Pixel(green));
    EXPECT_EQ(Across(68), Pixel(green));
    EXPECT_EQ(Across(135), Pixel(white));
    EXPECT_EQ(Across(136), untouched);
    EXPECT_EQ(canvas.At(10, 9), untouched);
    EXPECT_EQ(canvas.At(10, 19), Pixel(red));
    EXPECT_EQ(canvas.At(10, 20), untouched);
}

TEST_F(StripTest, EitherFlagTurnsAStripAndBothDoNot)
{
    const struct {
        int flag;
        int argument;
        CRgb left;
    } cases[] = {{0, 0, red}, {1, 0, white}, {0, 2, white}, {4, 1, red}};
    for (const auto& c : cases) {
        four.reversed = c.flag;
        four.DrawH(CRect(10, 10, 110, 20), &canvas.Dc(), c.argument);
        EXPECT_EQ(Across(10), Pixel(c.left)) << c.flag << c.argument;
        four.DrawV(CRect(10, 10, 20, 110), &canvas.Dc(), c.argument);
        EXPECT_EQ(Down(110), Pixel(c.left)) << "upright, from the bottom " << c.flag << c.argument;
    }
}

TEST_F(StripTest, MoreEntriesThanPixelsOneEntryAndNone)
{
    CColTbl tbl;
    SetEntries(tbl, std::vector<CRgb>(65'536, green));
    *tbl.cols[0] = red;
    *tbl.cols[65'535] = blue;
    tbl.DrawH(CRect(0, 10, 50, 20), &canvas.Dc(), 0);
    EXPECT_EQ(Across(0), Pixel(green)); // painted over by what shares the pixel
    EXPECT_EQ(Across(49), Pixel(green));
    EXPECT_EQ(Across(50), Pixel(blue));
    EXPECT_EQ(Across(51), Pixel(blue));
    EXPECT_EQ(Across(52), untouched);

    SetEntries(tbl, {red});
    tbl.DrawH(CRect(60, 10, 80, 20), &canvas.Dc(), 1);
    EXPECT_EQ(Across(60), Pixel(red));
    EXPECT_EQ(Across(80), Pixel(red));
    EXPECT_EQ(Across(81), untouched);

    SetEntries(tbl, {});
    canvas.Fill(RGB(0x12, 0x34, 0x56));
    tbl.DrawH(CRect(10, 10, 110, 20), &canvas.Dc(), 0);
    EXPECT_EQ(canvas.Bounds(Vant::blue), CRect(10, 10, 110, 20));
    EXPECT_EQ(Across(50), 0u);
    tbl.DrawV(CRect(10, 30, 20, 90), &canvas.Dc(), 0);
    EXPECT_EQ(canvas.Bounds(Vant::blue), CRect(10, 10, 110, 90));

    // A rectangle without room is no reason to fail.
    four.DrawH(CRect(10, 10, 10, 20), &canvas.Dc(), 0);
    four.DrawV(CRect(10, 20, 20, 5), &canvas.Dc(), 0);
}

} // namespace
