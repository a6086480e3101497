#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <limits>
#include <random>
#include <string>

#include <gmock/gmock.h>

#include "core/detail/NumberText.h"
#include "core/detail/ToInteger.h"

using namespace vant::detail;
using testing::ElementsAre;

namespace
{

std::string General(double value)
{
    std::array<char, generalTextMax> text;
    return {text.data(), WriteGeneral(text.data(), value)};
}

std::string Fixed(double value, int decimals)
{
    std::array<char, fixedTextMax> text;
    return {text.data(), WriteFixed(text.data(), value, decimals)};
}

std::string Formatted(const char* format, double value)
{
    std::string text;
    AppendFormatted(text, std::string_view(format), value);
    return text;
}

Scanned<double> Double(std::string_view text)
{
    return ScanDouble(text);
}

/** Values where displays live, values of every magnitude, and the neighbourhood of rounding ties. */
template <class Check>
void ForManyDoubles(Check check)
{
    std::mt19937_64 random(20260);
    for (int i = 0; i < 20000; ++i) {
        check(std::bit_cast<double>(random()));
        check(std::ldexp(static_cast<double>(static_cast<std::int64_t>(random())),
                         -static_cast<int>(random() % 90)));
        check(static_cast<double>(random() % 2000000) / static_cast<double>(1 << (random() % 12)));
        check(-static_cast<double>(random() % 100000000000) * 1e-6);
    }
}

/** The text of the standard library, which is exact. */
std::string Exact(double value, std::chars_format format, int precision)
{
    std::array<char, 1500> text;
    return {text.data(), std::to_chars(text.data(), text.data() + text.size(), value, format, precision).ptr};
}

} // namespace

TEST(NumberTextWriting, GeneralFormHasSixDigitsAndNoZerosAtTheEnd)
{
    EXPECT_EQ(General(0.0), "0");
    EXPECT_EQ(General(-0.0), "-0");
    EXPECT_EQ(General(2.5), "2.5");
    EXPECT_EQ(General(-12.0), "-12");
    EXPECT_EQ(General(1.0 / 3.0), "0.333333");
    EXPECT_EQ(General(0.0012345678), "0.00123457");
    EXPECT_EQ(General(0.0001), "0.0001");
    EXPECT_EQ(General(0.00001), "1e-05");
    EXPECT_EQ(General(999999.4), "999999");
    EXPECT_EQ(General(999999.5), "1e+06");
    EXPECT_EQ(General(99999.96), "100000");
    EXPECT_EQ(General(0.9999996), "1");
    EXPECT_EQ(General(1e100), "1e+100");
    EXPECT_EQ(General(-1.2345678e-300), "-1.23457e-300");
    EXPECT_EQ(General(std::numeric_limits<double>::infinity()), "inf");
    EXPECT_EQ(General(std::numeric_limits<double>::quiet_NaN()), "nan");
    EXPECT_EQ(General(-std::numeric_limits<double>::quiet_NaN()), "nan");
}

TEST(NumberTextWriting, FixedFormRoundsTheExactBinaryValue)
{
    EXPECT_EQ(Fixed(2.675, 2), "2.67"); // lies below the tie
    EXPECT_EQ(Fixed(0.125, 2), "0.12"); // a true tie goes to even
    EXPECT_EQ(Fixed(0.375, 2), "0.38");
    EXPECT_EQ(Fixed(-0.001, 2), "-0.00");
    EXPECT_EQ(Fixed(99.999, 2), "100.00");
    EXPECT_EQ(Fixed(5.0, 0), "5");
    EXPECT_EQ(Fixed(1e22, 1), "10000000000000000000000.0");
    EXPECT_EQ(Fixed(1.0, -3), "1");
}

TEST(NumberTextWriting, LongestTextFits)
{
    const std::string text = Fixed(-std::numeric_limits<double>::max(), 1000000);
    EXPECT_EQ(text.size(), fixedTextMax);
    EXPECT_EQ(Fixed(std::numeric_limits<double>::denorm_min(), decimalsMax).back(), '5');
}

TEST(NumberTextWriting, AgreesWithTheExactConversionEverywhere)
{
    ForManyDoubles([](double value) {
        if (std::isnan(value)) {
            value = std::fabs(value); // whose sign is not shown
        }
        ASSERT_EQ(General(value), Exact(value, std::chars_format::general, 6));
        for (const int decimals : {0, 2, 3, 9, 12}) {
            ASSERT_EQ(Fixed(value, decimals), Exact(value, std::chars_format::fixed, decimals));
        }
    });
}

