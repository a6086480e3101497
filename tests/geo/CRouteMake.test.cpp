// Routes made of routes.

#include "geo/CRoute.h"

#include "tests/geo/Routes.h"

#include <limits>
#include <numeric>

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

constexpr double none = std::numeric_limits<double>::quiet_NaN();
constexpr double toTheRight = ML::pi_2;

class CRouteMake : public testing::Test
{
protected:
    CRouteMake() { route.name = L"Run"; }

    CRoute route;
    CRoute out;
};

TEST(CSpline, WeightsOfItsBases)
{
    const CSpline through;
    EXPECT_EQ(through.GetCount(), CSpline::defaultRows);
    EXPECT_THAT(std::vector<double>(through.GetRow(0), through.GetRow(0) + 4), ElementsAre(0, 1, 0, 0));
    EXPECT_THAT(std::vector<double>(through.GetRow(5), through.GetRow(5) + 4),
                ElementsAre(-0.0625, 0.5625, 0.5625, -0.0625));
    const CSpline smooth(2, CSpline::bSpline);
    EXPECT_THAT(std::vector<double>(smooth.GetRow(1), smooth.GetRow(1) + 4),
                ElementsAre(1.0 / 48, 23.0 / 48, 23.0 / 48, 1.0 / 48));
    for (int i = 0; i < through.GetCount(); ++i)
        EXPECT_NEAR(std::accumulate(through.GetRow(i), through.GetRow(i) + 4, 0.0), 1, 1e-15);

    CSpline own(-3);
    ASSERT_EQ(own.GetCount(), 1);
    own.SetRow(0, 1, 2, 3, 4);
    own.SetRow(1, 9, 9, 9, 9);
    EXPECT_EQ(own.GetRow(7)[3], 4);
}

TEST_F(CRouteMake, SplineOfAnOpenRoute)
{
    constexpr int rows = 4;
    const std::vector<CV3> nodes = {{0, 0, 0}, {10, 10, 1}, {20, 0, 2}};
    Fill(route, nodes);
    out.AddTail(new CRtV3(9, 9, 9));
    EXPECT_EQ(route.SplineRt(out, CSpline(rows), 0), 3 * rows);
    EXPECT_EQ(Name(out), L"Run_spline");
    const std::vector<CV3> made = Places(out);
    ASSERT_EQ(made.size(), 3U * rows);
    for (std::size_t i = 0; i < nodes.size(); ++i)
        EXPECT_THAT(made[i * rows], NearTo(nodes[i])) << "through the nodes";
    // Half-way of the first segment, whose first node stands in for the one before.
    EXPECT_THAT(made[2], NearTo(nodes[0] * 0.5 + nodes[1] * 0.5625 - nodes[2] * 0.0625));
    // Deliberately one segment more, around the last node.
    EXPECT_THAT(made[10], NearTo(nodes[1] * -0.0625 + nodes[2] * 1.0625));
    EXPECT_EQ(out.GetTail()->q, 0);
    EXPECT_EQ(out.GetTail()->scale, 0);
}

TEST_F(CRouteMake, SplineOfAClosedRoute)
{
    const std::vector<CV3> nodes = {{0, 0, 0}, {10, 0, 0}, {10, 10, 0}, {0, 10, 0}};
    Fill(route, nodes);
    EXPECT_EQ(route.SplineRt(out, CSpline(2), 1), 10);
    const std::vector<CV3> made = Places(out);
    // Every side of the square bulges alike; the first one comes again.
    EXPECT_THAT(made, ElementsAre(NearTo(nodes[0]), NearTo(CV3(5, -1.25, 0)), NearTo(nodes[1]),
                                  NearTo(CV3(11.25, 5, 0)), NearTo(nodes[2]), NearTo(CV3(5, 11.25, 0)),
                                  NearTo(nodes[3]), NearTo(CV3(-1.25, 5, 0)), NearTo(nodes[0]),
                                  NearTo(CV3(5, -1.25, 0))));
    CRoute pair;
    Fill(pair, {{0, 0, 0}, {10, 0, 0}});
    EXPECT_EQ(pair.SplineRt(out, CSpline(1), 1), 3);
    EXPECT_THAT(Places(out), ElementsAre(CV3(0, 0, 0), CV3(10, 0, 0), CV3(0, 0, 0)));
}

TEST_F(CRouteMake, SplineNeedsTwoNodesAndMayReplaceItsRoute)
{
    Fill(route, {{1, 1, 1}});
    out.AddTail(new CRtV3());
    EXPECT_EQ(route.SplineRt(out, CSpline(), 0), 0);
    EXPECT_TRUE(out.IsEmpty());
    Fill(route, {{3, 1, 1}});
    EXPECT_EQ(route.SplineRt(route, CSpline(1), 0), 2);
    EXPECT_THAT(Places(route), ElementsAre(CV3(1, 1, 1), CV3(3, 1, 1)));
    EXPECT_EQ(Name(route), L"Run_spline");
}

