#include <gtest/gtest.h>

#include <cwchar>
#include <windows.h>

// The build flags decide these, and a wrong one shows up far from its cause.
TEST(Toolchain, WideFormatsReadWideText)
{
    wchar_t text[32] = {};
    _snwprintf(text, 31, L"%s %I64d", L"depth", 5000000000LL);
    EXPECT_STREQ(text, L"depth 5000000000");

    wchar_t word[8] = {};
    EXPECT_EQ(swscanf(L"sonar 12", L"%7s", word), 1);
    EXPECT_STREQ(word, L"sonar");
}