TEST(NumberTextWriting, IntegersInWideText)
{
    std::array<wchar_t, integerTextMax> text;
    EXPECT_EQ(std::wstring(text.data(), WriteInt(text.data(), -2147483648LL)), L"-2147483648");
    EXPECT_EQ(std::wstring(text.data(), WriteUnsigned(text.data(), 4294967295u)), L"4294967295");
    EXPECT_EQ(std::wstring(text.data(), WriteHex(text.data(), 0xBEEFu)), L"beef");
}

TEST(NumberTextWriting, FormatsForOneDouble)
{
    EXPECT_EQ(Formatted("%lg", 2.5), "2.5");
    EXPECT_EQ(Formatted("%0.2lf", 2.5), "2.50");
    EXPECT_EQ(Formatted("about %+08.2f%% now", 2.5), "about +0002.50% now");
    EXPECT_EQ(Formatted("%-8.1f|", -2.5), "-2.5    |");
    EXPECT_EQ(Formatted("%8.1f|", -2.5), "    -2.5|");
    EXPECT_EQ(Formatted("% g", 2.5), " 2.5");
    EXPECT_EQ(Formatted("%.3E", 12345.678), "1.235E+04");
    EXPECT_EQ(Formatted("%#g", 2.5), "2.50000");
    EXPECT_EQ(Formatted("%#.3g", 999.9), "1.00e+03");
    EXPECT_EQ(Formatted("%#.0f", 3.0), "3.");
    EXPECT_EQ(Formatted("%a", 1.0), "0x1p+0");
    EXPECT_EQ(Formatted("%08f", std::numeric_limits<double>::infinity()), "     inf");
    EXPECT_EQ(Formatted("%f", -std::numeric_limits<double>::quiet_NaN()), "nan");
}

TEST(NumberTextWriting, DirectivesWithoutAnArgumentStayAsTheyStand)
{
    EXPECT_EQ(Formatted("%d", 2.5), "%d");
    EXPECT_EQ(Formatted("%s %g %g", 2.5), "%s 2.5 %g");
    EXPECT_EQ(Formatted("100%", 2.5), "100%");
    EXPECT_EQ(Formatted("%*.*f", 2.5), "%*.*f");
    EXPECT_EQ(Formatted("%999999999999f", 1.0).size(), static_cast<std::size_t>(decimalsMax));
}

TEST(NumberTextReading, IntegersStopAtTheFirstOtherCharacter)
{
    EXPECT_EQ(ScanInt(std::wstring_view(L" \t-12.7")).value, -12);
    EXPECT_EQ(ScanInt(std::wstring_view(L" \t-12.7")).used, 5u);
    EXPECT_EQ(ScanInt(std::string_view("+7x")).value, 7);
    EXPECT_EQ(ScanInt(std::string_view("0x10")).value, 0);
    for (const std::string_view none : {"", " ", "-", "x1", "- 1", "+-1"}) {
        EXPECT_FALSE(ScanInt(none)) << none;
        EXPECT_FALSE(ScanUnsigned(none)) << none;
    }
}

TEST(NumberTextReading, IntegersKeepTheirLowBits)
{
    EXPECT_EQ(ScanInt(std::string_view("2147483648")).value, std::numeric_limits<int>::min());
    EXPECT_EQ(ScanInt(std::string_view("4294967295")).value, -1);
    EXPECT_EQ(ScanUnsigned(std::string_view("-1")).value, 4294967295u);
    EXPECT_EQ(ScanUnsigned(std::string_view("4294967296")).value, 0u);
    EXPECT_EQ(ScanUnsigned(std::string_view("100000000000000000000000000000001")).value, 1u);
}

TEST(NumberTextReading, HexWithAndWithoutItsPrefix)
{
    EXPECT_EQ(ScanHex(std::string_view("0xFf")).value, 255u);
    EXPECT_EQ(ScanHex(std::string_view("ff ")).used, 2u);
    EXPECT_EQ(ScanHex(std::string_view("0x")).used, 1u);
    EXPECT_FALSE(ScanHex(std::string_view("x1")));
}

TEST(NumberTextReading, DoublesInEveryWriting)
{
    const std::array<std::pair<std::string_view, double>, 9> writings = {{
        {"12", 12.0},
        {"  -0.5", -0.5},
        {".5", 0.5},
        {"5.", 5.0},
        {"+1.5e3", 1500.0},
        {"1E-2", 0.01},
        {"1.e5", 1e5},
        {"0e99999999999999999999", 0.0},
        {"0.1", 0.1},
    }};
    for (const auto& [text, value] : writings) {
        EXPECT_EQ(Double(text).value, value) << text;
        EXPECT_EQ(Double(text).used, text.size()) << text;
    }
    EXPECT_TRUE(std::signbit(Double("-0").value));
    EXPECT_EQ(Double("12 ").used, 2u);
    EXPECT_EQ(Double("0x10").used, 1u);
    EXPECT_EQ(Double("1,5").value, 1.0);
}

