#include "core/CAoi.h"

#include <limits>
#include <vector>

#include <gmock/gmock.h>

#include "settings/CESet.h"
#include "settings/CESetCol.h"
#include "settings/CESetObj.h"

using testing::ElementsAre;

namespace
{

std::vector<double> Bounds(const CAoi& area)
{
    return {area.left, area.top, area.right, area.bottom};
}

std::vector<double> Derived(const CAoi& area)
{
    return {area.width, area.height, area.cx, area.cy};
}

std::vector<double> Coordinates(const CV3& pt)
{
    return {pt.x, pt.y, pt.z};
}

CString Stored(CAoi area)
{
    CESet set(1);
    CESetObj* const obj = set.AddCol(L"col")->AddObj(L"obj", L"type");
    area.Settings(L"area", *obj);
    CString text;
    EXPECT_EQ(obj->GetItm(L"area", text), 1);
    return text;
}

CAoi Loaded(CAoi area, LPCWSTR text)
{
    CESet set(0);
    CESetObj* const obj = set.AddCol(L"col")->AddObj(L"obj", L"type");
    if (text) {
        obj->Add(L"area", text);
    }
    area.Settings(L"area", *obj);
    return area;
}

} // namespace

TEST(CAoi, StartsAndResetsToZero)
{
    CAoi area;
    EXPECT_THAT(Bounds(area), ElementsAre(0, 0, 0, 0));
    area = CAoi(1, 2, 3, 6);
    EXPECT_THAT(Bounds(area), ElementsAre(1, 2, 3, 6));
    EXPECT_THAT(Derived(area), ElementsAre(2, 4, 2, 4));
    area.Reset();
    EXPECT_THAT(Bounds(area), ElementsAre(0, 0, 0, 0));
    EXPECT_THAT(Derived(area), ElementsAre(0, 0, 0, 0));
}

TEST(CAoi, EqualityLooksAtTheBoundsOnly)
{
    const CAoi area(1, 2, 3, 4);
    CAoi other = area;
    other.cx = 99.0;
    EXPECT_EQ(area == other, 1);
    for (double CAoi::*bound : {&CAoi::left, &CAoi::top, &CAoi::right, &CAoi::bottom}) {
        other = area;
        other.*bound += 1e-12;
        EXPECT_EQ(area == other, 0);
        EXPECT_EQ(area != other, 1);
    }
}

TEST(CAoi, UnionOfTwoAreas)
{
    CAoi area(1, 2, 3, 4);
    area += CAoi(-1, 3, 2, 8);
    EXPECT_THAT(Bounds(area), ElementsAre(-1, 2, 3, 8));
    EXPECT_THAT(Derived(area), ElementsAre(4, 6, 1, 5));
}

TEST(CAoi, FirstPointAfterResetGrowsFromTheOrigin)
{
    CAoi area(7, 7, 8, 8);
    area.Reset();
    area.AddPt(5, 5, 1);
    EXPECT_THAT(Bounds(area), ElementsAre(0, 0, 5, 5));
    EXPECT_THAT(Derived(area), ElementsAre(5, 5, 2.5, 2.5));
    area.AddPt(CV3(-1, 9, 100), 1);
    EXPECT_THAT(Bounds(area), ElementsAre(-1, 0, 5, 9));
}

TEST(CAoi, PointsAddedWithoutUpdateLeaveDerivedValuesStale)
{
    CAoi area(0, 0, 2, 2);
    area.AddPt(10, -4, 0);
    EXPECT_THAT(Bounds(area), ElementsAre(0, -4, 10, 2));
    EXPECT_THAT(Derived(area), ElementsAre(2, 2, 1, 1));
    area.CalcCentre();
    EXPECT_THAT(Derived(area), ElementsAre(10, 6, 5, -1));
}

TEST(CAoi, PointsThatAreNoNumbersDoNotCount)
{
    CAoi area(0, 0, 2, 2);
    const double none = std::numeric_limits<double>::quiet_NaN();
    area.AddPt(none, none, 1);
    EXPECT_THAT(Bounds(area), ElementsAre(0, 0, 2, 2));
}

TEST(CAoi, SizeAndCentreMoveTheBounds)
{
    CAoi area(0, 0, 2, 4);
    area.SetWidth(4, 2);
    EXPECT_THAT(Bounds(area), ElementsAre(-1, 1, 3, 3));
    area.SetCentre(10, 20);
    EXPECT_THAT(Bounds(area), ElementsAre(8, 19, 12, 21));
    area.SetCentre(CV3(0, 0, 5));
    EXPECT_THAT(Bounds(area), ElementsAre(-2, -1, 2, 1));
    area.width = 8;
    area.cx = 1;
    area.CalcExt();
    EXPECT_THAT(Bounds(area), ElementsAre(-3, -1, 5, 1));
}

