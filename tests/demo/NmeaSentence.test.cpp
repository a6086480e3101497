#include "demo/detail/NmeaSentence.h"

#include "Lines.h"

#include <gtest/gtest.h>

#include <vector>

using demo::NmeaSentence;
using demo::TakeLine;

TEST(NmeaSentence, SplitsAtTheCommas)
{
    NmeaSentence s;
    ASSERT_TRUE(s.Split("$GPGGA,092750.000,5321.6802,N,00630.3372,W,1,8,1.03,61.7,M,55.2,M,,*76"));
    EXPECT_EQ("GP", s.talker);
    EXPECT_EQ("GGA", s.type);
    EXPECT_EQ(14U, s.fieldCount);
    EXPECT_EQ("092750.000", s.Field(0));
    EXPECT_EQ("W", s.Field(4));
    EXPECT_EQ("", s.Field(12));
    EXPECT_EQ("", s.Field(13));
    EXPECT_EQ("", s.Field(14)) << "beyond the last field";
}

TEST(NmeaSentence, TakesEitherCaseOfChecksumBothMarksAndProprietaryCodes)
{
    NmeaSentence s;
    EXPECT_TRUE(s.Split("$HEHDT,65.7,T*1b"));
    EXPECT_TRUE(s.Split(Line("HEHDT")));
    EXPECT_EQ(0U, s.fieldCount);
    EXPECT_TRUE(s.Split("!AIVDM,1,1,,B,177KQJ5000G?tO`K>RA1wUbN0TKH,0*5C"));
    EXPECT_EQ("VDM", s.type);
    const std::string proprietary = Line("PGRME,15.0,M");
    ASSERT_TRUE(s.Split(proprietary));
    EXPECT_EQ("", s.talker);
    EXPECT_EQ("GRME", s.type);
}

TEST(NmeaSentence, RefusesEveryTruncation)
{
    const std::string line = Line("WIMWV,251.4,R,12.1,N,A");
    NmeaSentence s;
    ASSERT_TRUE(s.Split(line));
    for (std::size_t length = 0; length < line.size(); ++length) {
        EXPECT_FALSE(s.Split(std::string_view(line).substr(0, length))) << length;
        EXPECT_EQ(0U, s.fieldCount);
        EXPECT_FALSE(s.Split(std::string_view(line).substr(line.size() - length)))
            << "cut at the front: " << length;
    }
}

TEST(NmeaSentence, RefusesEveryDamagedCharacter)
{
    const std::string line = Line("SDDPT,15.67,0.6");
    NmeaSentence s;
    for (std::size_t at = 0; at < line.size(); ++at)
        for (int bit = 0; bit < 8; ++bit) {
            std::string damaged = line;
            damaged[at] = static_cast<char>(damaged[at] ^ (1 << bit));
            // The case of a checksum digit is the one difference that means nothing.
            if (damaged[at] == (line[at] | 0x20) && at + 2 >= line.size())
                continue;
            EXPECT_FALSE(s.Split(damaged)) << "character " << at << ", bit " << bit;
        }
}

TEST(NmeaSentence, RefusesWhatIsNoSentence)
{
    NmeaSentence s;
    EXPECT_FALSE(s.Split(""));
    EXPECT_FALSE(s.Split("$"));
    EXPECT_FALSE(s.Split("$*00"));
    EXPECT_FALSE(s.Split(Line(",")));
    EXPECT_FALSE(s.Split(Line("GPG")));
    EXPECT_FALSE(s.Split("$HEHDT,65.7,T")) << "without a checksum";
    EXPECT_FALSE(s.Split("$HEHDT,65.7,T*1B ")) << "a blank behind it";
    EXPECT_FALSE(s.Split("$HEHDT,65.7,T*1G"));
    EXPECT_FALSE(s.Split(Line("HEHDT,65\t7,T"))) << "a control character under a right checksum";
    EXPECT_FALSE(s.Split(Line("HEHDT,65\xB0,T")));
    EXPECT_FALSE(s.Split(Line(std::string("IIXDR,") + std::string(NmeaSentence::maxLength, 'A'))));
}

TEST(NmeaSentence, BoundsTheNumberOfFields)
{
    NmeaSentence s;
    EXPECT_TRUE(s.Split(Line(std::string("IIXDR") + std::string(NmeaSentence::maxFields, ','))));
    EXPECT_EQ(NmeaSentence::maxFields, s.fieldCount);
    EXPECT_FALSE(s.Split(Line(std::string("IIXDR") + std::string(NmeaSentence::maxFields + 1, ','))));
}

TEST(NmeaSentence, LinesEndWithLineFeedOrBoth)
{
    std::string_view rest = "one\r\ntwo\n\n\r\nthree\rfour\r\nlast";
    std::vector<std::string_view> lines;
    while (!rest.empty())
        lines.push_back(TakeLine(rest));
    EXPECT_EQ((std::vector<std::string_view>{"one", "two", "", "", "three\rfour", "last"}), lines);
}
