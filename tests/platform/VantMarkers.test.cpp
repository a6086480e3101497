#include "platform/PlatformTest.h"

#include <cmath>
#include <limits>

namespace
{

using VantMarkers = PlatformTest;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double metresPerFoot = 0.30480091927957254;

} // namespace

TEST_F(VantMarkers, NextIsTheFirstMarkerAbove)
{
    struct {
        double x, next;
    } const rows[] = {{1.0, 1.5},    {7.5, 10.0}, {7.49, 7.5},  {2.4, 2.5},  {0.76, 1.0},
                      {99.0, 100.0}, {0.0, 0.01}, {-3.0, 0.01}, {0.08, 0.1}, {123456.0, 150000.0}};
    for (const auto& row : rows)
        EXPECT_DOUBLE_EQ(Vant::NextMkr(row.x), row.next) << row.x;
}

TEST_F(VantMarkers, PrevStaysWhereTheDecadeBegins)
{
    struct {
        double x, prev;
    } const rows[] = {{1.0, 1.0}, {1.01, 1.0},  {1.5, 1.0},   {1.51, 1.5},    {7.4, 5.0}, {7.5, 7.5},
                      {8.0, 8.0}, {10.0, 10.0}, {10.5, 10.0}, {0.005, 0.005}, {0.0, 0.0}, {-2.0, -2.0}};
    for (const auto& row : rows)
        EXPECT_DOUBLE_EQ(Vant::PrevMkr(row.x), row.prev) << row.x;
}

TEST_F(VantMarkers, NearestTakesTheGreaterOfTwoAtEqualDistance)
{
    struct {
        double x, nearest;
    } const rows[] = {{1.0, 1.0},   {1.25, 1.5}, {1.24, 1.0},   {7.5, 7.5},    {8.7, 7.5},
                      {8.76, 10.0}, {6.25, 7.5}, {0.0, 0.0075}, {-5.0, 0.0075}};
    for (const auto& row : rows)
        EXPECT_DOUBLE_EQ(Vant::NearestMkr(row.x), row.nearest) << row.x;
}

TEST_F(VantMarkers, StepsAreRoundFeetInTheUsSystem)
{
    EUnits::system = 1;
    EXPECT_NEAR(Vant::NextMkr(1.0), 1.524, 1e-5);
    EXPECT_DOUBLE_EQ(Vant::NextMkr(1.0), 5.0 * metresPerFoot);
    EXPECT_DOUBLE_EQ(Vant::PrevMkr(1.0), 2.0 * metresPerFoot);
    EXPECT_DOUBLE_EQ(Vant::NearestMkr(1.0), 2.0 * metresPerFoot);
    EXPECT_DOUBLE_EQ(Vant::NearestMkr(1.1), 5.0 * metresPerFoot); // 3.609 ft
    EXPECT_DOUBLE_EQ(Vant::NextMkr(1.6), 10.0 * metresPerFoot);   // 5.249 ft
    // At the first marker of a decade the metres that were given come back, to the last digit.
    EXPECT_EQ(Vant::PrevMkr(2.0), 2.0);
}

TEST_F(VantMarkers, OnlyUnitSystemOneIsTheUsOne)
{
    EUnits::system = 2;
    EXPECT_DOUBLE_EQ(Vant::NextMkr(1.0), 1.5);
}

TEST_F(VantMarkers, ValuesBeyondEveryDecadeComeBack)
{
    for (const int system : {0, 1}) {
        EUnits::system = system;
        for (const auto step : {Vant::NearestMkr, Vant::NextMkr, Vant::PrevMkr}) {
            EXPECT_EQ(step(infinity), infinity);
            EXPECT_EQ(step(-infinity), -infinity);
            EXPECT_TRUE(std::isnan(step(std::nan(""))));
            EXPECT_EQ(step(1.7e308), 1.7e308);
        }
        EXPECT_GT(Vant::NextMkr(1e300), 1e300);
        EXPECT_TRUE(std::isfinite(Vant::NextMkr(1e300)));
    }
}

TEST_F(VantMarkers, StepsEncloseTheirValueEverywhere)
{
    for (const int system : {0, 1}) {
        EUnits::system = system;
        const double slack = system == 1 ? 1e-5 : 1e-12; // feet and metres are not exact inverses
        for (double x = 0.004; x < 5e6; x *= 1.0137) {
            const double next = Vant::NextMkr(x);
            const double prev = Vant::PrevMkr(x);
            const double nearest = Vant::NearestMkr(x);
            ASSERT_GT(next, x * (1 - slack)) << x;
            ASSERT_LE(prev, x) << x;
            ASSERT_LE(std::abs(nearest - x), next - x + x * slack) << x;
            // Two neighbours of a table are at most a factor of 2.5 apart.
            if (x >= 0.01) {
                ASSERT_LE(next, 2.5 * x * (1 + slack)) << x;
            }
            if (prev < x) {
                ASSERT_GE(prev, x / 2.5 * (1 - slack)) << x;
                ASSERT_LE(std::abs(nearest - x), x - prev + x * slack) << x;
            }
        }
    }
}

TEST_F(VantMarkers, SteppingUpVisitsEveryMarkerOnce)
{
    std::vector<double> visited;
    for (double x = 0.9; x < 80.0; x = Vant::NextMkr(x))
        visited.push_back(x);
    using testing::DoubleEq;
    EXPECT_THAT(visited, testing::ElementsAre(0.9, DoubleEq(1), DoubleEq(1.5), DoubleEq(2), DoubleEq(2.5),
                                              DoubleEq(5), DoubleEq(7.5), DoubleEq(10), DoubleEq(15),
                                              DoubleEq(20), DoubleEq(25), DoubleEq(50), DoubleEq(75)));
}
