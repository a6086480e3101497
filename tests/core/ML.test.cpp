#include "core/ML.h"

#include "core/CV3.h"

#include "core/Geometry.h"

#include <gtest/gtest.h>
#include <limits>

TEST(ML, ConstantsAreTheNearestDoubles)
{
    EXPECT_EQ(ML::threshold, 1e-6);
    EXPECT_EQ(ML::r2d, 57.29577951308232);
    EXPECT_EQ(ML::d2r, 0.017453292519943295);
    EXPECT_EQ(ML::pi, std::acos(-1.0));
    EXPECT_EQ(ML::pi_2, std::acos(0.0));
    EXPECT_EQ(ML::pi_4, std::atan(1.0));
    EXPECT_EQ(ML::pi2, 2 * std::acos(-1.0));
    EXPECT_DOUBLE_EQ(ML::pi3_2, 4.71238898038469);
    EXPECT_EQ(ML::root2, std::sqrt(2.0));
    EXPECT_EQ(ML::root2_2, std::sqrt(0.5));
    EXPECT_EQ(ML::e, 2.718281828459045);
    // Their addresses are usable too, also from outside the library.
    const double* address = &ML::threshold;
    EXPECT_EQ(*address, 1e-6);
}

TEST(ML, RoundsHalvesUp)
{
    EXPECT_EQ(ML::Rnd(2.5), 3);
    EXPECT_EQ(ML::Rnd(-2.5), -2);
    EXPECT_EQ(ML::Rnd(-2.6), -3);
    EXPECT_EQ(ML::ClipRnd(7.5, 5), 10);
    EXPECT_EQ(ML::ClipRnd(-7.5, 5), -5);
    EXPECT_EQ(ML::ClipDn(-7.4, 5), -10);
    EXPECT_EQ(ML::ClipUp(-7.4, 5), -5);
    EXPECT_TRUE(std::isnan(ML::ClipDn(0, 0)));
}

TEST(ML, ClipRngHasALowerBoundOnly)
{
    EXPECT_EQ(ML::ClipRng(10, 3, 20), 10);
    EXPECT_EQ(ML::ClipRng(20, 3, 10), 10) << "the bounds come in any order";
    EXPECT_EQ(ML::ClipRng(10, 15, 20), 15);
    EXPECT_EQ(ML::ClipRng(10, 25, 20), 25);
    EXPECT_EQ(ML::ClipRng(0, 7, 5), 7);
    EXPECT_EQ(ML::ClipRng(4, 4, 4), 4);
}

TEST(ML, PowersAndLengths)
{
    EXPECT_EQ(ML::Sqr(-3), 9);
    EXPECT_EQ(ML::Cube(-3), -27);
    EXPECT_EQ(ML::Hypot(3, 4), 5);
    EXPECT_EQ(ML::Hypot3(2, 3, 6), 7);
    EXPECT_EQ(ML::HypotT(9e-7, -9e-7), 0);
    EXPECT_EQ(ML::HypotT(3e-6, 4e-6), ML::Hypot(3e-6, 4e-6));
    EXPECT_GT(ML::HypotT(1e-6, 0), 0);
    EXPECT_EQ(ML::Mid(1, 4), 2.5);
    EXPECT_DOUBLE_EQ(ML::ACosh(std::cosh(1.25)), 1.25);
    EXPECT_TRUE(std::isnan(ML::ACosh(0.5)));
}

TEST(ML, ATan2OfAZeroXLooksAtTheSignOfYOnly)
{
    EXPECT_EQ(ML::ATan2(1, 0), ML::pi_2);
    EXPECT_EQ(ML::ATan2(-1, 0), -ML::pi_2);
    EXPECT_EQ(ML::ATan2(0, 0), -ML::pi_2);
    EXPECT_EQ(ML::ATan2(0, -0.0), -ML::pi_2);
    EXPECT_EQ(ML::ATan2(0, -1), ML::pi);
    EXPECT_DOUBLE_EQ(ML::ATan2(1, -1), 3 * ML::pi_4);
}

TEST(ML, HeadAngleIsItsOwnInverse)
{
    EXPECT_EQ(ML::HeadAngleD(0), 90);
    for (int a = 0; a < 360; ++a)
        ASSERT_EQ(ML::HeadAngleD(ML::HeadAngleD(a)), a);
    RandomGeometry random;
    for (int i = 0; i < 1000; ++i) {
        const double a = random.Number(0, ML::pi2);
        const double heading = ML::HeadAngleR(a);
        ASSERT_GE(heading, 0);
        ASSERT_LT(heading, ML::pi2);
        ASSERT_NEAR(std::remainder(ML::HeadAngleR(heading) - a, ML::pi2), 0, 1e-12);
    }
}