TEST(NumberTextReading, WhatIsNoNumber)
{
    for (const std::string_view none :
         {"", " ", ".", "-.", "e5", "1e", "1e+", "100ergs", "inf", "nan", "-", "+-1"}) {
        EXPECT_FALSE(Double(none)) << none;
        EXPECT_EQ(Double(none).value, 0.0) << none;
    }
}

TEST(NumberTextReading, ExtremesAndLongDigitStrings)
{
    const double infinite = std::numeric_limits<double>::infinity();
    EXPECT_EQ(Double("1e999").value, infinite);
    EXPECT_EQ(Double("-1e99999999999999999999").value, -infinite);
    EXPECT_EQ(Double("179769313486231580" + std::string(291, '0')).value, std::numeric_limits<double>::max());
    EXPECT_EQ(Double("1e-999").value, 0.0);
    EXPECT_EQ(Double(std::string(5000, '9') + "e-5000").value, 1.0);
    EXPECT_EQ(Double("0." + std::string(5000, '0') + "25e5001").value, 2.5);
    EXPECT_EQ(Double("9007199254740993").value, 9007199254740992.0);
    EXPECT_EQ(Double("9007199254740993." + std::string(2000, '0') + "1").value, 9007199254740994.0);
    EXPECT_EQ(ScanFloat(std::string_view("1e39")).value, std::numeric_limits<float>::infinity());
    // Rounding through a double first would end on 1.
    EXPECT_EQ(ScanFloat(std::string_view("1.00000005960464477540")).value, 1.00000011920928955078125f);
}

TEST(NumberTextReading, AgreesWithTheExactConversionEverywhere)
{
    ForManyDoubles([](double value) {
        if (!std::isfinite(value)) {
            return;
        }
        for (const int precision : {3, 16, 30}) {
            const std::string text = Exact(value, std::chars_format::scientific, precision);
            double expected = 0;
            if (std::from_chars(text.data(), text.data() + text.size(), expected).ec == std::errc{}) {
                ASSERT_EQ(Double(text).value, expected) << text;
            }
        }
    });
}

TEST(NumberTextReading, ListsArePartedByACommaAtTheNumber)
{
    constexpr std::array<double, 3> written = {-1.5, 1e-300, 3};
    std::array<wchar_t, DoublesTextMax(written.size())> text;
    EXPECT_EQ(std::wstring(text.data(), WriteDoubles(text.data(), written)), L"-1.5, 1e-300, 3");

    std::array<double, 3> values = {9, 9, 9};
    EXPECT_EQ(ScanDoubles(std::wstring_view(L"1, 2,3 and more"), values), 3u);
    EXPECT_THAT(values, ElementsAre(1, 2, 3));

    values = {9, 9, 9};
    EXPECT_EQ(ScanDoubles(std::wstring_view(L"4, 5"), values), 2u);
    EXPECT_THAT(values, ElementsAre(4, 5, 9));
    EXPECT_EQ(ScanDoubles(std::wstring_view(L"6 , 7"), values), 1u);
    EXPECT_EQ(ScanDoubles(std::wstring_view(L""), values), 0u);
    EXPECT_EQ(ScanDoubles(std::wstring_view(L"6, 1e999, 7"), values), 1u);
}

TEST(ToInteger, CutsRoundsHalfUpAndNeverLeavesTheRange)
{
    constexpr std::int64_t none = std::numeric_limits<std::int64_t>::min();
    EXPECT_EQ(ToInt64(-12.7), -12);
    EXPECT_EQ(RoundToInt64(2.5), 3);
    EXPECT_EQ(RoundToInt64(-2.5), -2);
    EXPECT_EQ(RoundToInt64(-2.6), -3);
    EXPECT_EQ(ToInt64(9.3e18), none);
    EXPECT_EQ(ToInt64(-9.3e18), none);
    EXPECT_EQ(ToInt64(std::numeric_limits<double>::quiet_NaN()), none);
    EXPECT_EQ(LowBits<std::int8_t>(128), -128);
    EXPECT_EQ(LowBits<std::uint16_t>(-1), 65535);
}
