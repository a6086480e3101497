#include <afx.h>

#include "afx/Thrown.h"
#include "support/GermanLocale.h"

#include <climits>
#include <cmath>
#include <gtest/gtest.h>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace
{

CString Formatted(LPCWSTR format, ...)
{
    va_list args;
    va_start(args, format);
    CString text;
    text.FormatV(format, args);
    va_end(args);
    return text;
}

// The signature of the library's own loggers: the list starts behind a parameter of class type.
CString Log(int level, CString fmt, ...)
{
    va_list args;
    va_start(args, fmt);
    CString text;
    text.FormatV(fmt, args);
    va_end(args);
    return text + (level > 0 ? L"!" : L"");
}

} // namespace

TEST(CString, IsOnePointerAndEmptyAtFirst)
{
    static_assert(sizeof(CString) == sizeof(void*));
    const CString text;
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_STREQ(text, L"");
    EXPECT_EQ(text.GetString(), CString(L"").GetString()) << "the empty text needs no block";
    EXPECT_TRUE(CString(static_cast<LPCWSTR>(nullptr)).IsEmpty());
    EXPECT_EQ(CString(L'x', 3), L"xxx");
    EXPECT_EQ(CString(L"abcdef", 2), L"ab");
    EXPECT_EQ(CString(L"a\0b", 3).GetLength(), 3);
}

TEST(CString, SharesItsBlockUntilItChanges)
{
    CString a = L"sounder";
    CString b = a;
    EXPECT_EQ(a.GetString(), b.GetString());
    b += L'!';
    EXPECT_NE(a.GetString(), b.GetString());
    EXPECT_EQ(a, L"sounder");
    EXPECT_EQ(b, L"sounder!");

    CString c = a;
    c.SetAt(0, L'b');
    EXPECT_EQ(a, L"sounder");
    EXPECT_EQ(c, L"bounder");

    const LPCWSTR block = b;
    const CString moved = std::move(b);
    EXPECT_EQ(moved.GetString(), block);
    EXPECT_TRUE(b.IsEmpty());

    CString& self = a;
    a = self;
    EXPECT_EQ(a, L"sounder");
}

TEST(CString, CountsTheUsersOfABlockAcrossThreads)
{
    const CString shared = L"a text that all threads share";
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([&shared] {
            for (int i = 0; i < 20'000; ++i) {
                CString copy = shared;
                CString second = copy;
                if (i % 16 == 0)
                    second += L'x';
            }
        });
    }
    for (std::thread& t : threads)
        t.join();
    CString last = shared;
    EXPECT_EQ(last.GetString(), shared.GetString());
    EXPECT_EQ(shared, L"a text that all threads share");
}

TEST(CString, ChangesItselfFromItself)
{
    CString a = L"abc";
    a += a;
    EXPECT_EQ(a, L"abcabc");
    a.Append(a.GetString() + 3, 2);
    EXPECT_EQ(a, L"abcabcab");
    a.SetString(a.GetString() + 1, 3);
    EXPECT_EQ(a, L"bca");
    a.Format(L"<%s>", a.GetString());
    EXPECT_EQ(a, L"<bca>");
    a.Replace(L"b", a);
    EXPECT_EQ(a, L"<<bca>ca>");
    a.Insert(1, a);
    EXPECT_EQ(a, L"<<<bca>ca><bca>ca>");
    CString grown;
    for (int i = 0; i < 1000; ++i)
        grown.AppendChar(static_cast<wchar_t>(L'a' + i % 26));
    EXPECT_EQ(grown.GetLength(), 1000);
    EXPECT_EQ(grown.Right(3), L"jkl");
}

