#include "demo/detail/Quantities.h"
#include "demo/detail/Scale.h"
#include "demo/detail/TrackMap.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <limits>
#include <numbers>

using namespace demo;
using testing::DoubleNear;
using testing::ElementsAre;

TEST(Scale, DivisionsAreRound)
{
    const Scale scale = Scale::Around(11.3, 17.9, 5);
    EXPECT_THAT(scale.Ticks(), ElementsAre(10, 12, 14, 16, 18));
    EXPECT_EQ(0, scale.Decimals());
    EXPECT_DOUBLE_EQ(150.0, scale.Map(14.0, 100.0, 200.0));
    EXPECT_DOUBLE_EQ(125.0, scale.Map(9.0, 100.0, -100.0)) << "reversed and outside";

    const Scale fine = Scale::Around(0.12, 0.31, 4);
    EXPECT_EQ(1, fine.Decimals());
    EXPECT_THAT(fine.Ticks(), ElementsAre(DoubleNear(0.1, 1e-12), DoubleNear(0.2, 1e-12),
                                          DoubleNear(0.3, 1e-12), DoubleNear(0.4, 1e-12)));
}

TEST(Scale, HoldsItsLimitsWithinTheDivisions)
{
    for (const double from : {-1000.0, -3.7, 0.0, 0.001, 12.0, 99.9})
        for (const double span : {0.0, 0.004, 0.9, 1.0, 7.0, 40.0, 12345.6})
            for (const int divisions : {1, 2, 3, 4, 5, 10}) {
                const Scale scale = Scale::Around(from, from + span, divisions);
                const double slack = scale.step * 1e-6;
                EXPECT_LE(scale.low, from + slack) << from << " " << span << " " << divisions;
                EXPECT_GE(scale.high, from + span - slack) << from << " " << span << " " << divisions;
                EXPECT_LE(scale.Ticks().size(), static_cast<std::size_t>(std::max(divisions, 2) + 1));
                EXPECT_GT(scale.high, scale.low);
            }
}

TEST(Scale, SurvivesNoNumbers)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double inf = std::numeric_limits<double>::infinity();
    EXPECT_EQ(2U, Scale::Around(nan, 1.0, 4).Ticks().size());
    EXPECT_EQ(2U, Scale::Around(0.0, inf, 4).Ticks().size());
    EXPECT_GE(Scale::Around(5.0, 5.0, 0).Ticks().size(), 2U);
}

TEST(Scale, TurnsGoTheShortWay)
{
    EXPECT_NEAR(20.0 * degree, TurnBetween(350.0 * degree, 10.0 * degree), 1e-12);
    EXPECT_NEAR(-20.0 * degree, TurnBetween(10.0 * degree, 350.0 * degree), 1e-12);
    EXPECT_NEAR(std::numbers::pi, TurnBetween(0.0, 180.0 * degree), 1e-12);
    EXPECT_NEAR(std::numbers::pi, TurnBetween(180.0 * degree, 0.0), 1e-12) << "never minus half a turn";
}

TEST(TrackMap, ShowsTheWholeTrackNorthUp)
{
    const Box box{100, 50, 500, 350};
    History<TrackPoint> track(10);
    EXPECT_TRUE(TrackMap(track, box).IsEmpty());
    track.Add({54.0 * degree, 10.0 * degree, false});
    track.Add({54.002 * degree, 10.001 * degree, true});
    const TrackMap map(track, box);
    ASSERT_FALSE(map.IsEmpty());
    const Point first = map.Pixel(54.0 * degree, 10.0 * degree);
    const Point last = map.Pixel(54.002 * degree, 10.001 * degree);
    EXPECT_GT(first.y, last.y);
    EXPECT_LT(first.x, last.x);
    for (const Point& p : {first, last}) {
        EXPECT_GT(p.x, box.left);
        EXPECT_LT(p.x, box.right);
        EXPECT_GT(p.y, box.top);
        EXPECT_LT(p.y, box.bottom);
    }
    // A metre is a metre in both directions: 0.002 degrees are 222.4 m north, 0.001 are 65.4 m east.
    EXPECT_NEAR(222.4 / 65.37, (first.y - last.y) / (last.x - first.x), 0.01);
    EXPECT_GE(map.GridPixels(), 64.0);
}

TEST(TrackMap, TheMeshIsRoundInTheUnitThatIsShown)
{
    constexpr double foot = 0.3048;
    History<TrackPoint> track(10);
    track.Add({54.0 * degree, 10.0 * degree, false});
    track.Add({54.002 * degree, 10.001 * degree, true});
    const TrackMap metres(track, {0, 0, 400, 300});
    const TrackMap feet(track, {0, 0, 400, 300}, foot);
    EXPECT_NEAR(100.0, metres.GridMetres(), 1e-9);
    EXPECT_NEAR(500.0, feet.GridMetres() / foot, 1e-9);
    EXPECT_NEAR(metres.GridPixels() / metres.GridMetres(), feet.GridPixels() / feet.GridMetres(), 1e-9);
    EXPECT_GE(feet.GridPixels(), 64.0);
}

TEST(TrackMap, CrossesTheDateLine)
{
    History<TrackPoint> track(10);
    track.Add({10.0 * degree, 179.9995 * degree, false});
    track.Add({10.0 * degree, -179.9995 * degree, true});
    const TrackMap map(track, {0, 0, 400, 300});
    const double apart = map.Pixel(track[1].latitude, track[1].longitude).x -
                         map.Pixel(track[0].latitude, track[0].longitude).x;
    EXPECT_GT(apart, 0.0);
    EXPECT_LT(apart, 400.0);
}
