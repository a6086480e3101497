#include "core/CV3.h"

#include "core/Geometry.h"

#include <afx.h>

#include <gtest/gtest.h>
#include <limits>
#include <type_traits>

TEST(CV3, IsThreeDoublesInARow)
{
    static_assert(std::is_trivially_copyable_v<CV3> && std::is_standard_layout_v<CV3>);
    CV3 v;
    EXPECT_EQ(v, CV3(0, 0, 0));
    double* raw = v;
    raw[0] = 1;
    v.V()[1] = 2;
    v[2] = 3;
    EXPECT_EQ(v, CV3(1, 2, 3));
    const CV3& fixed = v;
    const double* fixedRaw = fixed;
    EXPECT_EQ(fixedRaw[2], 3);
    EXPECT_EQ(fixed.V()[1], 2);
    EXPECT_EQ(fixed[0], 1);
    v.Zero();
    EXPECT_EQ(v, CV3());
}

TEST(CV3, ArithmeticIsByComponent)
{
    const CV3 a(8, 6, 4);
    const CV3 b(2, 3, 4);
    EXPECT_EQ(a + b, CV3(10, 9, 8));
    EXPECT_EQ(a - b, CV3(6, 3, 0));
    EXPECT_EQ(a * b, CV3(16, 18, 16));
    EXPECT_EQ(a / b, CV3(4, 2, 1));
    EXPECT_EQ(a * 2.0, CV3(16, 12, 8));
    EXPECT_EQ(a * 2, CV3(16, 12, 8)) << "an integer scales too";
    EXPECT_EQ(a / 2.0f, CV3(4, 3, 2));
    CV3 c = a;
    EXPECT_EQ(&(c += b), &c);
    EXPECT_EQ(c, CV3(10, 9, 8));
    EXPECT_EQ(c -= b, a);
    EXPECT_EQ(c *= b, CV3(16, 18, 16));
    EXPECT_EQ(c /= b, a);
    EXPECT_EQ(c *= 2, CV3(16, 12, 8));
    EXPECT_EQ(c /= 2, a);
    EXPECT_EQ(c /= c, CV3(1, 1, 1)) << "the divisor is the vector itself";
}

TEST(CV3, EqualityIsExactAndOrderIsByLength)
{
    EXPECT_FALSE(CV3(1, 0, 0) == CV3(1, 0, 1e-12));
    EXPECT_TRUE(CV3(1, 0, 0) != CV3(1, 0, 1e-12));
    EXPECT_FALSE(CV3(3, 4, 0) < CV3(0, 0, 5));
    EXPECT_FALSE(CV3(3, 4, 0) > CV3(0, 0, 5));
    EXPECT_TRUE(CV3(3, 4, 0) <= CV3(0, 0, 5));
    EXPECT_TRUE(CV3(3, 4, 0) >= CV3(0, 0, 5));
    EXPECT_TRUE(CV3(0, -1, 0) < CV3(0, 0, 2));
    const double length = CV3(3, 4, 0);
    EXPECT_EQ(length, 5);
}

TEST(CV3, Products)
{
    EXPECT_EQ(CV3(1, 2, 3) | CV3(4, 5, 6), 32);
    EXPECT_EQ(CV3(1, 0, 0) % CV3(0, 1, 0), CV3(0, 0, 1));
    RandomGeometry random;
    for (int i = 0; i < 200; ++i) {
        const CV3 a = random.Vector(1);
        const CV3 b = random.Vector(1);
        ASSERT_NEAR(a % b | a, 0, 1e-14);
        ASSERT_NEAR(a % b | b, 0, 1e-14);
        ASSERT_EQ(a % b, b % a * -1);
    }
}

TEST(CV3, NormaliseGivesTheFormerLength)
{
    CV3 v(0, 3, 4);
    EXPECT_EQ(v.Normalise(), 5);
    EXPECT_EQ(v, CV3(0, 0.6, 0.8));
    CV3 zero;
    EXPECT_EQ(zero.Normalise(), 0);
    EXPECT_EQ(zero, CV3());
}

TEST(CV3, FiniteSeesEveryComponent)
{
    const double inf = std::numeric_limits<double>::infinity();
    EXPECT_TRUE(CV3(1, 2, 3).Finite());
    EXPECT_FALSE(CV3(inf, 0, 0).Finite());
    EXPECT_FALSE(CV3(0, -inf, 0).Finite());
    EXPECT_FALSE(CV3(0, 0, inf - inf).Finite());
}

TEST(CV3, AnglesOfTheMainDirections)
{
    EXPECT_EQ(CV3(0, 0, 0).Angle(), -ML::pi_2);
    EXPECT_DOUBLE_EQ(CV3(0, 0, 0).Brg(), ML::pi);
    EXPECT_EQ(CV3(0, 1, 0).Brg(), 0);
    EXPECT_DOUBLE_EQ(CV3(1, 0, 0).Brg(), ML::pi_2);
    EXPECT_DOUBLE_EQ(CV3(0, -1, 0).Brg(), ML::pi);
    EXPECT_DOUBLE_EQ(CV3(-1, 0, 0).Brg(), ML::pi3_2);
    EXPECT_EQ(CV3(0, 0, 0).Slope(), 0);
    EXPECT_EQ(CV3(0, 0, 2).Slope(), ML::pi_2);
    EXPECT_EQ(CV3(0, 0, -2).Slope(), -ML::pi_2);
    EXPECT_DOUBLE_EQ(CV3(3, 4, 5).Slope(), ML::pi_4);
    EXPECT_DOUBLE_EQ(CV3(-3, 4, -5).Slope(), -ML::pi_4);
}

TEST(CV3, BearingAndAngleDescribeTheSameDirection)
{
    RandomGeometry random;
    for (int i = 0; i < 1000; ++i) {
        const CV3 v = random.Vector();
        const double brg = v.Brg();
        ASSERT_GE(brg, 0);
        ASSERT_LT(brg, ML::pi2);
        const double h = ML::Hypot(v.x, v.y);
        ASSERT_NEAR(h * std::sin(brg), v.x, 1e-9);
        ASSERT_NEAR(h * std::cos(brg), v.y, 1e-9);
        ASSERT_NEAR(h * std::cos(v.Angle()), v.x, 1e-9);
        ASSERT_NEAR(v.Length() * std::sin(v.Slope()), v.z, 1e-9);
    }
}

TEST(CV3, TextHasTwoDecimals)
{
    EXPECT_STREQ(CV3(1, -2.345, 0.005).Str(), L"X:1.00 Y:-2.35 Z:0.01");
    EXPECT_STREQ(CV3(-0.001, 1e6, 123456789.125).Str(), L"X:-0.00 Y:1000000.00 Z:123456789.12");
    const double huge = std::numeric_limits<double>::max();
    EXPECT_EQ(CV3(-huge, -huge, -huge).Str().GetLength(), 3 * (2 + 1 + 309 + 3) + 2);
}

TEST(CV3, ArchiveFormIsThreeDoubles)
{
    CMemFile file;
    CArchive out(&file, CArchive::store);
    CV3(1, 2, 3).Serialize(out);
    out.Close();
    ASSERT_EQ(file.GetLength(), 24u);
    file.SeekToBegin();
    double raw[3] = {};
    file.Read(raw, sizeof raw);
    EXPECT_EQ(CV3(raw[0], raw[1], raw[2]), CV3(1, 2, 3));
    file.SeekToBegin();
    CArchive in(&file, CArchive::load);
    CV3 back;
    back.Serialize(in);
    EXPECT_EQ(back, CV3(1, 2, 3));
}
