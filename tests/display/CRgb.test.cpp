#include "display/CRgb.h"

#include "display/CRgbf.h"
#include "settings/CESet.h"
#include "settings/CESetCol.h"
#include "settings/CESetObj.h"

#include <gtest/gtest.h>

#include <limits>
#include <ostream>
#include <string>

void PrintTo(const CRgb& c, std::ostream* out)
{
    *out << int{c.red} << ", " << int{c.green} << ", " << int{c.blue} << ", " << int{c.alpha};
}

namespace
{

static_assert(sizeof(CRgb) == 4 && sizeof(CRgbf) == 16); // OpenGL takes them as arrays

TEST(CRgbTest, TakesAColourrefAndLeavesAlpha)
{
    EXPECT_EQ(CRgb(), CRgb(255, 255, 255, 255));
    CRgb colour(1, 2, 3, 77);
    colour = 0xFF332211UL;
    EXPECT_EQ(colour, CRgb(0x11, 0x22, 0x33, 77));
    colour.SetCol(RGB(9, 8, 7));
    EXPECT_EQ(colour, CRgb(9, 8, 7, 77));
    colour.Zero();
    EXPECT_EQ(colour, CRgb(0, 0, 0, 0));
}

TEST(CRgbTest, MixesBlueByAFormulaOfItsOwn)
{
    EXPECT_EQ(CRgb(200, 100, 100) + CRgb(100, 50, 50), CRgb(150, 75, 125, 255));
    EXPECT_EQ(CRgb(255, 1, 200, 3) + CRgb(255, 0, 201, 4), CRgb(255, 0, (200 + 100) & 0xFF, 255));
    CRgb mixed(200, 100, 100, 9);
    mixed += CRgb(100, 50, 50);
    EXPECT_EQ(mixed, CRgb(150, 75, 125, 255));
}

TEST(CRgbTest, ScalesWithinAByte)
{
    const CRgb colour(100, 200, 3, 17);
    EXPECT_EQ(colour * 1.5, CRgb(150, 255, 4, 255));
    EXPECT_EQ(colour / 2, CRgb(50, 100, 1, 255));
    EXPECT_EQ(colour / 0.5, CRgb(200, 255, 6, 255));
    EXPECT_EQ(colour * -2, CRgb(0, 0, 0, 255));
    EXPECT_EQ(CRgb(100, 0, 3) / -2, CRgb(255, 0, 255, 255));
    EXPECT_EQ(CRgb(100, 0, 3) / -0.0, CRgb(255, 0, 255, 255));
    const double infinite = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(colour * infinite, CRgb(255, 255, 255, 255));
    EXPECT_EQ(CRgb(0, 1, 2) * infinite, CRgb(0, 255, 255, 255));
    EXPECT_EQ(colour / infinite, CRgb(0, 0, 0, 255));
    EXPECT_EQ(colour * nan, CRgb(0, 0, 0, 255));
    CRgb inPlace = colour;
    inPlace *= 2;
    inPlace /= 4;
    EXPECT_EQ(inPlace, CRgb(50, 63, 1, 255));
}

TEST(CRgbTest, IsStoredWithALiteralEndAndLoadedFromThreeNumbers)
{
    CESet saving(1);
    CESetObj* const to = saving.AddCol(L"Colours")->AddObj(L"A", L"");
    CRgb(1, 20, 255, 4).Settings(L"Key", *to);
    CString text;
    ASSERT_EQ(to->GetItm(L"Key", text), 1);
    EXPECT_STREQ(text.GetString(), L"1, 20, 255, &d");

    const struct {
        const wchar_t* text;
        CRgb loaded;
    } cases[] = {
        {L"1, 20, 255, &d", CRgb(1, 20, 255, 40)}, {L"1,2,3", CRgb(1, 2, 3, 40)},
        {L" 1,  2, 3 x", CRgb(1, 2, 3, 40)},       {L"1, 2", CRgb(10, 20, 30, 40)},
        {L"1, 2, &d", CRgb(10, 20, 30, 40)},       {L"1 , 2, 3", CRgb(10, 20, 30, 40)},
        {L"blue", CRgb(10, 20, 30, 40)},           {L"257, -1, 2", CRgb(1, 255, 2, 40)},
    };
    for (const auto& c : cases) {
        CESet loading(0);
        CESetObj* const from = loading.AddCol(L"Colours")->AddObj(L"A", L"");
        from->Add(L"Key", c.text);
        CRgb colour(10, 20, 30, 40);
        colour.Settings(L"Key", *from);
        EXPECT_EQ(colour, c.loaded) << testing::PrintToString(std::wstring(c.text));
        colour.Settings(L"Other", *from);
        EXPECT_EQ(colour, c.loaded);
    }
}

TEST(CRgbTest, SurvivesAnArchive)
{
    CMemFile file;
    {
        CArchive ar(&file, CArchive::store);
        CRgb(1, 2, 3, 4).Serialize(ar);
        CRgbf(0.25F, 0.5F, 0.75F, 2).Serialize(ar);
    }
    EXPECT_EQ(file.GetLength(), 4u + 16u);
    file.SeekToBegin();
    CArchive ar(&file, CArchive::load);
    CRgb colour;
    CRgbf floats;
    EXPECT_EQ(floats, CRgbf(1, 1, 1, 1));
    colour.Serialize(ar);
    floats.Serialize(ar);
    EXPECT_EQ(colour, CRgb(1, 2, 3, 4));
    EXPECT_EQ(floats, CRgbf(0.25F, 0.5F, 0.75F, 2));
}

} // namespace
