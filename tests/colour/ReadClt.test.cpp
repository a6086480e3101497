#include "colour/detail/ReadClt.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace vant::detail
{

void PrintTo(const CltColour& c, std::ostream* out)
{
    *out << int{c.red} << " " << int{c.green} << " " << int{c.blue};
}

} // namespace vant::detail

using namespace vant::detail;
using namespace std::string_literals;

namespace
{

constexpr CltColour black{0, 0, 0};

struct Case {
    std::string bytes;
    std::size_t size;
    std::vector<CltColour> colours;
    std::string name = {};
    bool isUtf8 = false;
};

void ExpectRead(const std::vector<Case>& cases)
{
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::PrintToString(c.bytes));
        CltTable table;
        EXPECT_TRUE(ReadClt(std::as_bytes(std::span(c.bytes)), table));
        EXPECT_EQ(table.size, c.size);
        EXPECT_EQ(table.colours, c.colours);
        EXPECT_EQ(table.name, c.name);
        EXPECT_EQ(table.isUtf8, c.isUtf8);
    }
}

TEST(ReadCltTest, ATableWithCountAndNameTakesAnEntryFromEveryLine)
{
    ExpectRead({
        {"COLOURTABLE 3 \"A b\"\n1 2 3\n4 5 6\n7 8 9\n10 11 12\n13 14 15\n",
         3,
         {{1, 2, 3}, {4, 5, 6}, {7, 8, 9}},
         "A b"},
        {"COLOURTABLE 4 \"A\"\n1 2\n\n x 1 2\n1,2,3\n7 8 9", 4, {black, black, black, black}, "A"},
        {"COLOURTABLE 9 \"A\"\n256 -1 +7 8\n\t1-2-3x\n1.5 2 3", 9, {{0, 255, 7}, {1, 254, 253}, black}, "A"},
        {"COLOURTABLE5\"A\" behind\n1 2 3", 5, {{1, 2, 3}}, "A"},
        {"COLOURTABLE \t 5 \"A without an end\n1 2 3", 5, {{1, 2, 3}}, "A without an end"},
        {"COLOURTABLE 0 \"A\"\n1 2 3\n", 0, {}, "A"},
        {"COLOURTABLE 65536 \"A\"\n4294967297 2 3", 65'536, {{1, 2, 3}}, "A"},
    });
}

TEST(ReadCltTest, ALookUpTablePassesOverIndicesAndBrokenLines)
{
    ExpectRead({
        {"LookUpTable Jig x\n5 1 2 3\n0 4 5 6\n", 256, {{1, 2, 3}, {4, 5, 6}}, "Jig"},
        {"LookUpTableJig\n\n1 2 3\nx 1 2 3\n9 257 2 3 4\n", 256, {{1, 2, 3}}, "Jig"},
    });
    std::string many = "LookUpTable A\n";
    for (int i = 0; i < 300; ++i)
        many += "none\n0 " + std::to_string(i) + " 0 0\n";
    CltTable table;
    ASSERT_TRUE(ReadClt(std::as_bytes(std::span(many)), table));
    ASSERT_EQ(table.colours.size(), 256u);
    EXPECT_EQ(table.colours[255], (CltColour{255, 0, 0}));
}

TEST(ReadCltTest, AnythingElseHasSixtyFourEntriesOnAScaleTo63)
{
    const auto just = [](CltColour first) { return std::vector<CltColour>{first}; };
    ExpectRead({
        {"0 63 0\n32 31 21\n", 64, {{0, 255, 0}, {129, 125, 85}}},
        {"64 -1 1000", 64, just({259 & 0xFF, 256 - 4, 4047 & 0xFF})}, // -1 is cut to -4, not to -5
        {"", 64, {}},
        {"\n1 2", 64, {black, black}},
        // Headers that do not match are entries.
        {"COLOURTABLE 3\n63 0 0", 64, {black, {255, 0, 0}}},
        {"COLOURTABLE 3 \"\"", 64, just(black)},
        {"COLOURTABLE x \"A\"", 64, just(black)},
        {"COLOURTABLE -x \"A\"", 64, just(black)},
        {" COLOURTABLE 3 \"A\"", 64, just(black)},
        {"colourtable 3 \"A\"", 64, just(black)},
        {"LookUpTable \n", 64, just(black)},
        {"LOOKUPTABLE A", 64, just(black)},
    });
    std::string many;
    for (int i = 0; i < 70; ++i)
        many += "0 0 " + std::to_string(i) + "\n";
    CltTable table;
    ASSERT_TRUE(ReadClt(std::as_bytes(std::span(many)), table));
    ASSERT_EQ(table.colours.size(), 64u);
    EXPECT_EQ(table.colours[63], (CltColour{0, 0, 255}));
}

TEST(ReadCltTest, ACountThatNoTableCanHaveIsRefused)
{
    for (const char* count :
         {"65537", "-1", "2147483647", "-2147483648", "4294967299", "99999999999999999999999"}) {
        const std::string bytes = "COLOURTABLE "s + count + " \"A\"\n1 2 3\n";
        CltTable table;
        table.name = "before";
        EXPECT_FALSE(ReadClt(std::as_bytes(std::span(bytes)), table)) << count;
        EXPECT_EQ(table, CltTable{});
    }
}

TEST(ReadCltTest, LinesEndInEveryWayThatFilesHave)
{
    ExpectRead({
        {"COLOURTABLE 2 \"A\r\n1 2 3\r\n4 5 6", 2, {{1, 2, 3}, {4, 5, 6}}, "A"},
        {"0 63 0\r63 0 0\r", 64, {{0, 255, 0}}}, // a carriage return alone is white space
        {"COLOURTABLE 9 \"A\"\n1 2 3\n\x1A"
         "4 5 6",
         9,
         {{1, 2, 3}},
         "A"},
        {"COLOURTABLE 2 \"A\"\n1 2\0 3\n4 5 6\0 x\n"s, 2, {black, {4, 5, 6}}, "A"},
    });
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
    const std::string name = "\xC3\xBC\xE6\xB7\xB1\xF0\x9F\x8C\x8A\xEF\xBF\xBDx";
    ExpectRead({
        {"\xEF\xBB\xBF"
         "COLOURTABLE 1 \"\xC3\xBC\"\n1 2 3",
         1,
         {{1, 2, 3}},
         "\xC3\xBC",
         true},
        {wide(text, false), 2, {{1, 2, 3}}, name, true},
        {wide(text, true) + "\xD8", 2, {{1, 2, 3}}, name, true},
        {wide(u"\uFEFF0 63 0", false), 64, {{0, 255, 0}}, "", true},
        {"\xFF\xFE", 64, {}, "", true},
        {"COLOURTABLE 1 \"\xFC\"", 1, {}, "\xFC"},
    });
}

} // namespace