TEST(CString, FormatsTextsAndNumbers)
{
    EXPECT_EQ(Formatted(L"%s|%S|%hs|%ls|%c|%C", L"wide", "narrow", "n", L"w", L'c', 'C'),
              L"wide|narrow|n|w|c|C");
    EXPECT_EQ(Formatted(L"%6s|%-6s|%.2s|%*.*s|", L"ab", L"ab", L"abc", -4, 1, L"xyz"),
              L"    ab|ab    |ab|x   |");
    EXPECT_EQ(Formatted(L"%s", static_cast<LPCWSTR>(nullptr)), L"(null)");
    EXPECT_EQ(Formatted(L"%d %5d %-5d| %05d %+d % d %.3d", -7, 42, 42, -42, 3, 3, 7),
              L"-7    42 42   | -0042 +3  3 007");
    EXPECT_EQ(Formatted(L"%u %x %X %#x %#o %o", 4294967295U, 255, 255, 255, 8, 8),
              L"4294967295 ff FF 0xff 010 10");
    EXPECT_EQ(Formatted(L"%hd %hhd %ld %lld %I64d %I32d %Id %zu", 65537, 257, -1L, -5000000000LL, INT64_MIN,
                        -3, static_cast<INT_PTR>(-9), static_cast<size_t>(9)),
              L"1 1 -1 -5000000000 -9223372036854775808 -3 -9 9");
    EXPECT_EQ(Formatted(L"%p", reinterpret_cast<void*>(0xBEEF)), L"000000000000BEEF");
    EXPECT_EQ(Formatted(L"100%% %y %"), L"100% y ");
    EXPECT_EQ(Formatted(L"[%.0d][%#.0o]", 0, 0), L"[][0]");
}

TEST(CString, FormatsFloatingNumbers)
{
    EXPECT_EQ(Formatted(L"%f %.0f %.3f %8.2f|%-8.2f|%08.2f", 1.5, 2.5, -0.0005, 3.14159, 3.14159, -3.14159),
              L"1.500000 2 -0.001     3.14|3.14    |-0003.14");
    EXPECT_EQ(Formatted(L"%lg %g %g %g %G", 0.1, 100000.0, 1e6, 1e-5, 1e-10),
              L"0.1 100000 1e+06 1e-05 1E-10");
    EXPECT_EQ(Formatted(L"%e %.2E %+lg % g", 12345.678, 0.000123, 5.0, 5.0), L"1.234568e+04 1.23E-04 +5  5");
    EXPECT_EQ(Formatted(L"%#g %#.0f %#.3g %#g", 1.0, 3.0, 100000.0, 1e-7),
              L"1.00000 3. 1.00e+05 1.00000e-07");
    EXPECT_EQ(Formatted(L"%.1a %A", 1.5, 0.5), L"0x1.8p+0 0X1.0000000000000P-1");
    const double infinite = HUGE_VAL;
    EXPECT_EQ(Formatted(L"%f %5.1f %G %05g", infinite, -infinite, infinite, infinite),
              L"inf  -inf INF   inf");
    EXPECT_EQ(Formatted(L"%.3f", std::nan("")), L"nan");
    // Every double has an exact end: what is asked for beyond it are zeros.
    const CString longest = Formatted(L"%.2000f", 1.7976931348623157e308);
    EXPECT_EQ(longest.GetLength(), 309 + 1 + 2000);
    EXPECT_EQ(longest.Left(6), L"179769");
    EXPECT_EQ(Formatted(L"%.1500e", 0.1).Right(5), L"0e-01");
    EXPECT_EQ(Formatted(L"%#.1500g", 54.0).GetLength(), 1501);
    EXPECT_EQ(Formatted(L"%.1500g", 54.0), L"54");
}

TEST(CString, FormatsWithADecimalPointInEveryLocale)
{
    const vant::test::GermanLocale locale;
    if (!locale.IsActive())
        GTEST_SKIP() << "this system has no German locale";
    EXPECT_EQ(Formatted(L"%.2f %g", 1.25, 0.5), L"1.25 0.5");
}

