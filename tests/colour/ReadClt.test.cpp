#include "colour/detail/ReadClt.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

using namespace vant::detail;
using namespace std::string_literals;

namespace
{

/** What was read: "size name: 1 2 3, 4 5 6", with the name in bytes, and behind it (8) for UTF-8. */
std::string Read(const std::string& bytes)
{
    CltTable table;
    table.name = "before";
    if (!ReadClt(std::as_bytes(std::span(bytes)), table))
        return table == CltTable{} ? "refused" : "refused, but not empty";
    std::string text = std::to_string(table.size) + " " + table.name + (table.isUtf8 ? "(8):" : ":");
    for (const auto& [red, green, blue] : table.colours)
        text.append(" ")
            .append(std::to_string(red))
            .append(" ")
            .append(std::to_string(green))
            .append(" ")
            .append(std::to_string(blue))
            .append(",");
    return text;
}

TEST(ReadCltTest, ATableWithCountAndNameTakesAnEntryFromEveryLine)
{
    EXPECT_EQ(Read("COLOURTABLE 2 \"A b\"\n1 2 3\n4 5 6\n7 8 9\n"), "2 A b: 1 2 3, 4 5 6,");
    EXPECT_EQ(Read("COLOURTABLE 4 \"A\"\n1 2\n\nx 1 2\n1,2,3\n7 8 9"), "4 A: 0 0 0, 0 0 0, 0 0 0, 0 0 0,");
    EXPECT_EQ(Read("COLOURTABLE 9 \"A\"\n256 -1 +7 8\n\t1-2-3x"), "9 A: 0 255 7, 1 254 253,");
    EXPECT_EQ(Read("COLOURTABLE5\"A without an end\n1.5 2 3"), "5 A without an end: 0 0 0,");
    EXPECT_EQ(Read("COLOURTABLE 0 \"A\"\n1 2 3\n"), "0 A:");
    EXPECT_EQ(Read("COLOURTABLE 65536 \"A\"\n4294967297 2 3"), "65536 A: 1 2 3,");
}

TEST(ReadCltTest, ALookUpTablePassesOverIndicesAndBrokenLines)
{
    EXPECT_EQ(Read("LookUpTable Jig x\n5 1 2 3\n0 4 5 6\n"), "256 Jig: 1 2 3, 4 5 6,");
    EXPECT_EQ(Read("LookUpTableJig\n\n1 2 3\nx 1 2 3\n9 257 2 3 4\n"), "256 Jig: 1 2 3,");
}

TEST(ReadCltTest, AnythingElseHasSixtyFourEntriesOnAScaleTo63)
{
    EXPECT_EQ(Read("0 63 0\n32 31 21\n"), "64 : 0 255 0, 129 125 85,");
    EXPECT_EQ(Read("64 -1 1000"), "64 : 3 252 207,"); // -1 is cut to -4, not to -5
    EXPECT_EQ(Read(""), "64 :");
    EXPECT_EQ(Read("\n1 2"), "64 : 0 0 0, 0 0 0,");
    for (const char* header :
         {"COLOURTABLE 3", "COLOURTABLE 3 \"\"", "COLOURTABLE x \"A\"", " COLOURTABLE 3 \"A\"",
          "colourtable 3 \"A\"", "LookUpTable ", "LOOKUPTABLE A"})
        EXPECT_EQ(Read(header + "\n63 0 0"s), "64 : 0 0 0, 255 0 0,") << header;
}

TEST(ReadCltTest, ATableTakesNoMoreThanItsEntries)
{
    for (const auto& [header, index] : {std::pair{"LookUpTable A\n", "x\n9 "}, std::pair{"", ""}}) {
        std::string bytes = header;
        for (int i = 0; i < 300; ++i)
            bytes += index + std::to_string(i) + " 0 0\n";
        CltTable table;
        ASSERT_TRUE(ReadClt(std::as_bytes(std::span(bytes)), table));
        ASSERT_EQ(table.colours.size(), table.size);
        EXPECT_EQ(table.colours.back(), (CltColour{255, 0, 0}));
    }
}

TEST(ReadCltTest, ACountThatNoTableCanHaveIsRefused)
{
    for (const char* count :
         {"65537", "-1", "2147483647", "-2147483648", "4294967299", "99999999999999999999999"})
        EXPECT_EQ(Read("COLOURTABLE "s + count + " \"A\"\n1 2 3\n"), "refused") << count;
}

TEST(ReadCltTest, LinesEndInEveryWayThatFilesHave)
{
    EXPECT_EQ(Read("COLOURTABLE 2 \"A\r\n1 2 3\r\n4 5 6"), "2 A: 1 2 3, 4 5 6,");
    EXPECT_EQ(Read("0 63 0\r63 0 0\r"), "64 : 0 255 0,"); // a carriage return alone is white space
    EXPECT_EQ(Read("COLOURTABLE 9 \"A\"\n1 2 3\n\x1A 4 5 6"), "9 A: 1 2 3,");
    EXPECT_EQ(Read("COLOURTABLE 2 \"A\"\n1 2\0 3\n4 5 6\0 x\n"s), "2 A: 0 0 0, 4 5 6,");
}

TEST(ReadCltTest, AByteOrderMarkTellsTheEncoding)
{
    const auto wide = [](std::u16string_view text, bool bigEndian) {
        std::string bytes;
        for (const char16_t c : text) {
            const char high = static_cast<char>(c >> 8);
            const char low = static_cast<char>(c & 0xFF);
            bytes += bigEndian ? high : low;
            bytes += bigEndian ? low : high;
        }
        return bytes;
    };
    const std::u16string_view text = u"\uFEFFCOLOURTABLE 2 \"\u00FC\u6DF1\U0001F30A\xD800x\"\n1 2 3\r\n";
    const std::string read = "2 \xC3\xBC\xE6\xB7\xB1\xF0\x9F\x8C\x8A\xEF\xBF\xBDx(8): 1 2 3,";
    EXPECT_EQ(Read(wide(text, false)), read);
    EXPECT_EQ(Read(wide(text, true) + "\xD8"), read);
    EXPECT_EQ(Read("\xEF\xBB\xBFLookUpTable \xC3\xBC"), "256 \xC3\xBC(8):");
    EXPECT_EQ(Read("LookUpTable \xFC"), "256 \xFC:");
    EXPECT_EQ(Read("\xFF\xFE"), "64 (8):");
}

} // namespace
