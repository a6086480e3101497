#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "values/EUnits.h"

namespace
{

/** Sets the unit system for one test. */
class EUnitsTest : public testing::Test
{
protected:
    ~EUnitsTest() override { EUnits::system = 0; }

    static CString Text(int kind, double value, int withUnits = 1, LPCWSTR format = L"%lg")
    {
        return EUnits::Get(kind, value, format, withUnits);
    }

    static double Shown(int kind, double value)
    {
        EUnits::N2D(kind, value);
        return value;
    }

    static double Native(int kind, double value)
    {
        EUnits::D2N(kind, value);
        return value;
    }

    template <class Integer>
    static Integer ShownInteger(int kind, Integer value)
    {
        EUnits::N2D(kind, value);
        return value;
    }

    template <class Integer>
    static Integer NativeInteger(int kind, Integer value)
    {
        EUnits::D2N(kind, value);
        return value;
    }
};

constexpr int unknownSystem = 2;

} // namespace

TEST_F(EUnitsTest, LabelsOfBothSystems)
{
    const LPCWSTR metricLabels[] = {L"m", L"\u00B0C", L"m/s", L"sq m", L"cu m", L"MPa", L"\u00B0", L"%"};
    const LPCWSTR usLabels[] = {L"ft", L"\u00B0F", L"ft/s", L"sq ft", L"cu ft", L"psi", L"\u00B0", L"%"};
    EXPECT_EQ(EUnits::system, 0);
    for (int kind = 0; kind < 8; ++kind) {
        EUnits::system = 0;
        EXPECT_EQ(EUnits::Get(kind), metricLabels[kind]);
        EUnits::system = 1;
        EXPECT_EQ(EUnits::Get(kind), usLabels[kind]);
        EUnits::system = unknownSystem;
        EXPECT_EQ(EUnits::Get(kind), L"");
    }
    EUnits::system = 1;
    EXPECT_EQ(EUnits::Get(8), L"");
    EXPECT_EQ(EUnits::Get(-1), L"");
}