TEST(CString, FormatsResultsOfAnyLength)
{
    const CString many(L'm', 100'000);
    const CString text = Formatted(L"%s%s%d", many.GetString(), many.GetString(), 7);
    EXPECT_EQ(text.GetLength(), 200'001);
    EXPECT_EQ(text.Right(2), L"m7");
    CString appended = L"x";
    appended.AppendFormat(L"%d,%s", 1, L"two");
    EXPECT_EQ(appended, L"x1,two");
    // A width from a damaged format ends at a bound instead of at all memory.
    EXPECT_EQ(Formatted(L"%999999999999d", 1).GetLength(), 1'000'000);
}

TEST(CString, ExhaustedMemoryLeavesTheTextAlone)
{
    CString text = L"kept";
    EXPECT_TRUE(Throws<CMemoryException>([&text] { text.Preallocate(INT_MAX); }));
    EXPECT_EQ(text, L"kept");
}

TEST(CString, ListStartsBehindAParameterOfClassType)
{
    EXPECT_EQ(Log(1, L"%s %d %g", L"depth", 5, 2.5), L"depth 5 2.5!");
    const CString format = L"%I64d";
    EXPECT_EQ(Log(0, format, 1LL << 40), L"1099511627776");
}

TEST(CString, FindsUnitsAndParts)
{
    const CString text = L"left, top, right";
    EXPECT_EQ(text.Find(L','), 4);
    EXPECT_EQ(text.Find(L',', 5), 9);
    EXPECT_EQ(text.Find(L"top"), 6);
    EXPECT_EQ(text.Find(L"bottom"), -1);
    EXPECT_EQ(text.Find(L't', 100), -1);
    EXPECT_EQ(text.Find(L'l', -1), -1);
    EXPECT_EQ(text.ReverseFind(L','), 9);
    EXPECT_EQ(text.ReverseFind(L'#'), -1);
    EXPECT_EQ(text.FindOneOf(L"gp"), 8);
    EXPECT_EQ(text.FindOneOf(L"#"), -1);
}

TEST(CString, TakesParts)
{
    const CString text = L"abcdef";
    EXPECT_EQ(text.Left(2), L"ab");
    EXPECT_EQ(text.Right(2), L"ef");
    EXPECT_EQ(text.Mid(2), L"cdef");
    EXPECT_EQ(text.Mid(2, 2), L"cd");
    EXPECT_EQ(text.Left(-1), L"");
    EXPECT_EQ(text.Right(99), L"abcdef");
    EXPECT_EQ(text.Mid(4, 99), L"ef");
    EXPECT_EQ(text.Mid(99), L"");
    EXPECT_EQ(text.Mid(0).GetString(), text.GetString()) << "the whole is shared, not copied";
    EXPECT_EQ(CString(L"123abc").SpanIncluding(L"0123456789"), L"123");
    EXPECT_EQ(CString(L"name=value").SpanExcluding(L"="), L"name");
    EXPECT_EQ(CString(L"name").SpanExcluding(L"="), L"name");
}

TEST(CString, TakesTokens)
{
    const CString text = L"%First Second#Third";
    int at = 0;
    EXPECT_EQ(text.Tokenize(L"% #", at), L"First");
    EXPECT_EQ(text.Tokenize(L"% #", at), L"Second");
    EXPECT_EQ(text.Tokenize(L"% #", at), L"Third");
    EXPECT_EQ(text.Tokenize(L"% #", at), L"");
    EXPECT_EQ(at, -1);
    at = 0;
    EXPECT_EQ(CString(L",,").Tokenize(L",", at), L"");
    EXPECT_EQ(at, -1);
}

TEST(CString, ChangesInPlace)
{
    CString text = L"  \t mixed Case \r\n";
    EXPECT_EQ(text.TrimRight(), L"  \t mixed Case");
    EXPECT_EQ(text.TrimLeft(), L"mixed Case");
    EXPECT_EQ(CString(L"   ").Trim(), L"");
    EXPECT_EQ(CString(L"\"quoted\"").Trim(L'"'), L"quoted");
    EXPECT_EQ(CString(L"{<x>}").Trim(L"{}<>"), L"x");
    EXPECT_EQ(CString(L"aXbX").TrimRight(L'X'), L"aXb");
    EXPECT_EQ(CString(L"XaXb").TrimLeft(L"X"), L"aXb");
    EXPECT_EQ(CString(L"Gr\u00fc\u00dfe").MakeUpper(), L"GR\u00dc\u00dfE");
    EXPECT_EQ(CString(L"\u00c4BC").MakeLower(), L"\u00e4bc");
    EXPECT_EQ(CString(L"abc").MakeReverse(), L"cba");

    text = L"a-b-c";
    EXPECT_EQ(text.Replace(L'-', L'+'), 2);
    EXPECT_EQ(text, L"a+b+c");
    EXPECT_EQ(text.Replace(L"+", L" and "), 2);
    EXPECT_EQ(text, L"a and b and c");
    EXPECT_EQ(text.Replace(L" and ", L""), 2);
    EXPECT_EQ(text, L"abc");
    EXPECT_EQ(text.Replace(L"", L"x"), 0);
    EXPECT_EQ(text.Remove(L'b'), 1);
    EXPECT_EQ(text.Insert(1, L"--"), 4);
    EXPECT_EQ(text.Insert(99, L'!'), 5);
    EXPECT_EQ(text, L"a--c!");
    EXPECT_EQ(text.Delete(1, 2), 3);
    EXPECT_EQ(text.Delete(9), 3);
    EXPECT_EQ(text, L"ac!");
    text.Truncate(1);
    EXPECT_EQ(text, L"a");
}

TEST(CString, Compares)
{
    const CString a = L"Alpha";
    EXPECT_TRUE(a == L"Alpha" && L"Alpha" == a && a == CString(L"Alpha"));
    EXPECT_TRUE(a != L"alpha" && L"alpha" != a);
    EXPECT_LT(a.Compare(L"Beta"), 0);
    EXPECT_GT(a.Compare(L"ALPHA"), 0);
    EXPECT_EQ(a.CompareNoCase(L"ALPHA"), 0);
    EXPECT_LT(a.Collate(L"alphb"), 0);
    EXPECT_EQ(a.CollateNoCase(L"ALPHA"), 0);
    EXPECT_TRUE(a < L"B" && L"B" > a && a <= a && a >= L"A" && CString() < a);
    EXPECT_EQ(a + L'-' + L"b" + CString(L"c"), L"Alpha-bc");
    EXPECT_EQ(L"x" + a, L"xAlpha");
}

TEST(CString, LendsItsBuffer)
{
    CString text = L"abc";
    const CString copy = text;
    wchar_t* const buffer = text.GetBuffer(100);
    EXPECT_STREQ(buffer, L"abc");
    wcscpy(buffer, L"a longer text than before");
    text.ReleaseBuffer();
    EXPECT_EQ(text, L"a longer text than before");
    EXPECT_EQ(copy, L"abc");
    text.GetBuffer();
    text.ReleaseBuffer(3);
    EXPECT_EQ(text, L"a l");
    std::wmemset(text.GetBufferSetLength(5), L'z', 5);
    text.ReleaseBuffer(5);
    EXPECT_EQ(text, L"zzzzz");
    EXPECT_TRUE(Throws<CInvalidArgException>([&text] { text.ReleaseBuffer(1'000'000); }));
}

TEST(CString, ConvertsToAndFromTheCodePage)
{
    const CString wide = "depth 12 m";
    EXPECT_EQ(wide, L"depth 12 m");
    EXPECT_STREQ(CStringA(wide), "depth 12 m");
    const CString round{CStringA(L"\u00fc\u00e9 \u00b0")};
    if (::GetACP() == 1252) {
        EXPECT_EQ(round, L"\u00fc\u00e9 \u00b0");
    }
    EXPECT_EQ(CString(CStringA(L"\u4e2d")).GetLength(), 1)
        << "what the page lacks becomes its default character";
    EXPECT_EQ(CStringA(L"abc", 2), "ab");
    CString text;
    text = "narrow";
    text += " more";
    EXPECT_EQ(text, L"narrow more");
}

TEST(CString, LoadsFromTheResources)
{
    constexpr UINT depthFormat = 101;
    constexpr UINT none = 999;
    CString text = L"kept";
    EXPECT_FALSE(text.LoadString(none));
    EXPECT_EQ(text, L"kept");
    ASSERT_TRUE(text.LoadString(depthFormat));
    EXPECT_EQ(text, L"Depth %d of %s");
    text.Format(depthFormat, 7, L"9");
    EXPECT_EQ(text, L"Depth 7 of 9");
    EXPECT_EQ(CString(MAKEINTRESOURCE(depthFormat)), L"Depth %d of %s");
    EXPECT_EQ(CTime(1995, 3, 14, 0, 0, 0).Format(102U), L"14.03.1995");

    // A module without the text comes first: the program's own is found behind it.
    AfxSetResourceHandle(::GetModuleHandleW(L"VantAfx.dll"));
    EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCE(depthFormat / 16 + 1), RT_STRING),
              AfxGetInstanceHandle());
    EXPECT_TRUE(text.LoadString(depthFormat));
    AfxSetResourceHandle(nullptr);
    EXPECT_EQ(AfxGetResourceHandle(), AfxGetInstanceHandle());
}