TEST(ML, InterpolatesAndKeepsTheStartOfAnEmptyRange)
{
    EXPECT_EQ(ML::Interpolate(10, 20, 15, 100, 300), 200);
    EXPECT_EQ(ML::Interpolate(10, 20, 30, 100, 300), 500);
    EXPECT_EQ(ML::Interpolate(10, 10, 15, 100, 300), 100);
}

TEST(ML, ModInterpolateGoesRoundTheCircle)
{
    // From 350 to 10 degrees the way leads over 0, not over 180.
    EXPECT_NEAR(ML::ModInterpolate(0, 1, 0.5, 350, 10, 360), 0, 1e-9);
    EXPECT_NEAR(ML::ModInterpolate(0, 1, 0, 270, 10, 360), -90, 1e-9) << "not brought into [0, mod)";
    EXPECT_EQ(ML::ModInterpolate(3, 3, 9, 350, 10, 360), 350);
    EXPECT_EQ(ML::ModInterpolate(0, 1, 0.5, 350, 10, 0), 350);
}

TEST(ML, ModInterpolateDividesFirst)
{
    // The weight is 5 - 2/4 - 2 = 2.5, where (5 - 2) / (4 - 2) would be 1.5.
    const double c = std::cos(0.1) + (std::cos(0.3) - std::cos(0.1)) * 2.5;
    const double s = std::sin(0.1) + (std::sin(0.3) - std::sin(0.1)) * 2.5;
    EXPECT_NEAR(ML::ModInterpolate(2, 4, 5, 0.1, 0.3, ML::pi2), std::atan2(s, c), 1e-12);
}

TEST(ML, ToleranceIsStrict)
{
    const double above = 1 + 1e-6; // a shade less than a millionth above 1, as doubles go
    EXPECT_FALSE(ML::LessThanT(1, above));
    EXPECT_FALSE(ML::MoreThanT(above, 1));
    EXPECT_TRUE(ML::LessThanT(1, 1.0000011));
    EXPECT_TRUE(ML::MoreThanT(1.0000011, 1));
    EXPECT_FALSE(ML::LessThanT(2, 1));
    EXPECT_FALSE(ML::EqualT(0, 1e-6));
    EXPECT_FALSE(ML::EqualT(1, above));
    EXPECT_FALSE(ML::EqualT(above, 1));
    EXPECT_TRUE(ML::EqualT(1e12, 1e12)) << "where the threshold vanishes in the rounding";
    EXPECT_FALSE(ML::EqualT(HUGE_VAL, HUGE_VAL));
    EXPECT_FALSE(ML::EqualT(std::nan(""), std::nan("")));
    EXPECT_TRUE(ML::EqualT(0, -9.99e-7));
}

TEST(ML, RemaindersAndDivisibility)
{
    EXPECT_EQ(ML::FModT(5.9999999, 2), 0);
    EXPECT_DOUBLE_EQ(ML::FModT(5.5, 2), 1.5);
    EXPECT_TRUE(ML::Even(-4));
    EXPECT_TRUE(ML::Even(0));
    EXPECT_TRUE(ML::Odd(3));
    EXPECT_TRUE(ML::Odd(2.5));
    EXPECT_TRUE(ML::ExactDivisible(7.5, 2.5));
    EXPECT_FALSE(ML::ExactDivisible(7, 2));
    EXPECT_FALSE(ML::ExactDivisible(1, 0)) << "infinity less infinity is not 0";
}

TEST(ML, IntersectConicMeetsTheRimsPlane)
{
    const CV3 apex(0, 0, 10);
    const CV3 down(0, 0, -1);
    double t = -7;
    EXPECT_EQ(ML::IntersectConic({}, {1, 0, 0}, 0.5, apex, down, t), 0);
    EXPECT_EQ(t, -7);
    ASSERT_EQ(ML::IntersectConic({0, 0, 4}, {0, 0, 2}, 0.5, apex, down, t), 1);
    // The formula in the open: (cos(pi/2 - angle) - axis . (apex - p)) / (d . axis).
    EXPECT_DOUBLE_EQ(t, (std::sin(0.5) + 6) / -2);
}