TEST_F(CRouteMake, OffsetSamplesStepsAndTheEnd)
{
    Fill(route, {{0, 0, 5}, {0, 10, 5}});
    EXPECT_EQ(route.OffsetReSF(out, 0, 10, 4, 25, toTheRight), 4);
    EXPECT_EQ(Name(out), L"Run_+25");
    EXPECT_THAT(Places(out), ElementsAre(NearTo(CV3(25, 0, 5)), NearTo(CV3(25, 4, 5)), NearTo(CV3(25, 8, 5)),
                                         NearTo(CV3(25, 10, 5))));
    EXPECT_EQ(out.GetTail()->q, 10);
    EXPECT_EQ(route.OffsetReSF(out, 10, 0, 4, -0.5, toTheRight), 1);
    EXPECT_EQ(Name(out), L"Run_-0.5");
    EXPECT_THAT(Places(out), ElementsAre(NearTo(CV3(-0.5, 0, 5))));
    // Ten steps of a tenth are one, not a shade less.
    EXPECT_EQ(route.OffsetReSF(out, 0, 1, 0.1, 0, 0), 11);
    route.GetHead()->scale = route.GetTail()->scale = 0;
    route.OffsetReSF(out, 0, 10, 10, 25, toTheRight);
    EXPECT_THAT(Places(out), ElementsAre(CV3(0, 0, 5), CV3(0, 10, 5))) << "a scale of 0 leaves the route";
}

TEST_F(CRouteMake, OffsetWithoutAUsableStepOrRange)
{
    Fill(route, {{0, 0, 0}, {0, 10, 0}});
    for (const double step : {0.0, -1.0, 1e-300, 1e-9})
        EXPECT_EQ(route.OffsetReSF(out, 2, 8, step, 1, 0), 2) << step;
    EXPECT_THAT(Places(out), ElementsAre(NearTo(CV3(0, 3, 0)), NearTo(CV3(0, 9, 0))));
    EXPECT_EQ(route.OffsetReSF(out, 0, none, 1, 1, 0), 0);
    EXPECT_TRUE(out.IsEmpty());
    EXPECT_EQ(route.OffsetReSF(out, -10, 20, 15, 1, toTheRight), 3);
    EXPECT_THAT(Places(out), ElementsAre(NearTo(CV3(1, 0, 0)), NearTo(CV3(1, 5, 0)), NearTo(CV3(1, 10, 0))))
        << "beyond the ends: the ends";
    EXPECT_EQ(CRoute().OffsetReSF(out, 0, 1, 1, 1, 0), 0);
    EXPECT_TRUE(out.IsEmpty());
}

TEST_F(CRouteMake, ParallelMeetsAtCorners)
{
    Fill(route, {{0, 0, 1}, {0, 10, 2}, {10, 10, 3}});
    EXPECT_EQ(route.OffsetRtCP(out, 0, 20, 2, toTheRight), 3);
    EXPECT_EQ(Name(out), L"Run_+2");
    EXPECT_THAT(Places(out), ElementsAre(NearTo(CV3(2, 0, 1)), NearTo(CV3(2, 8, 2)), NearTo(CV3(10, 8, 3))));
    EXPECT_EQ(route.OffsetRtCP(out, 5, 15, -2, toTheRight), 3);
    EXPECT_THAT(Places(out),
                ElementsAre(NearTo(CV3(-2, 5, 1.5)), NearTo(CV3(-2, 12, 2)), NearTo(CV3(5, 12, 2.5))));
    // An end in a corner belongs to the segment between the ends.
    EXPECT_EQ(route.OffsetRtCP(out, 0, 10, 2, toTheRight), 2);
    EXPECT_THAT(Places(out), ElementsAre(NearTo(CV3(2, 0, 1)), NearTo(CV3(2, 10, 2))));
    EXPECT_EQ(route.OffsetRtCP(out, 10, 20, 2, toTheRight), 2);
    EXPECT_THAT(Places(out), ElementsAre(NearTo(CV3(0, 8, 2)), NearTo(CV3(10, 8, 3))));
    EXPECT_EQ(route.OffsetRtCP(out, 9, 9, 2, toTheRight), 1);
    EXPECT_EQ(route.OffsetRtCP(out, 0, 20, none, toTheRight), 0);
    EXPECT_THAT(Places(out), IsEmpty());
}

TEST_F(CRouteMake, ParallelCutsSharpCorners)
{
    Fill(route, {{0, 0, 0}, {0, 10, 0}, {0, 0, 0}});
    EXPECT_EQ(route.OffsetRtCP(out, 0, 20, -1, toTheRight), 4);
    EXPECT_THAT(Places(out), ElementsAre(NearTo(CV3(-1, 0, 0)), NearTo(CV3(-1, 10, 0)), NearTo(CV3(1, 10, 0)),
                                         NearTo(CV3(1, 0, 0))));
}

TEST_F(CRouteMake, LineAcross)
{
    Fill(route, {{0, 0, 4}, {0, 10, 4}, {10, 10, 4}});
    route.GetHead()->scale = 0;
    EXPECT_EQ(route.XLine(out, 2.5, -3, 5, toTheRight), 2);
    EXPECT_EQ(Name(out), L"Run_X@2.5");
    EXPECT_THAT(Places(out), ElementsAre(NearTo(CV3(-3, 2.5, 4)), NearTo(CV3(5, 2.5, 4))));
    EXPECT_EQ(route.XLine(route, 5, 0, 1, 0), 2);
    EXPECT_THAT(Places(route), ElementsAre(NearTo(CV3(0, 5, 4)), NearTo(CV3(0, 6, 4))));
    EXPECT_EQ(CRoute().XLine(out, 0, 0, 1, 0), 0);
}

} // namespace