TEST(CAoi, CornersMoveOneByOne)
{
    CAoi area(0, 0, 4, 4);
    area.SetTL(CV3(1, 1, 0));
    EXPECT_THAT(Bounds(area), ElementsAre(1, 1, 4, 4));
    area.SetTR(6, 2);
    EXPECT_THAT(Bounds(area), ElementsAre(1, 2, 6, 4));
    area.SetBL(-1, 8);
    EXPECT_THAT(Bounds(area), ElementsAre(-1, 2, 6, 8));
    area.SetBR(CV3(9, 10, 0));
    EXPECT_THAT(Bounds(area), ElementsAre(-1, 2, 9, 10));
    EXPECT_THAT(Derived(area), ElementsAre(10, 8, 4, 6));

    EXPECT_THAT(Coordinates(area.TL()), ElementsAre(-1, 2, 0));
    EXPECT_THAT(Coordinates(area.TR()), ElementsAre(9, 2, 0));
    EXPECT_THAT(Coordinates(area.BL()), ElementsAre(-1, 10, 0));
    EXPECT_THAT(Coordinates(area.BR()), ElementsAre(9, 10, 0));
    EXPECT_THAT(Coordinates(area.Centre()), ElementsAre(4, 6, 0));
}

TEST(CAoi, ScaleOffsetAndBorders)
{
    CAoi area(0, 0, 2, 2);
    area.Scale(2, 2);
    EXPECT_THAT(Bounds(area), ElementsAre(-1, -1, 3, 3));
    area.Offset(1, 2);
    EXPECT_THAT(Bounds(area), ElementsAre(0, 1, 4, 5));
    EXPECT_THAT(Derived(area), ElementsAre(4, 4, 2, 3));
    area.Brdr(1);
    EXPECT_THAT(Bounds(area), ElementsAre(-1, 0, 5, 6));
    area.Brdr(1, 2);
    EXPECT_THAT(Bounds(area), ElementsAre(-2, -2, 6, 8));
    area.Brdr(1, 2, 3, 4);
    EXPECT_THAT(Bounds(area), ElementsAre(-3, -4, 9, 12));
    EXPECT_THAT(Derived(area), ElementsAre(12, 16, 3, 4));
    area.Brdr(-7, 0);
    EXPECT_THAT(Bounds(area), ElementsAre(4, -4, 2, 12)); // inside out
    EXPECT_EQ(area.width, -2.0);
}

TEST(CAoi, InsideIncludesTheEdgesAndTheBorderHasNoTolerance)
{
    const CAoi area(1, 2, 3, 4);
    EXPECT_TRUE(area.Inside(1, 2));
    EXPECT_TRUE(area.Inside(CV3(3, 4, 9)));
    EXPECT_FALSE(area.Inside(3.0000001, 4));
    EXPECT_FALSE(area.Inside(2, 1.9999999));

    EXPECT_TRUE(area.OnBrdr(1, 3));
    EXPECT_TRUE(area.OnBrdr(CV3(2, 4, 9)));
    EXPECT_TRUE(area.OnBrdr(3, 2));
    EXPECT_FALSE(area.OnBrdr(1 + 1e-12, 3));
    EXPECT_FALSE(area.OnBrdr(1, 4.5)); // on the edge's line, beyond its end
    EXPECT_FALSE(area.OnBrdr(2, 3));
}

TEST(CAoi, ArchiveHoldsThePairOfXFirst)
{
    CMemFile file;
    CAoi area(1, 2, 3, 4);
    {
        CArchive ar(&file, CArchive::store);
        area.Serialize(ar);
    }
    EXPECT_EQ(file.GetLength(), 4 * sizeof(double));
    file.SeekToBegin();
    std::vector<double> stored(4);
    file.Read(stored.data(), 4 * sizeof(double));
    EXPECT_THAT(stored, ElementsAre(1, 3, 2, 4));

    file.SeekToBegin();
    CArchive ar(&file, CArchive::load);
    CAoi loaded(9, 9, 9, 9);
    loaded.Serialize(ar);
    EXPECT_THAT(Bounds(loaded), ElementsAre(1, 2, 3, 4));
    EXPECT_THAT(Derived(loaded), ElementsAre(2, 2, 2, 3));
}

TEST(CAoi, SettingsHoldTheFieldsInTheirOrder)
{
    EXPECT_EQ(Stored(CAoi(1, 2, 3, 4)), L"1, 2, 3, 4");
    EXPECT_EQ(Stored(CAoi(-0.5, 1e-7, 1234567, 1.0 / 3.0)), L"-0.5, 1e-07, 1.23457e+06, 0.333333");
}

TEST(CAoi, LoadingSettingsLeavesTheDerivedValues)
{
    CAoi area = Loaded(CAoi(0, 0, 2, 2), L"1, 2.5,  3,4 and more");
    EXPECT_THAT(Bounds(area), ElementsAre(1, 2.5, 3, 4));
    EXPECT_THAT(Derived(area), ElementsAre(2, 2, 1, 1));
    area.CalcCentre();
    EXPECT_THAT(Derived(area), ElementsAre(2, 1.5, 2, 3.25));
}

TEST(CAoi, SettingsWithoutFourNumbersLeaveTheArea)
{
    const CAoi before(5, 6, 7, 8);
    for (const LPCWSTR text : {L"1, 2, 3", L"1 2 3 4", L"", L"1, 2, x, 4", static_cast<LPCWSTR>(nullptr)}) {
        EXPECT_EQ(Loaded(before, text) == before, 1);
    }
}