TEST(ML, IntersectLineCircle)
{
    double t1 = 0;
    double t2 = 0;
    ASSERT_EQ(ML::IntersectLineCircle({5, 3, 0}, 5, {0, 0, 0}, {1, 0, 0}, t1, t2), 1);
    EXPECT_DOUBLE_EQ(t1, 1);
    EXPECT_DOUBLE_EQ(t2, 9);
    EXPECT_EQ(ML::IntersectLineCircle({5, 5, 0}, 5, {0, 0, 0}, {1, 0, 0}, t1, t2), 0) << "touching is a miss";
    EXPECT_EQ(ML::IntersectLineCircle({5, 6, 0}, 5, {0, 0, 0}, {1, 0, 0}, t1, t2), 0);

    RandomGeometry random;
    for (int i = 0; i < 1000; ++i) {
        const CV3 c = random.Vector();
        const CV3 p = random.Vector();
        CV3 d = random.Vector();
        d.Normalise();
        const double r = random.Number(1, 2000);
        if (!ML::IntersectLineCircle(c, r, p, d, t1, t2))
            continue;
        ASSERT_LT(t1, t2);
        ASSERT_NEAR((p + d * t1 - c).Length(), r, 1e-6);
        ASSERT_NEAR((p + d * t2 - c).Length(), r, 1e-6);
    }
}

TEST(ML, XYIntersectFindsThePlaceOnTheSecondLine)
{
    CV3 out;
    double t = 0;
    ASSERT_EQ(ML::XYIntersect({0, 0, 0}, {1, 1, 0}, {4, 0, 10}, {0, 2, 6}, out, t), 1);
    EXPECT_EQ(out, CV3(4, 4, 22));
    EXPECT_EQ(t, 2);
    EXPECT_EQ(ML::XYIntersect({0, 0, 0}, {1, 1, 0}, {4, 0, 10}, {-2, -2, 6}, out, t), 0);
    EXPECT_EQ(t, 2);

    RandomGeometry random;
    for (int i = 0; i < 1000; ++i) {
        const CV3 p1 = random.Vector();
        const CV3 d1 = random.Vector();
        const CV3 p2 = random.Vector();
        const CV3 d2 = random.Vector();
        const double den = (d1 % d2).z;
        if (std::abs(den) < 1000 || !ML::XYIntersect(p1, d1, p2, d2, out, t))
            continue;
        ASSERT_NEAR((d1 % (out - p1)).z / den, 0, 1e-6) << "on the first line";
        ASSERT_NEAR((out - (p2 + d2 * t)).Length(), 0, 1e-6) << "on the second line";
    }
}

TEST(ML, IntersectRectOrdersCrossingsAndNamesEdges)
{
    const CV3 corners[4] = {{0, 0, 5}, {10, 0, 5}, {10, 4, 5}, {0, 4, 5}};
    const CV3 unused(std::numeric_limits<double>::quiet_NaN(), 0, 0);
    CV3 a;
    CV3 b;
    int i1 = 9;
    int i2 = 9;
    ASSERT_EQ(ML::IntersectRectX({3, 99, 99}, unused, corners, a, b, i1, i2), 1);
    EXPECT_EQ(a, CV3(3, 0, 0));
    EXPECT_EQ(b, CV3(3, 4, 0));
    EXPECT_EQ(i1, 0);
    EXPECT_EQ(i2, 2);
    ASSERT_EQ(ML::IntersectRectY({99, 1, 99}, unused, corners, a, b, i1, i2), 1);
    EXPECT_EQ(a, CV3(0, 1, 0));
    EXPECT_EQ(b, CV3(10, 1, 0));
    EXPECT_EQ(i1, 3) << "found second, but at the smaller x";
    EXPECT_EQ(i2, 1);

    a = b = CV3(7, 7, 7);
    EXPECT_EQ(ML::IntersectRectX({11, 0, 0}, unused, corners, a, b, i1, i2), 0);
    EXPECT_EQ(i1, -1);
    EXPECT_EQ(i2, -1);
    EXPECT_EQ(a, CV3(7, 7, 7));

    const CV3 kite[4] = {{0, -2, 0}, {5, 0, 0}, {0, 2, 0}, {-5, 0, 0}};
    ASSERT_EQ(ML::IntersectRectX({5, 0, 0}, unused, kite, a, b, i1, i2), 1)
        << "a corner belongs to both its edges";
    EXPECT_EQ(a, CV3(5, 0, 0));
    EXPECT_EQ(b, a);
    EXPECT_EQ(i1, 0);
    EXPECT_EQ(i2, 1);
}
