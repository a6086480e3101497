#include "demo/detail/Text.h"

#include "demo/detail/Quantities.h"

#include <gtest/gtest.h>

#include <limits>

using namespace demo;

TEST(Text, FixedNumbers)
{
    EXPECT_EQ(L"16.3", FixedText(16.27, 1));
    EXPECT_EQ(L"16", FixedText(16.27, 0));
    EXPECT_EQ(L"-1.20", FixedText(-1.2, 2));
    EXPECT_EQ(L"0.0", FixedText(-0.04, 1)) << "no negative zero";
    EXPECT_EQ(L"--.-", FixedText(missing, 1));
    EXPECT_EQ(L"--", FixedText(missing, 0));
    EXPECT_EQ(L"--.--", FixedText(std::numeric_limits<double>::quiet_NaN(), 2));
    EXPECT_EQ(L"--.-", FixedText(std::numeric_limits<double>::infinity(), 1));
    EXPECT_EQ(L"--.-", FixedText(1.0e300, 1));
}

TEST(Text, BearingsHaveThreeDigitsAndNo360)
{
    EXPECT_EQ(L"005", BearingText(5.4 * degree));
    EXPECT_EQ(L"000", BearingText(359.6 * degree));
    EXPECT_EQ(L"359", BearingText(359.4 * degree));
    EXPECT_EQ(L"270", BearingText(-90.0 * degree));
    EXPECT_EQ(L"---", BearingText(missing));
}

TEST(Text, PositionsRoundAsAWhole)
{
    EXPECT_EQ(L"54\u00B0 28.2721' N", LatitudeText((54.0 + 28.2721 / 60.0) * degree));
    EXPECT_EQ(L"010\u00B0 23.5262' W", LongitudeText(-(10.0 + 23.5262 / 60.0) * degree));
    EXPECT_EQ(L"55\u00B0 00.0000' N", LatitudeText((54.0 + 59.99999 / 60.0) * degree)) << "never 60 minutes";
    EXPECT_EQ(L"--\u00B0 --.----'", LatitudeText(missing));
    EXPECT_EQ(L"---\u00B0 --.----'", LongitudeText(missing));
}

TEST(Text, TimesAreCutNotRounded)
{
    EXPECT_EQ(L"09:41:20", ClockText(34880.9));
    EXPECT_EQ(L"00:00:01", ClockText(86401.0));
    EXPECT_EQ(L"--:--:--", ClockText(missing));
    EXPECT_EQ(L"3:20", DurationText(200.99));
    EXPECT_EQ(L"0:05", DurationText(5.0));
    EXPECT_EQ(L"1:02:03", DurationText(3723.0));
    EXPECT_EQ(L"0:00", DurationText(-3.0));
}

TEST(Text, AddressesStartWithTheLowestByte)
{
    EXPECT_EQ(L"192.168.0.40:10110", AddressText(0x2800A8C0, 10110));
    EXPECT_EQ(L"255.255.255.255:1", AddressText(0xFFFFFFFF, 1));
}
