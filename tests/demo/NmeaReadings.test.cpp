#include "demo/detail/NmeaReadings.h"

#include "Lines.h"

#include <gtest/gtest.h>

#include <cmath>
#include <iterator>
#include <random>

using namespace demo;

namespace
{

struct Case {
    const char* body;
    std::vector<Reading> expected;
};

constexpr double tolerance = 1.0e-9;

void ExpectReadings(const Case& c)
{
    SCOPED_TRACE(c.body);
    NmeaReadings readings;
    ASSERT_EQ(Verdict::Accepted, readings.Read(Line(c.body)));
    ASSERT_EQ(c.expected.size(), readings.Items().size());
    for (std::size_t i = 0; i < c.expected.size(); ++i) {
        EXPECT_EQ(c.expected[i].quantity, readings.Items()[i].quantity) << i;
        EXPECT_NEAR(c.expected[i].value, readings.Items()[i].value, tolerance) << i;
    }
}

} // namespace

TEST(NmeaReadings, ReadsWhatInstrumentsSend)
{
    using enum Quantity;
    const double north = (54.0 + 28.2721 / 60.0) * degree;
    const double east = (10.0 + 23.5262 / 60.0) * degree;
    const Case cases[] = {
        {"GPGGA,094120.00,5428.2721,N,01023.5262,E,2,11,0.8,41.1,M,40.1,M,3.0,0120",
         {{UtcTime, 34880.0},
          {Latitude, north},
          {Longitude, east},
          {FixQuality, 2},
          {Satellites, 11},
          {Hdop, 0.8}}},
        {"GNGGA,235959.50,5428.2721,S,01023.5262,W,1,04,12.5,,M,,M,,",
         {{UtcTime, 86399.5},
          {Latitude, -north},
          {Longitude, -east},
          {FixQuality, 1},
          {Satellites, 4},
          {Hdop, 12.5}}},
        {"GPRMC,094120,A,5428.2721,N,01023.5262,E,10.00,359.5,170624,3.8,E",
         {{UtcTime, 34880.0},
          {Latitude, north},
          {Longitude, east},
          {SpeedOverGround, 18520.0 / 3600.0},
          {CourseOverGround, 359.5 * degree}}},
        {"HEHDT,0.0,T", {{Heading, 0.0}}},
        {"HEHDT,360.0,T", {{Heading, 0.0}}},
        {"TIROT,-60.0,A", {{TurnRate, -degree}}},
        {"SDDBT,51.4,f,15.67,M,8.6,F", {{DepthBelowTransducer, 15.67}}},
        {"SDDPT,15.67,0.6", {{DepthBelowTransducer, 15.67}, {DepthBelowSurface, 16.27}}},
        {"SDDPT,15.67,-1.2,100", {{DepthBelowTransducer, 15.67}, {DepthBelowSurface, missing}}},
        {"WIMWV,251.4,R,12.1,N,A", {{ApparentWindAngle, 251.4 * degree}, {ApparentWindSpeed, 12.1 * knot}}},
        {"WIMWV,10.0,T,36.0,K,A", {{TrueWindAngle, 10.0 * degree}, {TrueWindSpeed, 10.0}}},
        {"WIMWV,10.0,T,5.5,M,A", {{TrueWindAngle, 10.0 * degree}, {TrueWindSpeed, 5.5}}},
        {"YXMTW,-1.2,C", {{WaterTemperature, -1.2}}},
        {"VWVHW,,T,,M,10.0,N,18.52,K", {{SpeedThroughWater, 10.0 * knot}}},
    };
    for (const Case& c : cases)
        ExpectReadings(c);
}

