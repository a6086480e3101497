#include "geo/TgtCalc.h"

#include "tests/geo/Routes.h"

#include <cmath>
#include <limits>

namespace
{

constexpr double none = std::numeric_limits<double>::quiet_NaN();

TEST(TgtCalc, RangesAndBearings)
{
    const CV3 own(100, 200, -10);
    EXPECT_EQ(TgtCalc::Rng(own, {103, 204, 2}), 13);
    EXPECT_EQ(TgtCalc::PlanRng(own, {103, 204, 2}), 5);
    EXPECT_NEAR(TgtCalc::Brg(own, {99, 200, 0}), ML::pi3_2, 1e-15);
    EXPECT_NEAR(TgtCalc::Elev(own, {100, 205, -15}), -ML::pi_4, 1e-15);
    EXPECT_NEAR(TgtCalc::RelBrg(own, ML::D2R(350), {101, 201, 0}), ML::D2R(55), 1e-12);
    EXPECT_NEAR(TgtCalc::RelBrg(own, ML::D2R(90 - 720), {100, 999, 0}), ML::D2R(270), 1e-12);
    EXPECT_LT(TgtCalc::RelBrg(own, 1e-18, {100, 999, 0}), ML::pi2) << "never a whole turn";
    EXPECT_THAT(TgtCalc::Vel(ML::D2R(120), 10, 1), NearTo(CV3(5 * std::sqrt(3.0), -5, 1)));
}

TEST(TgtCalc, ClosestPointOfApproach)
{
    double rng = 0;
    double tm = 0;
    // Courses that cross at right angles: both need 100 s to the crossing, the target 20 s more.
    EXPECT_NE(TgtCalc::Cpa({0, -500, 0}, {0, 5, 0}, {-600, 0, 0}, {5, 0, 0}, rng, tm), 0);
    EXPECT_NEAR(tm, 110, 1e-9);
    EXPECT_NEAR(rng, 50 * std::sqrt(2.0), 1e-9);
    // Passed already, 30 s ago, 40 m overhead.
    EXPECT_NE(TgtCalc::Cpa({0, 0, 0}, {0, 0, 0}, {60, 0, 40}, {2, 0, 0}, rng, tm), 0);
    EXPECT_NEAR(tm, -30, 1e-12);
    EXPECT_NEAR(rng, 40, 1e-12);
    EXPECT_EQ(TgtCalc::Cpa({0, 0, 0}, {3, 3, 0}, {30, 40, 0}, {3, 3, 0}, rng, tm), 0);
    EXPECT_EQ(tm, 0);
    EXPECT_EQ(rng, 50);
    TgtCalc::Cpa({0, 0, 0}, {none, 0, 0}, {30, 40, 0}, {3, 3, 0}, rng, tm);
    EXPECT_TRUE(std::isnan(rng) && std::isnan(tm));

    // No other time brings them nearer.
    RandomGeometry random;
    for (int i = 0; i < 200; ++i) {
        const CV3 own = random.Vector();
        const CV3 tgt = random.Vector();
        const CV3 ownVel = random.Vector(10);
        const CV3 tgtVel = random.Vector(10);
        ASSERT_NE(TgtCalc::Cpa(own, ownVel, tgt, tgtVel, rng, tm), 0);
        for (const double other : {tm - 0.5, tm, tm + 0.5})
            ASSERT_GE(TgtCalc::Rng(own + ownVel * other, tgt + tgtVel * other), rng - 1e-9);
    }
}

TEST(TgtCalc, CrossTrack)
{
    CRoute route;
    double across = 7;
    double along = 8;
    EXPECT_EQ(TgtCalc::XTrk(route, {0, 0, 0}, across, along), 0);
    Fill(route, {{0, 0, 0}, {0, 100, 50}, {100, 100, 0}});
    EXPECT_EQ(TgtCalc::XTrk(route, {none, 0, 0}, across, along), 0);
    EXPECT_EQ(across, 7);

    const auto expect = [&](const CV3& pos, double wantedAcross, double wantedAlong) {
        ASSERT_NE(TgtCalc::XTrk(route, pos, across, along), 0);
        EXPECT_NEAR(across, wantedAcross, 1e-9);
        EXPECT_NEAR(along, wantedAlong, 1e-9);
    };
    expect({3, 40, 1000}, 3, 40);
    expect({-3, 40, 0}, -3, 40);
    expect({60, 101, 0}, -1, 160);
    expect({-3, 104, 0}, -5, 100); // outside of the corner
    expect({3, -4, 0}, 5, 0);      // before the beginning
    expect({103, 96, 0}, 5, 200);  // beyond the end

    // Beyond the point of a hairpin to the left is its outside, though it lies to the left of the first
    // segment.
    CRoute hairpin;
    Fill(hairpin, {{0, 0, 0}, {100, 1, 0}, {0, 3, 0}});
    for (const double y : {0.5, 1.5}) {
        ASSERT_NE(TgtCalc::XTrk(hairpin, {101, y, 0}, across, along), 0);
        EXPECT_NEAR(across, ML::Hypot(1, 0.5), 1e-9);
    }
    ASSERT_NE(TgtCalc::XTrk(hairpin, {90, 1.1, 0}, across, along), 0);
    EXPECT_LT(across, 0);
}

} // namespace