TEST_F(EUnitsTest, ConvertsOnlyInUsCustomary)
{
    for (const int system : {0, unknownSystem, -1}) {
        EUnits::system = system;
        for (int kind = -1; kind <= 8; ++kind) {
            EXPECT_EQ(Shown(kind, 7.0), 7.0);
            EXPECT_EQ(Native(kind, 7.0), 7.0);
        }
    }
    EUnits::system = 1;
    for (const int kind : {-1, 6, 7, 8, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        EXPECT_EQ(Shown(kind, 7.0), 7.0);
        EXPECT_EQ(Native(kind, 7.0), 7.0);
    }
}

TEST_F(EUnitsTest, ExactFactorsBothWays)
{
    EUnits::system = 1;
    EXPECT_EQ(Shown(0, 2.0), 2.0 * 3.28083);
    EXPECT_EQ(Shown(1, 37.0), 37.0 * 1.8 + 32.0);
    EXPECT_EQ(Shown(2, 2.0), 2.0 * 3.28084); // not the factor of lengths
    EXPECT_EQ(Shown(3, 2.0), 2.0 * 10.76391);
    EXPECT_EQ(Shown(4, 2.0), 2.0 * 35.31467);
    EXPECT_EQ(Shown(5, 2.0), 2.0 * 145.0377);

    EXPECT_EQ(Native(0, 3.0), 3.0 * 0.30480091927957254);
    EXPECT_EQ(Native(1, 98.6), (98.6 - 32.0) * 0.5555555555555556);
    EXPECT_EQ(Native(2, 3.0), 3.0 * 0.3047999902464003);
    EXPECT_EQ(Native(3, 3.0), 3.0 * 0.09290304359661128);
    EXPECT_EQ(Native(4, 3.0), 3.0 * 0.028316843963146193);
    EXPECT_EQ(Native(5, 3.0), 3.0 * 0.006894759086775369);

    EXPECT_EQ(Shown(1, 100.0), 212.0);
    EXPECT_EQ(Native(1, 212.0), 100.0);
}

TEST_F(EUnitsTest, IntegersRoundHalfUpAndKeepTheirLowBits)
{
    EUnits::system = 1;
    EXPECT_EQ(NativeInteger(0, 10), 3);
    EXPECT_EQ(ShownInteger(0, -10), -33); // -32.8083
    EXPECT_EQ(ShownInteger(1, -25), -13);
    EXPECT_EQ(ShownInteger(1, 2), 36); // 35.6
    EXPECT_EQ(ShownInteger(0, 2000000000), static_cast<int>(6561660000LL - 2 * 4294967296LL));
    EXPECT_EQ(NativeInteger(0, 10u), 3u);
    EXPECT_EQ(ShownInteger(0, 1000000000u), 3280830000u);  // beyond every int
    EXPECT_EQ(NativeInteger(0, 4294967295u), 1309109980u); // read as unsigned
    EXPECT_EQ(NativeInteger(1, 0u), 4294967278u);          // -17.8 wraps
    EXPECT_EQ(NativeInteger(1, 31), -1);                   // -0.56
    EXPECT_EQ(NativeInteger(6, -7), -7);
}

TEST_F(EUnitsTest, MetricTexts)
{
    EXPECT_EQ(Text(0, 2.5), L"2.5m");
    EXPECT_EQ(Text(0, 2.5, 0), L"2.5");
    EXPECT_EQ(Text(7, 50.0), L"50%");
    EXPECT_EQ(Text(1, 21.456, 1, L"%0.1lf"), L"21.5\u00B0C");
    EXPECT_EQ(Text(-1, 21.0), L"21");
    EXPECT_EQ(Text(3, 3.0, 1, L"about %g "), L"about 3 sq m");
}

TEST_F(EUnitsTest, UsCustomaryTexts)
{
    EUnits::system = 1;
    EXPECT_EQ(Text(2, 1.0, 1, L"%0.2lf"), L"3.28ft/s");
    EXPECT_EQ(Text(1, 100.0), L"212\u00B0F");
    EXPECT_EQ(Text(0, 1.0, 0), L"3.28083"); // feet and inches only with units
}

TEST_F(EUnitsTest, FeetAndInchesWhateverTheFormat)
{
    EUnits::system = 1;
    const double oneFoot = 1.0 / 3.28083;
    EXPECT_EQ(Text(0, 1.0), L"3ft 3in");
    EXPECT_EQ(Text(0, 1.0, 1, L"%0.9lf"), L"3ft 3in");
    EXPECT_EQ(Text(0, -1.0), L"-3ft 3in");
    EXPECT_EQ(Text(0, 3.048), L"10ft");
    EXPECT_EQ(Text(0, 0.1), L"4in");
    EXPECT_EQ(Text(0, -0.1), L"-4in");
    EXPECT_EQ(Text(0, 40.0), L"131ft");
    EXPECT_EQ(Text(0, -40.0), L"-131ft");
    EXPECT_EQ(Text(0, 99.99 * oneFoot), L"100ft"); // 1200 inches
    EXPECT_EQ(Text(0, 0.0), L"0ft");
    EXPECT_EQ(Text(0, -0.001), L"-0ft");
    EXPECT_EQ(Text(0, 11.6 / 12.0 * oneFoot), L"1ft"); // 12 inches
}

TEST_F(EUnitsTest, FeetTextsOfEveryMagnitude)
{
    EUnits::system = 1;
    EXPECT_EQ(Text(0, 1e300).GetLength(), 301 + 2);
    EXPECT_EQ(Text(0, -std::numeric_limits<double>::infinity()), L"-infft");
    EXPECT_EQ(Text(0, std::numeric_limits<double>::quiet_NaN()), L"nanft");
}