TEST(NmeaReadings, EmptyInvalidAndImpossibleFieldsAreMissing)
{
    using enum Quantity;
    const Case cases[] = {
        {"GPGGA,094120.00,,,,,0,00,,,M,,M,,",
         {{UtcTime, 34880.0},
          {Latitude, missing},
          {Longitude, missing},
          {FixQuality, 0},
          {Satellites, 0},
          {Hdop, missing}}},
        {"GPRMC,,V,5428.2721,N,01023.5262,E,10.00,359.5,,,",
         {{UtcTime, missing},
          {Latitude, missing},
          {Longitude, missing},
          {SpeedOverGround, missing},
          {CourseOverGround, missing}}},
        {"HEHDT,,T", {{Heading, missing}}},
        {"HEHDT,65.7,M", {{Heading, missing}}},
        {"HEHDT,65,7", {{Heading, missing}}},
        {"HEHDT, 65.7,T", {{Heading, missing}}},
        {"HEHDT,6.5e1,T", {{Heading, missing}}},
        {"HEHDT,nan,T", {{Heading, missing}}},
        {"HEHDT,inf,T", {{Heading, missing}}},
        {"HEHDT,361,T", {{Heading, missing}}},
        {"TIROT,12.0,V", {{TurnRate, missing}}},
        {"SDDBT,51.4,f,15.67,X,8.6,F", {{DepthBelowTransducer, missing}}},
        {"SDDPT,-4,0.6", {{DepthBelowTransducer, missing}, {DepthBelowSurface, missing}}},
        {"SDDPT,4,", {{DepthBelowTransducer, 4}, {DepthBelowSurface, missing}}},
        {"WIMWV,251.4,R,12.1,N,V", {{ApparentWindAngle, missing}, {ApparentWindSpeed, missing}}},
        {"WIMWV,251.4,R,12.1,Q,A", {{ApparentWindAngle, 251.4 * degree}, {ApparentWindSpeed, missing}}},
        {"YXMTW,99.9,C", {{WaterTemperature, missing}}},
    };
    for (const Case& c : cases)
        ExpectReadings(c);
}

TEST(NmeaReadings, PositionsAreWholeOrMissing)
{
    const char* const bad[] = {
        "GPGGA,094120,5460.0000,N,01023.5262,E,1,9,1", "GPGGA,094120,9000.0001,N,01023.5262,E,1,9,1",
        "GPGGA,094120,5428.2721,N,18000.0001,E,1,9,1", "GPGGA,094120,5428.2721,E,01023.5262,E,1,9,1",
        "GPGGA,094120,5428.2721,N,01023.5262,,1,9,1",  "GPGGA,094120,5428.2721,N,,E,1,9,1",
        "GPGGA,094120,-5428.272,N,01023.5262,E,1,9,1", "GPGGA,094120,5428.2721,N,01023.5262,E,,9,1",
    };
    for (const char* const body : bad) {
        NmeaReadings readings;
        ASSERT_EQ(Verdict::Accepted, readings.Read(Line(body))) << body;
        EXPECT_EQ(missing, readings.Value(Quantity::Latitude)) << body;
        EXPECT_EQ(missing, readings.Value(Quantity::Longitude)) << body;
    }
}

TEST(NmeaReadings, TimesOfTheDayAreCheckedDigitByDigit)
{
    const char* const bad[] = {"240000", "096000", "094161", "09412", "0941",
                               "9:4120", "09412x", "-94120", ""};
    for (const char* const time : bad) {
        NmeaReadings readings;
        readings.Read(Line(std::string("GPRMC,") + time + ",A,5428.2721,N,01023.5262,E,4.87,61.2,170624,,"));
        EXPECT_EQ(missing, readings.Value(Quantity::UtcTime)) << time;
    }
}

TEST(NmeaReadings, TellsUnknownFromDamaged)
{
    NmeaReadings readings;
    EXPECT_EQ(Verdict::Ignored, readings.Read(Line("GPGSV,3,1,11,03,03,111,00")));
    EXPECT_EQ(Verdict::Ignored, readings.Read(Line("PHDT,65.7,T")))
        << "a maker's own sentence of a known name";
    EXPECT_EQ(Verdict::Rejected, readings.Read(Line("GPGGA,094120.00,5428.2721,N")))
        << "fields cut, checksum right";
    EXPECT_EQ(Verdict::Rejected, readings.Read(Line("WIMWV,251.4,X,12.1,N,A")));
    EXPECT_EQ(Verdict::Rejected, readings.Read("$HEHDT,65.7,T*00"));
    EXPECT_TRUE(readings.Items().empty());
}

TEST(NmeaReadings, SurvivesNoiseUnderRightChecksums)
{
    std::mt19937 random(183);
    const char* const types[] = {"GGA", "RMC", "HDT", "ROT", "DBT", "DPT", "MWV", "MTW", "VHW"};
    constexpr std::string_view alphabet = "0123456789.,-+ANTMRVKCEWSf\"'e";
    for (int round = 0; round < 20000; ++round) {
        std::string body = std::string("GP") + types[random() % std::size(types)] + ",";
        for (std::size_t n = random() % 90; n > 0; --n)
            body.push_back(alphabet[random() % alphabet.size()]);
        NmeaReadings readings;
        if (readings.Read(Line(body)) != Verdict::Accepted)
            continue;
        for (const Reading& reading : readings.Items())
            ASSERT_TRUE(IsMissing(reading.value) || std::abs(reading.value) <= 86400.0 + 61.0) << body;
    }
}
