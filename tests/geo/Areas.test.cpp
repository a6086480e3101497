// Areas and waypoints as data: what they hold, and what their copies do.

#include "display/CMdlInf.h"
#include "geo/CArDb.h"
#include "geo/CArKinds.h"
#include "geo/CWyDb.h"

#include <gmock/gmock.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <memory>
#include <typeinfo>

namespace
{

using testing::ElementsAre;

std::wstring Text(const CString& text)
{
    return text.GetString();
}

/** Numbers that only a copy bit for bit preserves. */
void FillNumbers(CArea& area)
{
    area.lower = -0.0;
    area.upper = std::numeric_limits<double>::denorm_min();
    for (int i = 0; i < 8; ++i)
        area.par[i] = 0.1 * i;
    area.par[7] = std::numeric_limits<double>::quiet_NaN();
}

bool HaveSameNumbers(const CArea& a, const CArea& b)
{
    return std::memcmp(&a.lower, &b.lower, sizeof a.lower) == 0 &&
           std::memcmp(&a.upper, &b.upper, sizeof a.upper) == 0 &&
           std::memcmp(a.par, b.par, sizeof a.par) == 0;
}

template <class Kind>
class AreaKinds : public testing::Test
{
};
using Kinds = testing::Types<CArea, CArNRect, CArARect, CArCircle, CArFree, CArRt, CArTram, CArWy>;
TYPED_TEST_SUITE(AreaKinds, Kinds);

TYPED_TEST(AreaKinds, HaveNothingInsideWhateverTheirShape)
{
    TypeParam area;
    EXPECT_TRUE(area.IsEmpty());
    EXPECT_TRUE(area.name.IsEmpty());
    EXPECT_THAT(area.par, testing::Each(0.0));
    for (const CV3& vertex : {CV3(-1, -1, 0), CV3(1, -1, 0), CV3(0, 1, 0)})
        area.AddTail(new CV3(vertex));
    EXPECT_EQ(area.Inside(0, 0), 0);
    EXPECT_EQ(area.Inside(CV3(-1, -1, 0)), 0);
    EXPECT_EQ(area.RngToBound({5, 5, 0}, {0, 0, 0}), 0.0);
    EXPECT_EQ(area.RngToNode({5, 5, 0}, {0, 0, 0}), 0.0);
    area.ProcTgt(CArProcTgt(), 0, 0, nullptr);
}

TYPED_TEST(AreaKinds, AreCopiedWholeAndApart)
{
    auto area = std::make_unique<TypeParam>();
    area->name = L"Berth 7";
    area->AddTail(new CV3(1, 2, 3));
    FillNumbers(*area);
    TypeParam copy(*area);
    TypeParam assigned;
    assigned.AddTail(new CV3());
    assigned.AddTail(new CV3());
    assigned = copy;
    area.reset(); // takes its own vertices along, and no others
    for (const TypeParam* each : {&copy, &assigned}) {
        EXPECT_EQ(Text(each->name), L"Berth 7");
        ASSERT_EQ(each->GetCount(), 1);
        EXPECT_EQ(*each->GetHead(), CV3(1, 2, 3));
        EXPECT_TRUE(HaveSameNumbers(*each, copy));
    }
    EXPECT_EQ(copy.par[3], 0.1 * 3);
    EXPECT_TRUE(std::signbit(copy.lower));
    EXPECT_NE(copy.GetHead(), assigned.GetHead());
}

/** An application's area, and whom it tells. */
class Disc : public CArCircle
{
public:
    using CArea::Inside;
    int Inside(double x, double y) override { return ML::Hypot(x - par[0], y - par[1]) <= par[2]; }
    void ProcTgt(const CArProcTgt& tgt, double x, double y, void (CObject::*callback)(double)) override
    {
        (tgt.receiver->*callback)(ML::Hypot(x - par[0], y - par[1]) - par[2]);
    }
};
class Listener : public CObject
{
public:
    void OnRange(double range) { heard = range; }
    double heard = 0;
};

TEST(CArea, LetsAnApplicationFillItsOperationsIn)
{
    Disc disc;
    disc.par[0] = 10;
    disc.par[2] = 5;
    CArea& area = disc;
    EXPECT_NE(area.Inside(13, 4), 0);
    EXPECT_EQ(area.Inside(CV3(13, 4.1, 0)), 0);
    EXPECT_NE(disc.Inside(CV3(10, 0, 99)), 0);
    Listener listener;
    area.ProcTgt(CArProcTgt(&listener), 10, 20, static_cast<void (CObject::*)(double)>(&Listener::OnRange));
    EXPECT_EQ(listener.heard, 15);
}

std::vector<std::string> KindsOf(const CArCat& cat)
{
    std::vector<std::string> kinds;
    for (CVantPtr* pos = cat.GetHeadPos(); pos;)
        kinds.push_back(typeid(*cat.GetNext(pos)).name());
    return kinds;
}

TEST(CArCat, CopiesKeepTheirAreasKinds)
{
    CArCat cat;
    cat.name = L"Limits";
    cat.AddTail(new CArFree);
    cat.AddTail(new CArCircle);
    cat.AddTail(new Disc);
    cat.AddTail(new CArea);
    for (CVantPtr* pos = cat.GetHeadPos(); pos;)
        FillNumbers(*cat.GetNext(pos));
    CArCat copy(cat);
    EXPECT_EQ(Text(copy.name), L"Limits");
    const auto kinds = ElementsAre(typeid(CArFree).name(), typeid(CArCircle).name(), typeid(CArCircle).name(),
                                   typeid(CArea).name());
    EXPECT_THAT(KindsOf(copy), kinds);
    EXPECT_TRUE(HaveSameNumbers(*copy.GetTail(), *cat.GetTail()));

    CArCat other;
    other.AddTail(new CArFree);
    other.AddTail(new CArTram);
    other.AddTail(nullptr);
    CArea* const kept = other.GetHead();
    other = cat;
    EXPECT_THAT(KindsOf(other), kinds);
    EXPECT_EQ(other.GetHead(), kept);
    copy.RemoveAll();
    other = copy;
    EXPECT_TRUE(other.IsEmpty());
}

TEST(GeoDatabases, CopiesHaveTheirOwn)
{
    auto areas = std::make_unique<CArDb>();
    areas->AddTail(new CArCat);
    areas->GetHead()->AddTail(new CArWy);
    areas->mtrl.name = L"Red";
    auto wyPts = std::make_unique<CWyDb>();
    wyPts->AddTail(new CWyCat);
    wyPts->GetHead()->name = L"Buoys";
    wyPts->GetHead()->AddTail(new CWyPt(1, 2, 3));
    const CArDb areasCopy(*areas);
    CWyDb wyPtsCopy;
    wyPtsCopy = *wyPts;
    areas.reset();
    wyPts.reset();
    EXPECT_THAT(KindsOf(*areasCopy.GetHead()), ElementsAre(typeid(CArWy).name()));
    EXPECT_EQ(Text(areasCopy.mtrl.name), L"Red");
    EXPECT_EQ(Text(wyPtsCopy.GetHead()->name), L"Buoys");
    EXPECT_EQ(wyPtsCopy.GetHead()->GetHead()->Pos(), CV3(1, 2, 3));
    EXPECT_EQ(CWyPt().Pos(), CV3(0, 0, 0));
}

TEST(GeoDatabases, TellTheirExtents)
{
    CArDb areas;
    CMdlInf inf;
    areas.GetInf(inf);
    EXPECT_EQ(inf.hasExt, 0);
    areas.AddTail(new CArCat);
    areas.AddTail(new CArCat);
    areas.GetTail()->AddTail(new CArFree);
    const double none = std::numeric_limits<double>::quiet_NaN();
    for (const CV3& vertex : {CV3(none, 0, 0), CV3(5, -6, 7), CV3(-8, 9, 1)})
        areas.GetTail()->GetHead()->AddTail(new CV3(vertex));
    areas.GetInf(inf);
    EXPECT_EQ(Text(inf.kind), L"Areas");
    EXPECT_NE(inf.hasExt, 0);
    EXPECT_EQ(inf.lower, CV3(-8, -6, 1));
    EXPECT_EQ(inf.upper, CV3(5, 9, 7));
}

} // namespace
