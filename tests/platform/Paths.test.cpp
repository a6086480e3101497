#include "platform/detail/Paths.h"

#include <gtest/gtest.h>

#include <string>

using namespace vant::detail;

namespace
{

/** The directories that a path is created with, outermost first, joined by bars. */
std::wstring Steps(std::wstring_view path)
{
    std::wstring steps;
    for (const std::size_t end : DirectoryEnds(path))
        steps.append(steps.empty() ? L"" : L"|").append(path.substr(0, end));
    return steps;
}

} // namespace

TEST(Paths, AreCreatedFromTheDriveShareOrFirstDirectoryOn)
{
    EXPECT_EQ(Steps(L"C:\\Data\\Logs\\"), L"C:|C:\\Data|C:\\Data\\Logs");
    EXPECT_EQ(Steps(L"Data\\Logs"), L"Data|Data\\Logs");
    EXPECT_EQ(Steps(L"C:/Data//Logs"), L"C:|C:/Data|C:/Data//Logs");
    EXPECT_EQ(Steps(L"\\Data"), L"\\Data");
    EXPECT_EQ(Steps(L"\\\\server\\share\\a\\b"),
              L"\\\\server\\share|\\\\server\\share\\a|\\\\server\\share\\a\\b");
    EXPECT_EQ(Steps(L"\\\\?\\C:\\a"), L"\\\\?\\C:|\\\\?\\C:\\a");
    EXPECT_EQ(Steps(L"\\\\server"), L"\\\\server");
    EXPECT_EQ(Steps(L""), L"");
    EXPECT_EQ(Steps(L"\\\\"), L"");
}

TEST(Paths, IgnoreWhatLiesDeeperThanTwentyComponents)
{
    std::wstring path = L"C:";
    for (int i = 1; i < 20; ++i)
        path += L"\\d";
    EXPECT_EQ(DirectoryEnds(path).size(), 20u);
    EXPECT_EQ(DirectoryEnds(path).back(), path.size());
    const std::size_t twentieth = path.size();
    EXPECT_EQ(DirectoryEnds(path + L"\\deeper\\still").back(), twentieth);
}

TEST(Paths, PatternsFitNamesAsTheSystemDoes)
{
    EXPECT_TRUE(MatchesPattern(L"Track.CSV", L"*.csv"));
    EXPECT_TRUE(MatchesPattern(L"noextension", L"*.*"));
    EXPECT_TRUE(MatchesPattern(L"log12.txt", L"log??.t*"));
    EXPECT_TRUE(MatchesPattern(L"aab.ab", L"*ab"));
    EXPECT_FALSE(MatchesPattern(L"page.html", L"*.htm"));
    EXPECT_FALSE(MatchesPattern(L"log1.txt", L"log??.txt"));
    EXPECT_FALSE(MatchesPattern(L"a", L""));
    EXPECT_TRUE(MatchesPattern(L"", L"*"));
    // A pattern of many stars against a long name must not take exponential time.
    EXPECT_FALSE(MatchesPattern(std::wstring(5000, L'a'), L"*a*a*a*a*a*a*a*a*a*a*b"));
}
