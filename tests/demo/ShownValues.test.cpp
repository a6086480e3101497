#include "demo/session/ShownValues.h"

#include "Lines.h"
#include "demo/session/DemoSettings.h"
#include "support/TempDir.h"
#include "values/EUnits.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <initializer_list>

using namespace demo;

namespace
{

/** Leaves the process metric, as it was. */
class ShownValuesTest : public testing::Test
{
protected:
    void TearDown() override { EUnits::system = 0; }
};

std::string AllLines()
{
    std::string lines;
    for (const char* const text : {"GPRMC,094120,A,5428.2721,N,01023.5262,E,10.0,61.2,170624,,",
                                   "SDDPT,12.4,0.6", "YXMTW,14.3,C", "TIROT,-0.3,A"})
        lines += Line(text) + "\r\n";
    return lines;
}

struct Shown {
    Quantity quantity;
    const wchar_t* text;
    const wchar_t* unit;
};

void ExpectShown(const ShownValues& values, std::initializer_list<Shown> expected)
{
    for (const Shown& row : expected) {
        SCOPED_TRACE(static_cast<int>(row.quantity));
        EXPECT_EQ(row.text, values.Text(row.quantity));
        EXPECT_EQ(row.unit, values.Unit(row.quantity));
    }
}

} // namespace

TEST_F(ShownValuesTest, FollowTheUnitSystem)
{
    const Tape tape(AllLines());
    Playback playback(tape);
    playback.Advance(1.0);
    ShownValues values;
    values.Take(playback);
    ExpectShown(values, {{Quantity::DepthBelowSurface, L"13.0", L"m"},
                         {Quantity::DepthBelowTransducer, L"12.40", L"m"},
                         {Quantity::SpeedOverGround, L"5.1", L"m/s"},
                         {Quantity::WaterTemperature, L"14.3", L"\u00B0C"},
                         {Quantity::TurnRate, L"0", L"\u00B0/min"}}); // no negative zero

    EUnits::system = 1;
    ExpectShown(values, {{Quantity::DepthBelowSurface, L"42.7", L"ft"},
                         {Quantity::SpeedOverGround, L"16.9", L"ft/s"},
                         {Quantity::WaterTemperature, L"57.7", L"\u00B0F"},
                         {Quantity::TurnRate, L"0", L"\u00B0/min"}});
    EXPECT_EQ(L"10.0 kn", values.KnotsText(Quantity::SpeedOverGround)) << "in either system";
    EXPECT_EQ(L"32.8", ShownValues::LengthText(10.0, 1));
    EXPECT_NEAR(10.0, DisplayLength(10.0 * LengthUnitMetres()), 1e-4);

    EUnits::system = 0;
    EXPECT_EQ(L"10.0", ShownValues::LengthText(10.0, 1));
    EXPECT_EQ(10.0, DisplayLength(10.0));
}

TEST_F(ShownValuesTest, MissingValuesAreDashesInEitherSystem)
{
    const Tape tape(AllLines());
    Playback playback(tape);
    ShownValues values;
    for (const int system : {0, 1}) {
        EUnits::system = system;
        EXPECT_EQ(L"--.-", values.Text(Quantity::DepthBelowSurface)) << "before the first reading";
        EXPECT_EQ(L"--.--", values.Text(Quantity::DepthBelowTransducer));
        EXPECT_EQ(L"--", values.Text(Quantity::TurnRate));
        EXPECT_EQ(L"--.- kn", values.KnotsText(Quantity::SpeedOverGround));
        EXPECT_EQ(L"--.-", ShownValues::LengthText(missing, 1));
        EXPECT_EQ(missing, DisplayLength(missing));
        EXPECT_EQ(missing, values.Value(Quantity::WaterTemperature).GetVal());
    }
    playback.Advance(60.0);
    values.Take(playback);
    EXPECT_EQ(L"--.-", values.Text(Quantity::WaterTemperature)) << "too old";
}

TEST(DemoSettings, AreKeptAndCheckedWhenTheyAreRead)
{
    const vant::test::TempDir dir;
    const std::filesystem::path file = dir.Path(L"settings.xml").GetString();
    DemoSettings saved;
    saved.units = 1;
    saved.shallowLimit = 7.25;
    saved.sensor = L"Sonar 2";
    saved.address = 0xFE01A8C0;
    saved.mounting = {1.0, 0.5};
    ASSERT_TRUE(saved.Save(file.c_str()));
    DemoSettings read;
    ASSERT_TRUE(read.Load(file.c_str()).isThere);
    EXPECT_EQ(1, read.units);
    EXPECT_EQ(7.25, read.shallowLimit);
    EXPECT_EQ(L"Sonar 2", read.sensor);
    EXPECT_EQ(0xFE01A8C0, read.address);
    EXPECT_EQ(0.5, read.mounting.slope);

    for (const auto& [units, limit] : {std::pair(2, -1.0), std::pair(-1, 1.0e9)}) {
        saved.units = units;
        saved.shallowLimit = limit;
        saved.mounting = {limit, limit};
        saved.lostFix = limit;
        saved.port = static_cast<int>(limit);
        ASSERT_TRUE(saved.Save(file.c_str()));
        ASSERT_TRUE(read.Load(file.c_str()).isThere);
        EXPECT_EQ(0, read.units);
        const DemoSettings usual;
        EXPECT_EQ(usual.shallowLimit, read.shallowLimit);
        EXPECT_EQ(usual.mounting.bearing, read.mounting.bearing);
        EXPECT_EQ(usual.mounting.slope, read.mounting.slope);
        EXPECT_EQ(usual.lostFix, read.lostFix);
        EXPECT_EQ(usual.port, read.port);
    }
    EXPECT_STREQ(L"Sonar 2", PlainName(L" \"Sonar\"% 2 "));
}
