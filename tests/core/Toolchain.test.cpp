#include <gtest/gtest.h>

#include <cwchar>
#include <windows.h>

// The build flags decide this, and a wrong one shows up far from its cause.
TEST(Toolchain, WideFormatsTakeWideText)
{
    wchar_t text[32] = {};
    _snwprintf(text, 31, L"%s %I64d", L"depth", 5000000000LL);
    EXPECT_STREQ(text, L"depth 5000000000");
}
