#include "demo/detail/Options.h"

#include <gtest/gtest.h>

#include <vector>

using demo::Options;

namespace
{

Options Parse(std::vector<std::wstring_view> arguments)
{
    return Options::Parse(arguments);
}

} // namespace

TEST(Options, DefaultsWithoutArguments)
{
    const Options options = Parse({});
    EXPECT_EQ(20.0, options.seconds);
    EXPECT_EQ(10.0, options.rate);
    EXPECT_EQ(L"", options.log);
    EXPECT_EQ(L"out", options.out);
    EXPECT_FALSE(options.help);
    EXPECT_FALSE(options.script);
    EXPECT_FALSE(options.tour);
    EXPECT_EQ(L"", options.error);
}

TEST(Options, TakesAllOfThemInAnyOrder)
{
    const Options options = Parse({L"--script", L"--out", L"C:\\My runs", L"--rate", L"0.5", L"--log",
                                   L"b.nmea", L"--seconds", L"12.5"});
    EXPECT_EQ(L"", options.error);
    EXPECT_EQ(12.5, options.seconds);
    EXPECT_TRUE(options.script);
    EXPECT_EQ(0.5, options.rate);
    EXPECT_EQ(L"b.nmea", options.log);
    EXPECT_EQ(L"C:\\My runs", options.out);
    EXPECT_EQ(0.0, Parse({L"--seconds", L"0"}).seconds);
    EXPECT_EQ(3.0, Parse({L"--seconds", L"5", L"--seconds", L"3"}).seconds) << "the last one holds";
}

TEST(Options, HelpWinsOverWhatFollows)
{
    EXPECT_TRUE(Parse({L"--help"}).help);
    EXPECT_TRUE(Parse({L"--seconds", L"4", L"--help", L"--nonsense"}).help);
    EXPECT_FALSE(Parse({L"--nonsense", L"--help"}).help);
    for (const char* const name :
         {"--seconds", "--rate", "--log", "--out", "--script", "--no-pbuffers", "--tour", "--help"})
        EXPECT_NE(std::string::npos, std::string(Options::Help()).find(name)) << name;
}

TEST(Options, MistakesHaveOneLineEach)
{
    const struct {
        std::vector<std::wstring_view> arguments;
        const wchar_t* error;
    } cases[] = {
        {{L"--colour"}, L"unknown option '--colour'"},
        {{L"-s", L"4"}, L"unknown option '-s'"},
        {{L"survey.nmea"}, L"unexpected argument 'survey.nmea'"},
        {{L""}, L"unexpected argument ''"},
        {{L"--seconds"}, L"--seconds needs a value"},
        {{L"--log", L""}, L"--log needs a value"},
        {{L"--out", L"--seconds", L"4"}, L"--out needs a value"},
        {{L"--seconds", L"soon"}, L"--seconds needs a number, not 'soon'"},
        {{L"--seconds", L"4s"}, L"--seconds needs a number, not '4s'"},
        {{L"--seconds", L"1,5"}, L"--seconds needs a number, not '1,5'"},
        {{L"--seconds", L"nan"}, L"--seconds needs a number, not 'nan'"},
        {{L"--seconds", L"\u0664"}, L"--seconds needs a number, not '\u0664'"},
        {{L"--seconds", L"-1"}, L"--seconds must be from 0 to 604800"},
        {{L"--seconds", L"1000000"}, L"--seconds must be from 0 to 604800"},
        {{L"--rate", L"0"}, L"--rate must be from 0.1 to 200"},
        {{L"--rate", L"201"}, L"--rate must be from 0.1 to 200"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.error, Parse(c.arguments).error);
}
