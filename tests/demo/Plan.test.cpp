// The planned survey and the distance from it.
#include "demo/scene/PlannedRoute.h"

#include "demo/detail/Quantities.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace demo;

namespace
{

const LocalPlane start(54.4712 * degree, 10.3921 * degree);

/** A place `along` the first line and `across` it, to starboard. */
GroundPoint OnFirstLine(double along, double across)
{
    const double course = 62.0 * degree;
    return {along * std::sin(course) + across * std::cos(course),
            along * std::cos(course) - across * std::sin(course)};
}

} // namespace

TEST(SurveyPlan, LiesWhereTheLogWasRecorded)
{
    const std::vector<PlanPoint> plan = SurveyPlan(start);
    ASSERT_FALSE(plan.empty());
    EXPECT_NEAR(0.0, std::hypot(plan.front().place.east, plan.front().place.north), 1e-6);
    EXPECT_EQ(1, plan.front().line);
    EXPECT_EQ(4, plan.back().line);
    EXPECT_TRUE(SurveyPlan(LocalPlane(54.6 * degree, 10.3921 * degree)).empty()) << "another log";
}

TEST(PlannedRoute, TellsTheDistanceAndTheSide)
{
    PlannedRoute route;
    EXPECT_EQ(missing, route.CrossTrack({0, 0}));
    route.Make(SurveyPlan(start));
    EXPECT_NEAR(3.0, route.CrossTrack(OnFirstLine(80, 3)), 0.05);
    EXPECT_NEAR(-5.0, route.CrossTrack(OnFirstLine(80, -5)), 0.05);
    EXPECT_NEAR(-3.0, route.CrossTrack(OnFirstLine(80, 45 + 3)), 0.05) << "the second line leads back";
    EXPECT_NEAR(20.0, std::abs(route.CrossTrack(OnFirstLine(-20, 0))), 0.05) << "before its beginning";
    EXPECT_NEAR(0.0, route.CrossTrack(OnFirstLine(170 + 22.5, 22.5)), 0.5) << "the turn";
    route.Make({});
    EXPECT_EQ(missing, route.CrossTrack({0, 0}));
}

TEST(PlannedRoute, TheCorridorLiesAtBothSides)
{
    PlannedRoute route;
    route.Make(SurveyPlan(start));
    for (const auto& [edge, side] :
         {std::pair(&route.PortEdge(), -1.0), std::pair(&route.StarboardEdge(), 1.0)}) {
        ASSERT_GT(edge->GetCount(), 100U);
        const CRtV3 beside = edge->En2Entry(OnFirstLine(80, 0).east, OnFirstLine(80, 0).north);
        EXPECT_NEAR(side * PlannedRoute::corridor, route.CrossTrack({beside.x, beside.y}), 0.05);
    }
}
